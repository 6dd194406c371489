// What the fuzz targets share: a failed property is reported like a crash, so that libFuzzer
// keeps the input that broke it.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace rhomba::fuzz {

inline void Require(bool holds, const char* property) {
    if (holds) return;
    std::fprintf(stderr, "property broken: %s\n", property);
    std::abort();
}

inline bool HoldsNoInfinityOrNan(std::string_view numbers) {
    return numbers.find("inf") == std::string_view::npos &&
           numbers.find("nan") == std::string_view::npos;
}

} // namespace rhomba::fuzz
