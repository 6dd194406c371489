// Load, save and SVG export of a drawing of one million nodes, each timed beside a floor
// program that does only the unavoidable work on the same bytes: reading the file and parsing
// every number with std::from_chars (load), formatting every number as "%g" with
// std::to_chars (save and export). Peak memory of a load is measured in a fresh process.
//
// Usage: bench_native_format [nodes]          the whole report
//        bench_native_format --load FILE      (internal) load once, for the memory figure
#include "export/SvgWriter.h"
#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "model/Reporter.h"
#include "model/TextObject.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

struct QuietReporter : rhomba::Reporter {
    void Inform(std::string_view message) override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(message.size()), message.data());
    }
    bool Ask(std::string_view) override { return true; }
};

// Best of five runs, in seconds: the machine is shared, the best run is the least disturbed.
double Time(const std::function<void()>& work) {
    double best = 1e30;
    for (int run = 0; run < 5; ++run) {
        const auto start = Clock::now();
        work();
        const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
        if (seconds < best) best = seconds;
    }
    return best;
}

// Paths of 50 nodes: a move, then lines and curves, in four styles; every 500th object a text.
void Generate(rhomba::Document& document, std::size_t nodes) {
    unsigned seed = 12345;
    auto next = [&seed] {
        seed = seed * 1103515245u + 12345u;
        return static_cast<double>((seed >> 8) % 6000000) / 10000.0;
    };
    std::size_t made = 0;
    for (std::size_t object = 0; made < nodes; ++object) {
        if (object % 500 == 499) {
            auto text = std::make_unique<rhomba::TextObject>();
            text->SetText("Beschriftung " + std::to_string(object));
            text->SetTextPosition(next(), next());
            text->SetTextSize(object % 1000 == 999 ? 10 : 14);
            document.CurrentLayer().InsertAt(std::move(text), &document, 0,
                                             document.CurrentLayer().ChildCount());
            continue;
        }
        auto path = std::make_unique<rhomba::PathObject>();
        path->ReserveNodes(50);
        path->AddNode({next(), next()}, rhomba::node::kMoveTo);
        while (path->NodeCount() + 3 <= 50) {
            if ((path->NodeCount() / 3) % 2 == 0) {
                path->AddNode({next(), next()}, rhomba::node::kLineTo);
            } else {
                for (int k = 0; k < 3; ++k)
                    path->AddNode({next(), next()}, rhomba::node::kBezierTo);
            }
        }
        const int style = static_cast<int>(object % 4);
        path->SetStrokeColor(style == 0 ? 0x000000 : style == 1 ? 0x0000FF : 0x336699);
        path->SetPenWidth(style == 2 ? 0.5 : 0.25);
        path->SetFill(style != 3);
        path->SetFillColor(style == 1 ? 0xAAAAAA : 0xFFFFFF);
        if (style == 3) path->SetDashDot(rhomba::DashDot{4, 2, 1, 2, 0, 0, 0, 0});
        made += path->NodeCount();
        document.CurrentLayer().InsertAt(std::move(path), &document, 0,
                                         document.CurrentLayer().ChildCount());
    }
}

bool IsNumberStart(const char* p, const char* end) {
    if (*p == '-') ++p;
    return p < end && ((*p >= '0' && *p <= '9') || *p == '.');
}

// Reads the file and parses every number in it: what any loader has to do.
double LoadFloor(const std::string& path, std::size_t& numbers) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    std::fseek(file, 0, SEEK_END);
    const long length = std::ftell(file);
    std::fseek(file, 0, SEEK_SET);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    const std::size_t got = std::fread(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
    bytes.resize(got);
    double sum = 0;
    numbers = 0;
    const char* p = bytes.data();
    const char* end = p + bytes.size();
    while (p < end) {
        const bool boundary = p == bytes.data() || p[-1] == ' ' || p[-1] == '\t';
        if (boundary && IsNumberStart(p, end)) {
            double value = 0;
            const auto result = std::from_chars(p, end, value);
            if (result.ptr != p) {
                sum += value;
                ++numbers;
                p = result.ptr;
                continue;
            }
        }
        ++p;
    }
    return sum;
}

