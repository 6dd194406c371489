#pragma once

namespace rhomba {

// The flags of DrawEdit.
inline constexpr unsigned kDrawNodesOnly = 1;  // the node-handle pass alone
inline constexpr unsigned kDrawOutline = 2;    // outline (draft) view: thin lines, no fills
// Selected objects become thin blue outlines; with kDrawOutline every path is filled black.
inline constexpr unsigned kDrawHighlight = 4;

} // namespace rhomba
