// libFuzzer target for typed lengths: any text reads as a finite number of millimetres, and the
// text a dialog shows for it reads back to the same text.
#include "FuzzCheck.h"

#include "geometry/Length.h"

#include <cmath>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rhomba;
    using namespace rhomba::fuzz;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const double millimetres = ParseLength(text);
    Require(std::isfinite(millimetres), "a length is a number");
    const std::string shown = FormatLength(millimetres);
    Require(HoldsNoInfinityOrNan(shown), "a length shows as a number");
    Require(FormatLength(ParseLength(shown)) == shown, "a shown length reads back to itself");
    return 0;
}
