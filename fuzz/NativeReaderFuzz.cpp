// libFuzzer target for the native reader: any bytes must load (or be refused) without a crash,
// hang or sanitizer report; what loads must save, export and load again, and saving what was
// read back from a save must settle on one text.
#include "export/SvgWriter.h"
#include "format/Clipboard.h"
#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/Reporter.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

struct YesReporter : rhomba::Reporter {
    void Inform(std::string_view) override {}
    bool Ask(std::string_view) override { return true; }
};

std::string Resave(const std::string& text) {
    rhomba::Document document;
    rhomba::ParseNative(document, text, false);
    return rhomba::SaveNativeText(document);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);

    rhomba::Document document;
    YesReporter reporter;
    // The paste path covers the reader with its paste flag and, for foreign text, the import.
    rhomba::PasteText(document, {input, false}, reporter);
    const std::string first = rhomba::SaveNativeText(document);
    rhomba::BuildSvgDocument(document);
    rhomba::CopySelectionText(document);

    const std::string second = Resave(first);
    const std::string third = Resave(second);
    if (second != third) std::abort();
    return 0;
}
