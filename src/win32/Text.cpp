#include "win32/Text.h"

#include "model/Windows1252.h"

namespace rhomba {

std::wstring Wide(const std::string& bytes) {
    const std::u16string text = Cp1252ToUtf16(bytes);
    return std::wstring(text.begin(), text.end());
}

std::string Narrow(const std::wstring& text) {
    return ToWindows1252(std::u16string(text.begin(), text.end()));
}

} // namespace rhomba
