#pragma once

// Kept free of <windows.h> so that portable callers (rhomba-cli) can use it on Windows.
#include <string>

namespace rhomba {

class Document;
class Reporter;

// Writes the drawing as an enhanced metafile with the screen as reference device; false (after
// telling the reporter) when the file cannot be made.
bool ExportEmfFile(Document& document, const std::string& path, Reporter& reporter);

} // namespace rhomba
