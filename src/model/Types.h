#pragma once

#include <array>
#include <cstdint>

namespace rhomba {

// A 24-bit Windows colour: red in the low byte, blue in the high byte.
using ColorRef = std::uint32_t;

// One byte per path point: the low three bits are the Windows PolyDraw point types.
using NodeType = std::uint8_t;

namespace node {
inline constexpr NodeType kMoveTo = 6;       // starts a figure
inline constexpr NodeType kLineTo = 2;
inline constexpr NodeType kBezierTo = 4;     // always in runs of three: two controls, the end
inline constexpr NodeType kCloseFigure = 1;  // on a line or Bezier end point
inline constexpr NodeType kKindMask = 6;
inline constexpr NodeType kShowHandles = 0x40;
inline constexpr NodeType kSelected = 0x80;

constexpr bool IsMoveTo(NodeType t) { return (t & kKindMask) == kMoveTo; }
constexpr bool IsLineTo(NodeType t) { return (t & kKindMask) == kLineTo; }
constexpr bool IsBezier(NodeType t) { return (t & kKindMask) == kBezierTo; }
constexpr bool IsSelected(NodeType t) { return (t & kSelected) != 0; }
// The byte with its kind bits replaced, the others kept.
constexpr NodeType WithKind(NodeType t, NodeType kind) {
    return static_cast<NodeType>((t & ~kKindMask) | kind);
}
} // namespace node

// Up to four (dash, gap) pairs in pen-width units; a pair with a 0 ends the list.
using DashDot = std::array<std::uint8_t, 8>;

// The kind codes that GetKind answers; 1 to 4 are leaves, 14 and up are containers.
enum class ObjectKind : int {
    Graphic = 0,
    Path = 1,
    Text = 2,
    Bitmap = 3,
    Hotspot = 4,
    Group = 14,
    Layer = 15,
    Document = 16,
};

constexpr bool IsLeafKind(ObjectKind kind) {
    return kind >= ObjectKind::Path && kind <= ObjectKind::Hotspot;
}
constexpr bool IsContainerKind(ObjectKind kind) { return kind >= ObjectKind::Group; }

// In style words (stroke, fill) bit 24 says "on"; the low 24 bits are the colour.
inline constexpr std::uint32_t kStyleOn = 0x1000000;
inline constexpr std::uint32_t kColourMask = 0xFFFFFF;

constexpr std::uint32_t WithColour(std::uint32_t word, ColorRef color) {
    return (word & ~kColourMask) | (color & kColourMask);
}
constexpr std::uint32_t WithSwitch(std::uint32_t word, bool on) {
    return on ? (word | kStyleOn) : (word & ~kStyleOn);
}

} // namespace rhomba
