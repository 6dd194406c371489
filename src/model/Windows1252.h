#pragma once

#include <string>
#include <string_view>

namespace rhomba {

// Document bytes (Windows-1252) as UTF-16, the way the system's ANSI conversion reads them.
std::u16string Cp1252ToUtf16(std::string_view bytes);

// Windows-1252 bytes as UTF-8, for the platform font lookups that want it.
std::string Cp1252ToUtf8(std::string_view bytes);
// One Windows-1252 byte appended to out as UTF-8.
void AppendCp1252AsUtf8(std::string& out, char byte);

// UTF-16 to Windows-1252; characters without a place in the code page become "?".
std::string ToWindows1252(std::u16string_view text);

} // namespace rhomba
