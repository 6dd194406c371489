#include "export/SvgWriter.h"

#include "format/FileWrite.h"
#include "format/Rounding.h"
#include "geometry/NumberText.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
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
    const unsigned rgb = ((color & 0xFF) << 16) | (color & 0xFF00) | ((color >> 16) & 0xFF);
    char text[16];
    const int n = std::snprintf(text, sizeof text, "#%06x", rgb);
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

void PathObject::ExportSvg(SvgWriter& out, const Matrix2D& matrix, int depth) {
    const std::size_t count = NodeCount();
    if (count < 2) return;
    out.Indent(depth);
    out.Append("<path style=\"");
    out.StrokeStyle(HasStroke(), GetStrokeColor(), GetPenWidth(), dash_, GetDashCount(), 1.0);
    out.FillStyle(HasFill(), GetFillColor());
    out.TrimTrailingBlanks();
    out.Append("\" d=\"");
    enum class Segment { None, Move, Line, Curve } kind = Segment::None;
    for (std::size_t i = 0; i < count; ++i) {
        const NodeType type = types_[i];
        const Point2 p = matrix.TransformPoint(points_[i]);
        if (node::IsMoveTo(type)) {
            if (i != 0) out.Append((types_[i - 1] & node::kCloseFigure) ? " z " : " ");
            out.Append("M ");
            out.Rounded(p.x, 4);
            out.Append(' ');
            out.Rounded(p.y, 4);
            kind = Segment::Move;
        } else if (node::IsLineTo(type)) {
            if (kind != Segment::Line) out.Append(" L");
            out.Append(' ');
            out.Rounded(p.x, 4);
            out.Append(' ');
            out.Rounded(p.y, 4);
            kind = Segment::Line;
        } else if (node::IsBezier(type)) {
            if (i + 2 >= count) break; // a cut-off run has no end point
            if (kind != Segment::Curve) out.Append(" C");
            for (std::size_t k = 0; k < 3; ++k) {
                const Point2 q = k == 0 ? p : matrix.TransformPoint(points_[i + k]);
                out.Append(' ');
                out.Number(q.x);
                out.Append(' ');
                out.Number(q.y);
            }
            i += 2;
            kind = Segment::Curve;
        }
    }
    if (types_[count - 1] & node::kCloseFigure) out.Append(" z");
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
    // that the empty-box sentinel would give, which renderers refuse.
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
