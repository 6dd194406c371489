#include "format/NativeWriter.h"

#include "format/Rounding.h"
#include "geometry/NumberText.h"
#include "model/Colour.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
#include "model/PathSegments.h"
#include "model/TextObject.h"

#include <cmath>
#include <cstdio>
#include <vector>

namespace rhomba {

void AppendRrggbb(std::string& out, ColorRef color, bool padded) {
    char text[16];
    const int n = std::snprintf(text, sizeof text, padded ? "%06X" : "%X",
                                static_cast<unsigned>(SwapRedBlue(color)));
    out.append(text, static_cast<std::size_t>(n));
}

void NativeWriter::Number(double value) { AppendG(out_, value); }

void NativeWriter::Rounded(double value, int decimals) { AppendRounded(out_, value, decimals); }

void NativeWriter::Header() {
    out_.append(kProductWord);
    out_.push_back(' ');
    out_.append(kVersionText);
    out_.append("\r\n");
}

void NativeWriter::Trailer() { out_.append("\r\nRhombaEnd\r\n"); }

void NativeWriter::StrokeLines(ColorRef color, double penWidth, const DashDot& dash) {
    color &= kColourMask;
    if (color != style_.strokeColor) {
        out_.append("StrokeColor ");
        AppendRrggbb(out_, color, true);
        out_.append("\r\n");
        style_.strokeColor = color;
    }
    // Note: compared raw but written rounded to 2 decimals; an unrounded width followed by its
    // rounded value writes the line twice.
    if (penWidth != style_.penWidth) {
        out_.append("PenWidth ");
        Rounded(penWidth, 2);
        out_.append("\r\n");
        style_.penWidth = penWidth;
    }
    if (dash != style_.dash) {
        out_.append("PenDash");
        const int count = CountDashEntries(dash);
        if (count == 0) out_.append(" 0");
        char text[16];
        for (int i = 0; i < count; i += 2) {
            const int n = std::snprintf(text, sizeof text, " %u %u", unsigned{dash[i]},
                                        unsigned{dash[i + 1]});
            out_.append(text, static_cast<std::size_t>(n));
        }
        out_.append("\r\n");
        style_.dash = dash;
    }
}

void NativeWriter::FillLine(ColorRef color) {
    color &= kColourMask;
    if (color == style_.fillColor) return;
    out_.append("FillColor ");
    AppendRrggbb(out_, color, false);
    out_.append("\r\n");
    style_.fillColor = color;
}

namespace {

char PaintLetter(bool fill, bool stroke) {
    if (fill) return stroke ? 'B' : 'F';
    return stroke ? 'S' : 'N';
}

void AppendPoint(NativeWriter& out, Point2 p) {
    out.Append('\t');
    out.Rounded(p.x, 4);
    out.Append('\t');
    out.Rounded(p.y, 4);
}

class NativePathSink final : public PathSink {
public:
    explicit NativePathSink(NativeWriter& out) : out_(out) {}
    void MoveTo(Point2 p) override { Node('M', p); }
    void LineTo(Point2 p) override { Node('L', p); }
    void CurveTo(Point2 c1, Point2 c2, Point2 end) override {
        out_.Append('C');
        AppendPoint(out_, c1);
        AppendPoint(out_, c2);
        AppendPoint(out_, end);
        out_.Newline();
    }
    void CloseFigure() override { out_.Append("ClosePath\r\n"); }

private:
    void Node(char letter, Point2 p) {
        out_.Append(letter);
        AppendPoint(out_, p);
        out_.Newline();
    }
    NativeWriter& out_;
};

} // namespace

void PathObject::SaveNative(NativeWriter& out, bool reset) {
    if (reset) out.Style().Reset();
    const std::size_t count = NodeCount();
    if (count < 2) return;
    std::string& text = out.Out();
    text.reserve(text.size() + 25 * count + 64);
    out.Newline();
    if (!GetName().empty()) {
        out.Append("PathObject ");
        out.Append(GetName());
        out.Newline();
    }
    if (HasStroke()) out.StrokeLines(GetStrokeColor(), GetPenWidth(), dash_);
    if (HasFill()) out.FillLine(GetFillColor());

    // A move cannot close anything, nor a curve's first control; the writer drops stray close
    // bits there, as reading the file back would.
    NodeCursor nodes(types_);
    NodeSpan step;
    while (nodes.Next(step)) {
        if (step.kind == SegmentKind::Move || step.kind == SegmentKind::Bezier) {
            types_[step.index] &= static_cast<NodeType>(~node::kCloseFigure);
        }
    }
    NativePathSink sink(out);
    WalkPath(*this, sink);
    out.Append(PaintLetter(HasFill(), HasStroke()));
    out.Newline();
}

void TextObject::SaveNative(NativeWriter& out, bool reset) {
    NativeStyle& style = out.Style();
    if (reset) style.Reset();
    if (GetText().empty()) return;
    out.Newline();
    if (!GetName().empty()) {
        out.Append("TextObject ");
        out.Append(GetName());
        out.Newline();
    }
    // Fill before stroke, the other way round from paths.
    if (HasFill()) out.FillLine(GetFillColor());
    if (HasStroke()) {
        DashDot dash{};
        GetDashDot(dash);
        out.StrokeLines(GetStrokeColor(), GetPenWidth(), dash);
    }
    if (GetFont() != style.font || IsBold() != style.bold || IsItalic() != style.italic) {
        out.Append("TextFont ");
        if (IsBold()) out.Append('b');
        if (IsItalic()) out.Append('i');
        if (!IsBold() && !IsItalic()) out.Append('n');
        out.Append(' ');
        out.Append(GetFont());
        out.Newline();
        style.font = GetFont();
        style.bold = IsBold();
        style.italic = IsItalic();
    }
    // Compared at 2 decimals, written at 1: kept so for the files already out there.
    const double size = RoundDecimals(GetSize(), 2);
    if (size != style.textSize) {
        out.Append("TextSize ");
        out.Rounded(GetSize(), 1);
        out.Newline();
        style.textSize = size;
    }
    const Matrix2D& glyphs = GetTextTransform();
    const double matrix[4] = {RoundDecimals(glyphs.a, 4), RoundDecimals(glyphs.b, 4),
                              RoundDecimals(glyphs.c, 4), RoundDecimals(glyphs.d, 4)};
    if (matrix[0] != style.transform[0] || matrix[1] != style.transform[1] ||
        matrix[2] != style.transform[2] || matrix[3] != style.transform[3]) {
        out.Append("TextTransform");
        for (int i = 0; i < 4; ++i) {
            out.Append(' ');
            out.Number(matrix[i]);
            style.transform[i] = matrix[i];
        }
        out.Newline();
    }
    out.Append("Text ");
    out.Append(PaintLetter(HasFill(), HasStroke()));
    out.Append(' ');
    out.Rounded(position_.x, 4);
    out.Append(' ');
    out.Rounded(position_.y, 4);
    out.Append(' ');
    for (char c : GetText()) out.Append(c == '\r' || c == '\n' ? ' ' : c);
    out.Newline();
}

void Hotspot::SaveNative(NativeWriter& out, bool reset) {
    if (reset) out.Style().Reset();
    if (GetName().empty()) {
        // The object's id is unique within its drawing; a loose hotspot falls back to a counter
        // far above any id a drawing reaches.
        static std::uint32_t looseNumber = 0xF0000000u;
        char text[16];
        std::snprintf(text, sizeof text, "H_%x",
                      static_cast<unsigned>(GetId() != 0 ? GetId() : looseNumber++));
        SetName(text);
    }
    const char mode = GetName() == "start" ? 'v' : mode_;
    out.Newline();
    out.Append("Hotspot ");
    out.Append(mode);
    out.Append(' ');
    out.Append(GetName());
    const double values[4] = {x1_, y1_, x2_, y2_};
    for (double v : values) {
        out.Append(' ');
        out.Rounded(v, 4);
    }
    out.Newline();
}

namespace {

// Writes a container's children, descending through nested groups with a work list so that no
// depth of nesting can exhaust the stack. A group is written only when it holds a leaf
// somewhere, so its Group line waits until the first leaf below it turns up.
void SaveTree(NativeWriter& out, Group& root, bool rootIsGroup) {
    struct Frame {
        Group* group;
        std::size_t next;
        bool written;
    };
    std::vector<Frame> stack{{&root, 0, !rootIsGroup}};
    std::size_t unwritten = rootIsGroup ? 0 : 1; // frames below this index are written
    while (!stack.empty()) {
        Frame& frame = stack.back();
        if (frame.next >= frame.group->ChildCount()) {
            const bool closeGroup = frame.written && (rootIsGroup || stack.size() > 1);
            stack.pop_back();
            if (unwritten > stack.size()) unwritten = stack.size();
            if (closeGroup) out.Append("GroupEnd\r\n");
            continue;
        }
        GraphicObject* child = frame.group->ChildAt(frame.next++);
        if (child == nullptr) continue;
        const ObjectKind kind = child->GetKind();
        if (kind == ObjectKind::Group) {
            stack.push_back({static_cast<Group*>(child), 0, false});
            continue;
        }
        if (IsContainerKind(kind)) continue;
        for (; unwritten < stack.size(); ++unwritten) {
            out.Append("\r\nGroup ");
            out.Append(stack[unwritten].group->GetName());
            out.Newline();
            stack[unwritten].written = true;
        }
        if (IsLeafKind(kind)) child->SaveNative(out, false);
    }
}

} // namespace

void Group::SaveNative(NativeWriter& out, bool reset) {
    if (reset) out.Style().Reset();
    SaveTree(out, *this, true);
}

void Document::SaveNative(NativeWriter& out, bool) {
    out.Style().Reset();
    out.Header();
    for (std::size_t i = 0; i < LayerCount(); ++i) {
        Layer& layer = LayerAt(i);
        out.Append("\r\nLayer EVP ");
        out.Append(layer.GetName());
        out.Newline();
        SaveTree(out, layer, false);
    }
    out.Trailer();
}

std::string SaveNativeText(Document& document) {
    NativeWriter writer;
    document.SaveNative(writer, true);
    return writer.Take();
}

} // namespace rhomba
