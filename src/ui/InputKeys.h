#pragma once

namespace rhomba {

// The key-state flags that come with every mouse message, with the platform's values.
inline constexpr unsigned kKeyLeftButton = 0x01;
inline constexpr unsigned kKeyRightButton = 0x02;
inline constexpr unsigned kKeyShift = 0x04;
inline constexpr unsigned kKeyControl = 0x08;

// The virtual keys the canvas tools answer.
inline constexpr int kVirtualKeyEscape = 0x1B;
inline constexpr int kVirtualKeySpace = 0x20;
inline constexpr int kVirtualKeyDelete = 0x2E;

} // namespace rhomba
