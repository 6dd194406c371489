#include "export/SvgWriter.h"

#include "geometry/Angles.h"
#include "model/TextObject.h"

namespace rhomba {

namespace {

// Faces under the names other programs know them by.
std::string_view SvgFontFamily(const std::string& face) {
    if (face == "Helvetica") return "Arial";
    if (face == "Courier") return "Courier New";
    return face;
}

} // namespace

void TextObject::ExportSvg(SvgWriter& out, const Matrix2D& matrix, int depth) {
    // An empty text is invisible and has no direction; it is left out as in the native file.
    if (GetText().empty()) return;
    RefreshOutline();

    out.Indent(depth);
    out.Append("<text");
    out.Attribute("x", 0);
    out.Attribute("y", 0);
    out.Append(" transform=\"translate(");
    const Point2 anchor = matrix.TransformPoint(position_);
    out.Rounded(anchor.x, 4);
    out.Append(' ');
    out.Rounded(anchor.y, 4);
    out.Append(") ");

    // The baseline's direction in the drawing; SVG turns clockwise, hence the sign.
    const Point2 direction = GetEndPoint() - position_;
    const double degrees = VectorAngle(direction.x, direction.y) * 180.0 / 3.141592653589793;
    if (degrees >= 0.1 || degrees <= -0.1) {
        out.Append("rotate(");
        out.Rounded(-degrees, 1);
        out.Append(") ");
    }
    // The font is always written at size 16 and brought to size by the scale.
    out.Append("scale(");
    out.Rounded(GetSize() / 16, 2);
    out.Append(")\"");

    out.Append(" style=\"font-family: ");
    out.EscapedAttribute(SvgFontFamily(GetFont()));
    out.Append("; font-size: 16; ");
    if (IsItalic()) out.Append("font-style: italic; ");
    if (IsBold()) out.Append("font-weight: bold; ");
    DashDot dash{};
    GetDashDot(dash);
    out.StrokeStyle(HasStroke(), GetStrokeColor(), GetPenWidth(), dash, GetDashCount(),
                    GetSize() / 16);
    out.FillStyle(HasFill(), GetFillColor());
    out.TrimTrailingBlanks();
    out.Append("\">");
    out.Escaped(GetText());
    out.Append("</text>\r\n");
}

} // namespace rhomba
