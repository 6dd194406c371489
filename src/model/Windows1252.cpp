#include "model/Windows1252.h"

namespace rhomba {

namespace {

// The code points of 0x80 to 0x9F; the five unassigned bytes keep their own value.
constexpr char16_t kHighRow[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char16_t FromCp1252(unsigned char c) {
    if (c >= 0x80 && c < 0xA0) return kHighRow[c - 0x80];
    return c;
}

} // namespace

std::u16string Cp1252ToUtf16(std::string_view bytes) {
    std::u16string out;
    out.reserve(bytes.size());
    for (char c : bytes) out.push_back(FromCp1252(static_cast<unsigned char>(c)));
    return out;
}

void AppendCp1252AsUtf8(std::string& out, char byte) {
    const char16_t u = FromCp1252(static_cast<unsigned char>(byte));
    if (u < 0x80) {
        out.push_back(static_cast<char>(u));
    } else if (u < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (u >> 6)));
        out.push_back(static_cast<char>(0x80 | (u & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xE0 | (u >> 12)));
        out.push_back(static_cast<char>(0x80 | ((u >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (u & 0x3F)));
    }
}

std::string Cp1252ToUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() * 2);
    for (char c : bytes) AppendCp1252AsUtf8(out, c);
    return out;
}

std::string ToWindows1252(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            out.push_back(static_cast<char>(c));
            continue;
        }
        // The five unassigned bytes are no characters of the code page: "?" for them too.
        char mapped = '?';
        for (int k = 0; k < 32; ++k) {
            if (kHighRow[k] == c && c >= 0x100) mapped = static_cast<char>(0x80 + k);
        }
        // A surrogate pair is one character: one "?" for both halves.
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
            text[i + 1] <= 0xDFFF) {
            ++i;
        }
        out.push_back(mapped);
    }
    return out;
}

} // namespace rhomba
