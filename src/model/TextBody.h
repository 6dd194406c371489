#pragma once

#include "model/PathObject.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace rhomba {

// What a text needs once its outline is built: the outline path, the text it was built from,
// its width and end point; and the characters, once they no longer fit in place.
struct TextOutlineBox {
    std::string text;
    PathObject outline;
    std::string cache; // empty when the outline is stale
    double width = 0;
    Point2 endPoint;
};

// The characters of a text in 16 bytes: up to 15 held in place, otherwise in the outline box.
// Note: the last byte is the length in place, or kBoxed; in the boxed form the first eight bytes
// hold the box's address.
class TextBody {
public:
    static constexpr std::size_t kInPlace = 15;

    TextBody() = default;
    TextBody(const TextBody&) = delete;
    TextBody& operator=(const TextBody&) = delete;
    ~TextBody() { delete Box(); }

    std::string_view View() const;
    // Writes text in place or into the box; a text longer than kInPlace needs the box first.
    void Assign(std::string_view text);

    TextOutlineBox* Box() const;
    // Moves the characters held in place into a new box; false when there was a box already.
    bool MakeBox();

private:
    static constexpr char kBoxed = static_cast<char>(0xFF);

    alignas(8) std::array<char, 16> bytes_{};
};

} // namespace rhomba
