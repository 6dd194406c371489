#include "model/PointList.h"

#include "geometry/Isometric.h"
#include "geometry/NumberText.h"
#include "model/PathSegments.h"

#include <cmath>
#include <vector>

namespace rhomba {

namespace {

// Millimetres to a thousandth: finer than any screen shows, coarse enough to read.
void AppendMillimetres(std::string& out, double points) {
    double mm = std::round(points / kPointsPerMillimetre * 1000) / 1000;
    if (mm == 0) mm = 0; // no "-0"
    std::string text = FormatG(mm);
    for (char& c : text) {
        if (c == '.') c = ',';
    }
    out += text;
}

// The words of a point list line, separated by blanks, tabs, semicolons or a CR.
std::vector<std::string_view> Words(std::string_view line) { return SplitWords(line, " \t;\r"); }

// A finite number filling the word.
bool ReadNumber(std::string_view word, double& value) {
    double read = 0;
    if (!ReadWholeNumber(word, read) || !std::isfinite(read)) return false;
    value = read;
    return true;
}

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

} // namespace

std::string FormatPointList(const PathObject& path, std::size_t limit) {
    std::string out;
    SegmentCursor cursor(path.Points(), path.Types());
    PathSegment s;
    while (cursor.Next(s)) {
        if (s.kind == SegmentKind::Close) continue;
        const char* kind = s.kind == SegmentKind::Move     ? "M "
                           : s.kind == SegmentKind::Bezier ? "B "
                                                           : "L ";
        for (std::size_t k = 0; k < s.count; ++k) {
            if (s.index + k >= limit) return out;
            out += kind;
            AppendMillimetres(out, s.points[k].x);
            out += ' ';
            AppendMillimetres(out, s.points[k].y);
            if (s.closes && k + 1 == s.count) out += " Z";
            out += "\r\n";
        }
    }
    return out;
}

bool ParsePointList(std::string_view input, NodeRun& out) {
    std::string text(input);
    for (char& c : text) {
        if (c == ',') c = '.';
    }
    NodeRun run;
    int bezierRun = 0; // Bezier points seen in the current run of three
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        const std::vector<std::string_view> words = Words(std::string_view(text).substr(start, end - start));
        start = end + 1;
        if (words.empty()) continue;

        std::size_t w = 0;
        NodeType kind = run.types.empty() ? node::kMoveTo : node::kLineTo;
        double x = 0, y = 0;
        if (!ReadNumber(words[0], x)) {
            if (words[0].size() != 1) return false;
            switch (Upper(words[0][0])) {
            case 'M': kind = node::kMoveTo; break;
            case 'L': kind = node::kLineTo; break;
            case 'B': kind = node::kBezierTo; break;
            default: return false;
            }
            w = 1;
        }
        if (words.size() < w + 2 || !ReadNumber(words[w], x) || !ReadNumber(words[w + 1], y)) return false;
        bool closes = false;
        if (words.size() == w + 3) {
            if (Upper(words[w + 2][0]) != 'Z' || words[w + 2].size() != 1) return false;
            closes = true;
        } else if (words.size() > w + 3) {
            return false;
        }

        // Structure: a move starts the list, curves come in threes after a node, and only a
        // segment end closes a figure.
        if (run.types.empty() && kind != node::kMoveTo) return false;
        if (kind == node::kBezierTo) {
            bezierRun = bezierRun % 3 + 1;
        } else if (bezierRun % 3 != 0) {
            return false;
        } else {
            bezierRun = 0;
        }
        if (closes && (kind == node::kMoveTo || (kind == node::kBezierTo && bezierRun != 3))) return false;
        run.points.push_back({x * kPointsPerMillimetre, y * kPointsPerMillimetre});
        run.types.push_back(static_cast<NodeType>(kind | (closes ? node::kCloseFigure : 0)));
    }
    if (bezierRun % 3 != 0 || run.points.size() < 2) return false;
    out = std::move(run);
    return true;
}

bool ApplyPointList(PathObject& path, std::string_view text) {
    NodeRun run;
    if (!ParsePointList(text, run)) return false;
    path.ClearNodes();
    path.InsertNodes(0, run);
    return true;
}

} // namespace rhomba
