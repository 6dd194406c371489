// libFuzzer target for "Einfuegen": the paste decision, the Unicode conversion and the text
// import. The first byte chooses Unicode or 8-bit clipboard text and answers the questions;
// the rest is the clipboard's content. Foreign text must become one group of texts and
// nothing else, whatever it holds.
#include "FuzzCheck.h"

#include "format/Clipboard.h"
#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/Reporter.h"
#include "model/TextObject.h"

#include <cstdint>
#include <string>

namespace rhomba::fuzz {
namespace {

// Answers the questions with the bits of one byte, low bit first, and yes after the eighth.
struct BitReporter : Reporter {
    explicit BitReporter(unsigned bits) : bits(bits) {}
    void Inform(std::string_view) override {}
    bool Ask(std::string_view) override {
        const bool yes = asked >= 8 || ((bits >> asked) & 1) != 0;
        ++asked;
        return yes;
    }
    unsigned bits;
    int asked = 0;
};

void RequireOnlyImportedTexts(Document& document) {
    Layer& layer = document.CurrentLayer();
    Require(layer.ChildCount() == 1, "an import adds one group");
    const auto& group = static_cast<const Group&>(*layer.ChildAt(0));
    Require(group.GetKind() == ObjectKind::Group && group.GetName() == "importierter Text",
            "the import's group");
    for (std::size_t i = 0; i < group.ChildCount(); ++i) {
        const GraphicObject* child = group.ChildAt(i);
        Require(child->GetKind() == ObjectKind::Text, "an import holds texts only");
        const std::string_view text = static_cast<const TextObject*>(child)->GetText();
        Require(!text.empty() && text.find_first_of("\t\r\n") == std::string_view::npos,
                "an imported line is one text without tabs or line ends");
    }
}

} // namespace
} // namespace rhomba::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rhomba;
    using namespace rhomba::fuzz;
    if (size == 0) return 0;
    const unsigned choice = data[0];
    const std::string content(reinterpret_cast<const char*>(data + 1), size - 1);

    ClipboardText text;
    if (choice & 1) {
        // Unicode clipboard text: the content's bytes taken in pairs, little-endian.
        std::u16string units;
        for (std::size_t i = 0; i + 1 < content.size(); i += 2) {
            units.push_back(static_cast<char16_t>(static_cast<std::uint8_t>(content[i]) |
                                                  static_cast<std::uint8_t>(content[i + 1]) << 8));
        }
        text = FromUnicodeClipboard(units);
    } else {
        text = {content, false};
    }

    Document document;
    BitReporter reporter(choice >> 1);
    const bool native = StartsWithProductWord(text.bytes);
    const bool pasted = PasteText(document, text, reporter);
    if (native) {
        Require(pasted && reporter.asked == 0, "native data is pasted without a question");
    } else if (pasted) {
        RequireOnlyImportedTexts(document);
    } else {
        Require(document.CurrentLayer().ChildCount() == 0, "an import refused adds nothing");
    }
    CopySelectionText(document);
    SaveNativeText(document);
    return 0;
}
