#pragma once

#include <string>

namespace rhomba {

// The program's Windows-1252 bytes as the wide text the windows show, and back; characters
// without a place in the code page come back as "?".
std::wstring Wide(const std::string& bytes);
std::string Narrow(const std::wstring& text);

} // namespace rhomba