// Formats every coordinate of the drawing as "%g": what any writer has to do.
std::size_t FormatFloor(rhomba::Document& document, std::string& out) {
    out.clear();
    char buffer[32];
    rhomba::Layer& layer = document.LayerAt(0);
    for (std::size_t i = 0; i < layer.ChildCount(); ++i) {
        auto* object = layer.ChildAt(i);
        if (object->GetKind() != rhomba::ObjectKind::Path) continue;
        for (const rhomba::Point2& p : static_cast<rhomba::PathObject*>(object)->Points()) {
            auto r =
                std::to_chars(buffer, buffer + sizeof buffer, p.x, std::chars_format::general, 6);
            out.append(buffer, r.ptr);
            out.push_back('\t');
            r = std::to_chars(buffer, buffer + sizeof buffer, p.y, std::chars_format::general, 6);
            out.append(buffer, r.ptr);
            out.push_back('\n');
        }
    }
    return out.size();
}

// The high-water mark of the process's own memory (VmHWM), in kilobytes. Unlike the rusage
// figure it belongs to the address space made at exec, so nothing of the parent is counted.
long OwnPeakKilobytes() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("VmHWM:", 0) == 0) return std::strtol(line.c_str() + 6, nullptr, 10);
    }
    return -1;
}

long PeakKilobytesOfLoad(const std::string& path) {
    const std::string command = "/proc/" + std::to_string(getpid()) + "/exe --load '" + path + "'";
    std::FILE* child = popen(command.c_str(), "r");
    if (child == nullptr) return -1;
    long kilobytes = -1;
    if (std::fscanf(child, "%ld", &kilobytes) != 1) kilobytes = -1;
    return pclose(child) == 0 ? kilobytes : -1;
}

} // namespace

int main(int argc, char** argv) {
    QuietReporter reporter;
    if (argc == 3 && std::strcmp(argv[1], "--load") == 0) {
        rhomba::Document document;
        if (!rhomba::LoadNativeFile(document, argv[2], reporter)) return 1;
        std::printf("%ld\n", OwnPeakKilobytes());
        return 0;
    }
    const std::size_t nodes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 1000000;

    rhomba::Document document;
    Generate(document, nodes);
    const std::string path = "/tmp/rhomba-bench-" + std::to_string(getpid()) + ".rhomba";

    std::string text;
    const double save = Time([&] { text = rhomba::SaveNativeText(document); });
    std::ofstream(path, std::ios::binary) << text;
    const double fileMb = static_cast<double>(text.size()) / 1e6;

    std::string formatted;
    std::size_t formattedBytes = 0;
    const double formatFloor = Time([&] { formattedBytes = FormatFloor(document, formatted); });

    // A fresh document for every run, so that no run pays for tearing down the one before.
    std::vector<std::unique_ptr<rhomba::Document>> loads;
    const double load = Time([&] {
        loads.push_back(std::make_unique<rhomba::Document>());
        if (!rhomba::LoadNativeFile(*loads.back(), path, reporter)) std::exit(1);
    });
    rhomba::Document& loaded = *loads.back();
    std::size_t numbers = 0;
    volatile double sink = 0;
    const double loadFloor = Time([&] { sink = sink + LoadFloor(path, numbers); });

    std::string svg;
    const double exportSvg = Time([&] { svg = rhomba::BuildSvgDocument(loaded); });
    const double svgMb = static_cast<double>(svg.size()) / 1e6;

    const long peakKb = PeakKilobytesOfLoad(path);
    if (std::getenv("RHOMBA_BENCH_KEEP") == nullptr) std::remove(path.c_str());

    std::printf("drawing: %zu nodes, native file %.1f MB, SVG %.1f MB, %zu numbers\n", nodes,
                fileMb, svgMb, numbers);
    std::printf("load:       %7.3f s  %7.1f MB/s   floor %7.3f s  ratio %.2f\n", load,
                fileMb / load, loadFloor, load / loadFloor);
    std::printf("save:       %7.3f s  %7.1f MB/s   floor %7.3f s  ratio %.2f (floor %.1f MB)\n",
                save, fileMb / save, formatFloor, save / formatFloor, formattedBytes / 1e6);
    std::printf("SVG export: %7.3f s  %7.1f MB/s   floor %7.3f s  ratio %.2f\n", exportSvg,
                svgMb / exportSvg, formatFloor, exportSvg / formatFloor);
    std::printf("peak memory of a load: %.1f MB = %.2f x the file\n", peakKb / 1024.0,
                peakKb / 1024.0 / (fileMb / 1.048576));
    return 0;
}
