#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace rhomba {

// Reads the longest leading decimal number of text (leading blanks, optional sign, digits,
// decimal point, optional exponent) the way strtod does, but never hex, "inf" or "nan".
// Stores in end the offset just past the number (0 when there is none) and returns the value
// (0 when there is none; out-of-range values become +-HUGE_VAL or 0 as with strtod).
double ReadLeadingNumber(std::string_view text, std::size_t& end);

// The bytes printf("%g", value) gives, without depending on the C locale.
std::string FormatG(double value);

// Appends FormatG(value) to out; the hot path of the writers.
void AppendG(std::string& out, double value);

// A number as ReadLeadingNumber reads it that fills the whole of word; false (value untouched)
// when there is none or something follows it.
bool ReadWholeNumber(std::string_view word, double& value);

// Removes blanks, tabs and line ends from both ends.
std::string_view Trim(std::string_view text);

// The non-empty runs of text between any of the separator characters.
std::vector<std::string_view> SplitWords(std::string_view text, std::string_view separators);

} // namespace rhomba
