#pragma once

#include <string>
#include <string_view>

namespace rhomba {

class Document;
class Reporter;

// The native text that "Kopieren" puts on the clipboard: header, every selected object in
// selection order (no Layer lines), end line. Empty when nothing is selected, in which case the
// clipboard is left alone.
std::string CopySelectionText(Document& document);

// Clipboard text as the paste decision sees it: 8-bit bytes, and whether they were converted
// from Unicode text (which changes the import question and keeps its preview out).
struct ClipboardText {
    std::string bytes;
    bool converted = false;
};

// Unicode clipboard text: native data (it starts with "Rhomba Version ") is narrowed byte-wise,
// anything else is converted to Windows-1252 and marked as converted.
ClipboardText FromUnicodeClipboard(std::u16string_view text);

// "Einfuegen": native text is parsed into the current layer and selected; any other text is
// offered as a group of text objects, one per line, after asking through reporter. Returns
// true when something was parsed into the drawing. Running out of memory is reported
// ("Nicht genügend Speicher (%d Bytes)." with the size of the text) and leaves the drawing and
// its selection as they were.
bool PasteText(Document& document, const ClipboardText& text, Reporter& reporter);

// The native text that the plain-text import builds, asking reporter its questions; empty when
// the first question is answered with no.
std::string BuildTextImport(const ClipboardText& text, Reporter& reporter);

} // namespace rhomba
