#pragma once

namespace rhomba {

// The tools of the palette, numbered in its order; anything above kToolEllipse is no tool.
inline constexpr int kToolSelect = 0;
inline constexpr int kToolScroll = 1;
inline constexpr int kToolZoom = 2;
inline constexpr int kToolPath = 3;
inline constexpr int kToolNode = 4;
inline constexpr int kToolText = 5;
inline constexpr int kToolRectangle = 6;
inline constexpr int kToolEllipse = 7;

// The tools that carry this bit (4 to 7) open the node menu on a right click, the others the
// object menu.
inline constexpr int kToolNodeMenuBit = 4;

} // namespace rhomba
