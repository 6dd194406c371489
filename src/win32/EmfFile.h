#pragma once

#include <string>

#include <windows.h>

namespace rhomba {

class Document;
class Reporter;

// Writes the drawing as an enhanced metafile at path, with the screen of window (or the whole
// screen for null) as reference device. Tells the reporter when the file cannot be made.
bool WriteEmfFile(Document& document, const std::string& path, HWND window, Reporter& reporter);

// The "EMF-Grafik..." command: asks for the file name, then writes it; cancel does nothing.
void ExportEmfCommand(HWND owner, Document& document, Reporter& reporter);

} // namespace rhomba
