#pragma once

#include "geometry/Matrix2D.h"
#include "model/PathObject.h"
#include "model/Types.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace rhomba {

// What the texts of a drawing mostly have in common: font, size, style, paint and the glyph
// transform. The defaults are those of a new text: Arial 12, solid black letters.
struct TextLook {
    std::string font = "Arial";
    double size = 12.0;
    Matrix2D transform; // e and f stay 0
    std::uint32_t style = 0;
    std::uint32_t stroke = 0;      // stroke word: off, black
    std::uint32_t fill = kStyleOn; // fill word: on, black
    double penWidth = PathObject::kDefaultPenWidth;
    DashDot dash{};
};

// Bit for bit, so that -0 and 0 stay apart and a look holding NaN still finds itself.
bool SameLook(const TextLook& a, const TextLook& b);

// A text's reference to its look. Equal looks are held once in a table that counts their users
// and forgets a look when its last user lets go; the reference itself is a 4-byte index.
// Note: one thread uses the table, so the counts are plain integers.
class SharedLook {
public:
    SharedLook();
    SharedLook(const SharedLook&) = delete;
    SharedLook& operator=(const SharedLook&) = delete;
    ~SharedLook();

    // Stays valid while the look is held (the table never moves a look).
    const TextLook& Get() const;
    // Refers to the look equal to next, held once with every other user of it.
    void Change(const TextLook& next);

    // How many different looks are held right now.
    static std::size_t HeldCount();

private:
    std::uint32_t index_;
};

} // namespace rhomba
