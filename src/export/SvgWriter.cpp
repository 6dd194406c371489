#include "export/SvgWriter.h"

#include "format/FileWrite.h"
#include "format/Rounding.h"
#include "geometry/NumberText.h"
#include "model/Colour.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
#include "model/PathSegments.h"
#include "model/Reporter.h"
#include "model/Windows1252.h"

#include <cstdio>
#include <new>
#include <vector>

namespace rhomba {

SvgWriter::SvgWriter() { out_.reserve(100000); }

void SvgWriter::Indent(int depth) {
    if (depth < 0) depth = 0;
    if (depth > kMaxIndent) depth = kMaxIndent;
    out_.append(static_cast<std::size_t>(depth), '\t');
}

void SvgWriter::Number(double value) { AppendG(out_, value); }

void SvgWriter::Rounded(double value, int decimals) { AppendRounded(out_, value, decimals); }

void SvgWriter::Attribute(std::string_view name, double value, std::string_view unit) {
    out_.push_back(' ');
    out_.append(name);
    out_.append("=\"");
    AppendG(out_, value);
    out_.append(unit);
    out_.push_back('"');
}

void SvgWriter::Colour(ColorRef color) {
    char text[16];
    const int n =
        std::snprintf(text, sizeof text, "#%06x", static_cast<unsigned>(SwapRedBlue(color)));
    out_.append(text, static_cast<std::size_t>(n));
}

void SvgWriter::StrokeStyle(bool stroked, ColorRef color, double penWidth, const DashDot& dash,
                            int dashCount, double divisor) {
    out_.append("stroke: ");
    if (!stroked) {
        out_.append("none; ");
        return;
    }
    Colour(color);
    out_.append("; stroke-width: ");
    Rounded(penWidth / divisor, 3);
    out_.append("; ");
    if (dashCount != 0) {
        if (dashCount > 8) dashCount = 8;
        out_.append("stroke-dasharray:");
        for (std::size_t i = 0; i < static_cast<std::size_t>(dashCount); i += 2) {
            out_.push_back(' ');
            Rounded(dash[i] / divisor, 3);
            out_.push_back(' ');
            Rounded(dash[i + 1] / divisor, 3);
        }
        out_.append("; ");
    }
}

void SvgWriter::FillStyle(bool filled, ColorRef color) {
    out_.append("fill: ");
    if (!filled) {
        out_.append("none; ");
        return;
    }
    Colour(color);
    out_.append("; ");
}

void SvgWriter::TrimTrailingBlanks() {
    while (!out_.empty() && out_.back() == ' ') out_.pop_back();
}

void SvgWriter::Escaped(std::string_view text) { Xml(text, false); }

void SvgWriter::EscapedAttribute(std::string_view text) { Xml(text, true); }

void SvgWriter::Xml(std::string_view text, bool attribute) {
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '&') {
            out_.append("&amp;");
        } else if (c == '<') {
            out_.append("&lt;");
        } else if (c == '>' && !attribute) {
            out_.append("&gt;");
        } else if (c == '"' && attribute) {
            out_.append("&quot;");
        } else if (byte >= 0x80) {
            AppendCp1252AsUtf8(out_, c);
        } else if (byte >= 0x20 || c == '\t' || c == '\n' || c == '\r') {
            out_.push_back(c);
        }
    }
}

std::uint32_t SvgWriter::UniqueNumber(const GraphicObject&) { return ++nextUnique_; }

namespace {

// Writes the d attribute: a command letter only where the kind changes, M and L points rounded to
// 4 decimals, curve points unrounded, and a close as "z" before the next move or at the end.
class SvgPathSink final : public PathSink {
public:
    SvgPathSink(SvgWriter& out, const Matrix2D& matrix) : out_(out), matrix_(matrix) {}

    void MoveTo(Point2 p) override {
        if (kind_ != Kind::None) out_.Append(closed_ ? " z " : " ");
        out_.Append("M ");
        Rounded(p);
        Switch(Kind::Move);
    }
    void LineTo(Point2 p) override {
        if (kind_ != Kind::Line) out_.Append(" L");
        out_.Append(' ');
        Rounded(p);
        Switch(Kind::Line);
    }
    void CurveTo(Point2 c1, Point2 c2, Point2 end) override {
        if (kind_ != Kind::Curve) out_.Append(" C");
        for (Point2 p : {c1, c2, end}) {
            const Point2 q = matrix_.TransformPoint(p);
            out_.Append(' ');
            out_.Number(q.x);
            out_.Append(' ');
            out_.Number(q.y);
        }
        Switch(Kind::Curve);
    }
    void CloseFigure() override { closed_ = true; }
    void Finish() {
        if (closed_) out_.Append(" z");
    }

private:
    enum class Kind { None, Move, Line, Curve };
    void Rounded(Point2 p) {
        const Point2 q = matrix_.TransformPoint(p);
        out_.Rounded(q.x, 4);
        out_.Append(' ');
        out_.Rounded(q.y, 4);
    }
    void Switch(Kind kind) {
        kind_ = kind;
        closed_ = false;
    }
    SvgWriter& out_;
    const Matrix2D& matrix_;
    Kind kind_ = Kind::None;
    bool closed_ = false;
};

} // namespace

