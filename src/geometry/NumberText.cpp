#include "geometry/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace rhomba {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f'; }

// Length of the decimal number starting at text[pos], or 0.
std::size_t ScanNumber(std::string_view text, std::size_t pos) {
    std::size_t i = pos;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    std::size_t digits = 0;
    while (i < text.size() && IsDigit(text[i])) ++i, ++digits;
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && IsDigit(text[i])) ++i, ++digits;
    }
    if (digits == 0) return 0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
        if (j < text.size() && IsDigit(text[j])) {
            while (j < text.size() && IsDigit(text[j])) ++j;
            i = j;
        }
    }
    return i - pos;
}

} // namespace

double ReadLeadingNumber(std::string_view text, std::size_t& end) {
    std::size_t pos = 0;
    while (pos < text.size() && IsBlank(text[pos])) ++pos;
    const std::size_t length = ScanNumber(text, pos);
    if (length == 0) {
        end = 0;
        return 0;
    }
    // strtod on the scanned extent alone: it gives the rounding and underflow behaviour of the
    // C library, and the program never changes the C locale, so '.' is the decimal point.
    const std::string number(text.substr(pos, length));
    const double value = std::strtod(number.c_str(), nullptr);
    if (!std::isfinite(value)) {
        end = 0;
        return 0;
    }
    end = pos + length;
    return value;
}

void AppendG(std::string& out, double value) {
    if (value == 0 || !std::isfinite(value)) {
        out.push_back('0');
        return;
    }
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value,
                                      std::chars_format::general, 6);
    out.append(buffer, result.ptr);
}

std::string FormatG(double value) {
    std::string out;
    AppendG(out, value);
    return out;
}

bool ReadWholeNumber(std::string_view word, double& value) {
    std::size_t end = 0;
    const double read = ReadLeadingNumber(word, end);
    if (end == 0 || end != word.size()) return false;
    value = read;
    return true;
}

std::string_view Trim(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

std::vector<std::string_view> SplitWords(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> words;
    std::size_t start = text.find_first_not_of(separators);
    while (start != std::string_view::npos) {
        const std::size_t end = text.find_first_of(separators, start);
        words.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(separators, end);
    }
    return words;
}

} // namespace rhomba
