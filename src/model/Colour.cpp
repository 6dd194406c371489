#include "model/Colour.h"

namespace rhomba {

ColorRef ReadHexColour(std::string_view text) {
    std::uint32_t rgb = 0;
    for (char c : text) {
        unsigned digit;
        if (c >= '0' && c <= '9') digit = static_cast<unsigned>(c - '0');
        else if (c >= 'a' && c <= 'f') digit = static_cast<unsigned>(c - 'a' + 10);
        else if (c >= 'A' && c <= 'F') digit = static_cast<unsigned>(c - 'A' + 10);
        else break;
        rgb = (rgb << 4) | digit;
    }
    return SwapRedBlue(rgb & kColourMask);
}

} // namespace rhomba