void PathObject::ExportSvg(SvgWriter& out, const Matrix2D& matrix, int depth) {
    const std::size_t count = NodeCount();
    if (count < 2) return;
    out.Indent(depth);
    out.Append("<path style=\"");
    out.StrokeStyle(HasStroke(), GetStrokeColor(), GetPenWidth(), dash_, GetDashCount(), 1.0);
    out.FillStyle(HasFill(), GetFillColor());
    out.TrimTrailingBlanks();
    out.Append("\" d=\"");
    SvgPathSink sink(out, matrix);
    WalkPath(*this, sink);
    sink.Finish();
    out.Append("\"/>\r\n");
}

void Hotspot::ExportSvg(SvgWriter&, const Matrix2D&, int) {}

void Group::ExportSvg(SvgWriter& out, const Matrix2D& matrix, int depth) {
    // Nested groups are walked with a work list so that no depth of nesting can exhaust the
    // stack; each frame remembers the depth its children are written at.
    struct Frame {
        Group* group;
        std::size_t next;
        int depth;
    };
    std::vector<Frame> stack{{this, 0, depth}};
    while (!stack.empty()) {
        Frame& frame = stack.back();
        if (frame.next >= frame.group->ChildCount()) {
            const int childDepth = frame.depth;
            stack.pop_back();
            if (!stack.empty()) {
                out.Indent(childDepth - 1);
                out.Append("</g>\r\n");
            }
            continue;
        }
        GraphicObject* child = frame.group->ChildAt(frame.next++);
        if (child == nullptr) continue;
        const ObjectKind kind = child->GetKind();
        if (kind == ObjectKind::Layer || kind == ObjectKind::Group) {
            const int at = frame.depth;
            char text[32];
            std::snprintf(text, sizeof text, "%s_%x", kind == ObjectKind::Layer ? "Layer" : "Group",
                          static_cast<unsigned>(out.UniqueNumber(*child)));
            out.Indent(at);
            out.Append("<g id=\"");
            out.Append(text);
            out.Append("\">\r\n");
            stack.push_back({static_cast<Group*>(child), 0, at + 1});
        } else {
            child->ExportSvg(out, matrix, frame.depth);
        }
    }
}

void WriteSvgDocument(Document& document, SvgWriter& out) {
    Rect2 box;
    // An empty drawing has no box; it gets a zero-sized picture rather than the negative size
    // that the empty-drawing mark would give, which renderers refuse.
    if (!document.GetBounds(box, false) || box.left > box.right || box.bottom > box.top) {
        box = {0, 0, 0, 0};
    }
    const Matrix2D matrix{1, 0, 0, -1, -box.left, box.top};
    out.Append("<?xml version=\"1.0\"?>\r\n");
    out.Append("<!DOCTYPE svg>\r\n");
    out.Append("<svg xmlns=\"http://www.w3.org/2000/svg\"");
    out.Attribute("width", (box.right - box.left) * 1.34);
    out.Attribute("height", (box.top - box.bottom) * 1.34);
    out.Append(">\r\n");
    out.Append("<desc>SVG-Datei von Rhomba. Wenn SVG halb so kompliziert waere, waere es doppel so "
               "verbreitet.</desc>\r\n");
    out.Append("<g transform=\"scale(1.333333)\">");
    out.Append("\t<!-- Pixel zu Punkt skalieren, der Wert 1.333333 (96/72) kann bei Bedarf "
               "angepasst werden -->\r\n");
    document.Group::ExportSvg(out, matrix, 1);
    out.Append("</g>\r\n");
    out.Append("</svg>");
}

std::string BuildSvgDocument(Document& document) {
    SvgWriter out;
    WriteSvgDocument(document, out);
    return out.Take();
}

bool ExportSvgFile(Document& document, const std::string& path, Reporter& reporter) {
    SvgWriter out;
    try {
        WriteSvgDocument(document, out);
    } catch (const std::bad_alloc&) {
        // The size the text had reached when the next piece found no room.
        InformOutOfMemory(reporter, out.Text().size());
        return false;
    }
    return WriteFileSafely(path, out.Text(), reporter);
}

} // namespace rhomba
