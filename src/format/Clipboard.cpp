#include "format/Clipboard.h"

#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/Reporter.h"
#include "model/Windows1252.h"

#include <algorithm>
#include <cstdio>
#include <new>
#include <vector>

namespace rhomba {

std::string CopySelectionText(Document& document) {
    if (document.Selection().empty()) return {};
    NativeWriter writer;
    writer.Header();
    for (GraphicObject* object : document.Selection()) object->SaveNative(writer, false);
    writer.Trailer();
    return writer.Take();
}

ClipboardText FromUnicodeClipboard(std::u16string_view text) {
    static constexpr std::u16string_view kNativeStart = u"Rhomba Version ";
    ClipboardText result;
    if (text.substr(0, kNativeStart.size()) == kNativeStart) {
        // Native data is pure ASCII: the low byte of each unit is the character.
        result.bytes.reserve(text.size());
        for (char16_t c : text) result.bytes.push_back(static_cast<char>(c & 0xFF));
    } else {
        result.bytes = ToWindows1252(text);
        result.converted = true;
    }
    return result;
}

std::string BuildTextImport(const ClipboardText& text, Reporter& reporter) {
    std::string question = "M\xF6" "chten Sie ein automatisch generiertes Textobjekte einf\xFCgen?";
    if (!text.converted) {
        question += "\r\n\r\nInhalt: ";
        question.append(text.bytes, 0, 150);
    }
    if (!reporter.Ask(question)) return {};

    std::string native = "Rhomba\nGroup importierter Text\nFillColor 0\nTextFont n Arial\nTextSize 10\n";
    std::string_view rest = text.bytes;
    for (int number = 0; !rest.empty(); ++number) {
        if (number > 0 && number % 100 == 0) {
            char ask[160];
            std::snprintf(ask, sizeof ask,
                          "Es wurden %d Zeilen f\xFCr den Import vorbereitet.\r\n\r\n"
                          "M\xF6" "chten Sie fortfahren?",
                          number);
            if (!reporter.Ask(ask)) break;
        }
        // Lines end at LF, CR LF or a lone CR, as the reader's do: a CR kept inside a line would
        // end its Text line early and make the rest a line of drawing commands.
        const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
        const std::string_view line = rest.substr(0, end);
        const bool crlf = rest.substr(end, 2) == "\r\n";
        rest.remove_prefix(std::min(rest.size(), end + (crlf ? 2 : 1)));
        if (line.empty()) continue;
        char head[48];
        std::snprintf(head, sizeof head, "Text F %d %d ", 20, 810 - 10 * number);
        native += head;
        for (char c : line) native.push_back(c == '\t' ? ' ' : c);
        native.push_back('\n');
    }
    native += "GroupEnd\nRhombaEnd\n";
    return native;
}

namespace {

// Parses native text into the drawing in place of the selection; when memory runs out the
// drawing and the selection stay as they were and the reporter hears of it.
bool PasteNative(Document& document, std::string_view native, std::size_t size, Reporter& reporter) {
    std::vector<GraphicObject*> selected;
    try {
        selected = document.Selection();
    } catch (const std::bad_alloc&) {
        InformOutOfMemory(reporter, size);
        return false;
    }
    document.ClearSelection();
    if (ParseNative(document, native, true)) return true;
    for (GraphicObject* object : selected) document.AddToSelection(object);
    InformOutOfMemory(reporter, size);
    return false;
}

} // namespace

bool PasteText(Document& document, const ClipboardText& text, Reporter& reporter) {
    if (StartsWithProductWord(text.bytes)) {
        return PasteNative(document, text.bytes, text.bytes.size(), reporter);
    }
    std::string native;
    try {
        native = BuildTextImport(text, reporter);
    } catch (const std::bad_alloc&) {
        InformOutOfMemory(reporter, text.bytes.size());
        return false;
    }
    if (native.empty()) return false;
    return PasteNative(document, native, text.bytes.size(), reporter);
}

} // namespace rhomba
