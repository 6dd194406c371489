#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace rhomba {

// Reads the longest leading decimal number of text (leading blanks, optional sign, digits,
// decimal point, optional exponent) the way strtod does, but never hex, "inf" or "nan".
// Stores in end the offset just past the number (0 when there is none) and returns the value
// (0 when there is none). A number too large for a double (1e400) counts as none: every reader
// takes it as unreadable, never as an infinity.
double ReadLeadingNumber(std::string_view text, std::size_t& end);

// The bytes printf("%g", value) gives, without depending on the C locale.
// Note: zero is always "0", never "-0", and a value that is not finite is written as 0, so that
// no output holds "-0", "inf" or "nan".
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
