// The figures of the hardening work, each beside its target: the memory of ten million short
// texts as the native reader builds them, a million-character text to SVG, bare CR against
// CR LF line ends, and select all plus delete of 200,000 paths.
#include "export/SvgWriter.h"
#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/TextObject.h"
#include "text/GlyphSource.h"
#ifdef RHOMBA_HAVE_FREETYPE
#include "freetype/FreeTypeGlyphSource.h"
#endif

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>

using namespace rhomba;

namespace {

double Seconds(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The fastest of a few runs: the machine is shared, and the others' work only adds time.
template <class Run>
double Fastest(int runs, Run run) {
    double best = run();
    for (int i = 1; i < runs; ++i) best = std::min(best, run());
    return best;
}

// Bytes the heap hands out right now, chunk overhead and mapped blocks included.
double HeapBytes() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// The native text of a drawing with the given number of objects, made by the writer.
template <class MakeObject>
std::string NativeDrawing(std::size_t count, MakeObject make) {
    Document document;
    Layer& layer = document.CurrentLayer();
    for (std::size_t i = 0; i < count; ++i) {
        layer.InsertAt(make(i), &document, 0, layer.ChildCount());
    }
    return SaveNativeText(document);
}

std::unique_ptr<GraphicObject> ShortText(std::size_t i) {
    auto text = std::make_unique<TextObject>();
    text->SetText("Text " + std::to_string(1000000 + i % 9000000));
    text->SetTextPosition(static_cast<double>(i % 500), static_cast<double>(i % 700));
    return text;
}

std::unique_ptr<GraphicObject> Triangle(std::size_t i) {
    auto path = std::make_unique<PathObject>();
    const double x = static_cast<double>(i % 400) + 0.25;
    path->AddNode({x, 10}, node::kMoveTo);
    path->AddNode({x + 20.5, 10}, node::kLineTo);
    path->AddNode({x + 10, 30.75}, node::kLineTo | node::kCloseFigure);
    return path;
}

bool Report(const char* what, double figure, const char* unit, double target) {
    const bool met = figure < target;
    std::printf("%-44s %12.3f %-6s target < %g %s  %s\n", what, figure, unit, target, unit,
                met ? "met" : "MISSED");
    return met;
}

bool MeasureTextMemory() {
    constexpr std::size_t kTexts = 10'000'000;
    const std::string file = NativeDrawing(kTexts, ShortText);
    std::printf("sizeof(TextObject) = %zu\n", sizeof(TextObject));
    Document document;
    const double before = HeapBytes();
    const auto start = std::chrono::steady_clock::now();
    if (!ParseNative(document, file, false)) return false;
    const double seconds = Seconds(start);
    const double total = HeapBytes() - before;
    std::printf("(10,000,000 texts read in %.1f s)\n", seconds);
    const bool perText = Report("(a) heap per short text", total / kTexts, "bytes", 100);
    return Report("(a) heap for 10,000,000 short texts", total / 1e9, "GB", 1) && perText;
}

bool MeasureLongTextSvg() {
#ifdef RHOMBA_HAVE_FREETYPE
    FreeTypeGlyphSource glyphs;
    InstallGlyphSource(&glyphs, true);
    std::string content(1'000'000, ' ');
    for (std::size_t i = 0; i < content.size(); ++i) content[i] = "Rhomba zeichnet "[i % 16];
    std::size_t bytes = 0, nodes = 0;
    const double seconds = Fastest(2, [&] {
        Document document;
        auto owned = std::make_unique<TextObject>();
        TextObject* text = owned.get();
        text->SetText(content);
        document.CurrentLayer().InsertAt(std::move(owned), &document, 0, 0);
        const auto start = std::chrono::steady_clock::now();
        bytes = BuildSvgDocument(document).size();
        const double taken = Seconds(start);
        nodes = text->Outline().NodeCount();
        return taken;
    });
    InstallGlyphSource(nullptr);
    std::printf("(%zu bytes of SVG, %zu outline nodes)\n", bytes, nodes);
    return Report("(b) 1,000,000-character text to SVG", seconds, "s", 2);
#else
    std::puts("(b) needs the FreeType glyph source");
    return true;
#endif
}

double ParseSeconds(const std::string& file) {
    Document document;
    const auto start = std::chrono::steady_clock::now();
    ParseNative(document, file, false);
    return Seconds(start);
}

bool MeasureLineEnds() {
    constexpr std::size_t kSample = 1000;
    const std::size_t sampleBytes = NativeDrawing(kSample, Triangle).size();
    const std::string crlf = NativeDrawing(8'000'000 * kSample / sampleBytes, Triangle);
    std::string cr;
    cr.reserve(crlf.size());
    for (char c : crlf) {
        if (c != '\n') cr.push_back(c);
    }
    const double withCrLf = Fastest(3, [&] { return ParseSeconds(crlf); });
    const double withCr = Fastest(3, [&] { return ParseSeconds(cr); });
    std::printf("(c) %.1f MB with CR LF: %.3f s, %.1f MB with bare CR: %.3f s\n", crlf.size() / 1e6,
                withCrLf, cr.size() / 1e6, withCr);
    return Report("(c) bare CR against CR LF, time ratio", withCr / withCrLf, "x", 1.5);
}

bool MeasureDeleteAll() {
    bool emptied = true;
    const double seconds = Fastest(3, [&emptied] {
        Document document;
        Layer& layer = document.CurrentLayer();
        for (std::size_t i = 0; i < 200'000; ++i) {
            layer.InsertAt(Triangle(i), &document, 0, layer.ChildCount());
        }
        const auto start = std::chrono::steady_clock::now();
        document.ClearSelection();
        for (std::size_t i = 0; i < layer.ChildCount(); ++i) {
            document.AddToSelection(layer.ChildAt(i));
        }
        document.DeleteSelection();
        const double taken = Seconds(start);
        emptied = emptied && layer.ChildCount() == 0;
        return taken;
    });
    return Report("(d) select all + delete of 200,000 paths", seconds, "s", 0.1) && emptied;
}

} // namespace

// With letters as arguments (a, b, c, d) only those figures are measured.
int main(int argc, char** argv) {
    const std::string chosen = argc > 1 ? argv[1] : "abcd";
    // The machine is shared: the load beside the times says how far to trust them.
    if (std::FILE* load = std::fopen("/proc/loadavg", "r")) {
        char line[64] = "";
        if (std::fgets(line, sizeof line, load) != nullptr) std::printf("load average: %s", line);
        std::fclose(load);
    }
    bool met = true;
    if (chosen.find('a') != std::string::npos) met = MeasureTextMemory() && met;
    if (chosen.find('b') != std::string::npos) met = MeasureLongTextSvg() && met;
    if (chosen.find('c') != std::string::npos) met = MeasureLineEnds() && met;
    if (chosen.find('d') != std::string::npos) met = MeasureDeleteAll() && met;
    return met ? 0 : 1;
}
