#include "format/Clipboard.h"

#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/Reporter.h"

#include <cstdio>

namespace rhomba {

std::string CopySelectionText(Document& document) {
    if (document.Selection().empty()) return {};
    NativeWriter writer;
    writer.Header();
    for (GraphicObject* object : document.Selection()) object->SaveNative(writer, false);
    writer.Trailer();
    return writer.Take();
}

std::string ToWindows1252(std::u16string_view text) {
    // The code page's 0x80 to 0x9F row; 0 marks its five holes.
    static constexpr char16_t kHighRow[32] = {
        0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
        0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            out.push_back(static_cast<char>(c));
            continue;
        }
        char mapped = '?';
        for (int k = 0; k < 32; ++k) {
            if (kHighRow[k] != 0 && kHighRow[k] == c) mapped = static_cast<char>(0x80 + k);
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
        const std::size_t newline = rest.find('\n');
        std::string_view line = rest.substr(0, newline);
        rest = newline == std::string_view::npos ? std::string_view{} : rest.substr(newline + 1);
        while (!line.empty() && line.back() == '\r') line.remove_suffix(1);
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

bool PasteText(Document& document, const ClipboardText& text, Reporter& reporter) {
    if (StartsWithProductWord(text.bytes)) {
        document.ClearSelection();
        ParseNative(document, text.bytes, true);
        return true;
    }
    const std::string native = BuildTextImport(text, reporter);
    if (native.empty()) return false;
    document.ClearSelection();
    ParseNative(document, native, true);
    return true;
}

} // namespace rhomba
