// libFuzzer target for the native reader: any bytes must load without a crash, hang or
// sanitizer report; what loads must save, export and draw without "inf" or "nan", and loading
// a save and saving it again must give the same bytes.
#include "FuzzCheck.h"

#include "export/SvgWriter.h"
#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "format/Rounding.h"
#include "geometry/NumberText.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "model/TextObject.h"
#include "render/DrawContext.h"
#include "render/RecordingDevice.h"

#include <cstdint>
#include <string>
#include <vector>

namespace rhomba::fuzz {
namespace {

std::string Resave(const std::string& text) {
    Document document;
    ParseNative(document, text, false);
    return SaveNativeText(document);
}

// The value that value, written rounded to decimals, reads back as.
double Reread(double value, int decimals) {
    std::string text;
    AppendRounded(text, value, decimals);
    std::size_t end = 0;
    return ReadLeadingNumber(text, end);
}

bool StrokeStyleChangesOnSave(const GraphicObject& object) {
    if (!object.HasStroke()) return false;
    // A pen width compared raw but written at 2 decimals.
    if (Reread(object.GetPenWidth(), 2) != object.GetPenWidth()) return true;
    // A dash pattern is written up to its first pair with a 0: entries after it are lost.
    DashDot dash{};
    object.GetDashDot(dash);
    for (std::size_t i = static_cast<std::size_t>(CountDashEntries(dash)); i < dash.size(); ++i) {
        if (dash[i] != 0) return true;
    }
    return false;
}

bool TextStyleChangesOnSave(const TextObject& text) {
    // Nothing written at all: a group or layer that holds only this text looks empty.
    if (text.GetText().empty()) return true;
    // The size is compared at 2 decimals but written at 1.
    if (Reread(text.GetSize(), 1) != RoundDecimals(text.GetSize(), 2)) return true;
    // The transform is compared at 4 decimals but written with six digits.
    const Matrix2D& m = text.GetTextTransform();
    for (double v : {m.a, m.b, m.c, m.d}) {
        if (Reread(v, 4) != RoundDecimals(v, 4)) return true;
    }
    return false;
}

// True when the drawing holds something that a rule of the format changes on its first save,
// so that the save of the reloaded drawing may differ from the first.
bool ChangesOnSave(Document& document) {
    std::vector<const Group*> work{&document};
    while (!work.empty()) {
        const Group* group = work.back();
        work.pop_back();
        // A group without a leaf below it is not written; if it kept its layer from being
        // empty, the next Layer line renames that layer instead of starting one.
        if (group->GetKind() == ObjectKind::Group && group->CountObjects() == 0) return true;
        for (std::size_t i = 0; i < group->ChildCount(); ++i) {
            const GraphicObject* child = group->ChildAt(i);
            if (child == nullptr) continue;
            if (IsContainer(*child)) {
                work.push_back(static_cast<const Group*>(child));
                continue;
            }
            if (StrokeStyleChangesOnSave(*child)) return true;
            if (child->GetKind() == ObjectKind::Text &&
                TextStyleChangesOnSave(static_cast<const TextObject&>(*child))) {
                return true;
            }
        }
    }
    return false;
}

// The numbers of a native text: every line but names, fonts and text contents.
void RequireNumbersOnly(const std::string& native) {
    std::size_t start = 0;
    while (start < native.size()) {
        std::size_t end = native.find('\n', start);
        if (end == std::string::npos) end = native.size();
        const std::string_view line(native.data() + start, end - start);
        start = end + 1;
        const std::string_view keyword = line.substr(0, line.find_first_of(" \t"));
        std::string_view numbers;
        if (keyword == "M" || keyword == "L" || keyword == "C" || keyword == "PenWidth" ||
            keyword == "TextSize" || keyword == "TextTransform") {
            numbers = line;
        } else if (keyword == "Text") {
            // "Text F x y content": the two numbers after the letter.
            std::size_t at = 0;
            for (int blanks = 0; blanks < 4 && at != std::string_view::npos; ++blanks) {
                at = line.find(' ', at + 1);
            }
            numbers = line.substr(0, at);
        }
        Require(HoldsNoInfinityOrNan(numbers), "native numbers are finite");
    }
}

void RequireSvgNumbersOnly(const std::string& svg) {
    std::size_t start = 0;
    while (start < svg.size()) {
        std::size_t end = svg.find('\n', start);
        if (end == std::string::npos) end = svg.size();
        std::string_view line(svg.data() + start, end - start);
        start = end + 1;
        // Text lines carry names and contents after their transform; paths only numbers.
        if (line.find("<text") != std::string_view::npos) line = line.substr(0, line.find("style="));
        if (line.find("<desc>") != std::string_view::npos) continue;
        Require(HoldsNoInfinityOrNan(line), "SVG numbers are finite");
    }
}

void Draw(Document& document) {
    RecordingDevice device;
    document.DrawEdit(device, DrawContext{Matrix2D{1, 0, 0, -1, 0, 842}, 1}, 0);
    document.Render(device, Matrix2D{20, 0, 0, -20, 20, 20});
}

} // namespace
} // namespace rhomba::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rhomba;
    using namespace rhomba::fuzz;
    const std::string input(reinterpret_cast<const char*>(data), size);

    Document document;
    ParseNative(document, input, false);
    const std::string first = SaveNativeText(document);
    RequireNumbersOnly(first);
    RequireSvgNumbersOnly(BuildSvgDocument(document));
    Draw(document);

    const std::string second = Resave(first);
    if (second == first) return 0;
    Require(ChangesOnSave(document), "a saved drawing loads and saves to the same bytes");
    Require(Resave(second) == second, "the second save is the last that changes");
    return 0;
}
