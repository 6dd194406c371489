#pragma once

#include "format/Rounding.h"
#include "geometry/Matrix2D.h"
#include "model/Types.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace rhomba {

class Document;
class GraphicObject;
class Reporter;

// The output of one SVG export: the text being built and the helpers every object's ExportSvg
// writes through. Numbers come out as printf "%g" would print them.
class SvgWriter {
public:
    // The deepest indentation written; deeper levels stay at this many tabs.
    static constexpr int kMaxIndent = 20;

    SvgWriter();

    std::string& Out() { return out_; }
    const std::string& Text() const { return out_; }
    std::string Take() { return std::move(out_); }

    void Append(std::string_view text) { out_.append(text); }
    void Append(char c) { out_.push_back(c); }
    // depth tab characters, at most kMaxIndent.
    void Indent(int depth);
    // value as "%g".
    void Number(double value);
    // value rounded to decimals places, then as "%g".
    void Rounded(double value, int decimals);
    // " name=\"%g<unit>\"".
    void Attribute(std::string_view name, double value, std::string_view unit = {});
    // "stroke: none; " or "stroke: #rrggbb; stroke-width: W; [stroke-dasharray: d g ...; ]",
    // the width and dash values divided by divisor and rounded to 3 decimals.
    void StrokeStyle(bool stroked, ColorRef color, double penWidth, const DashDot& dash,
                     int dashCount, double divisor);
    // "fill: none; " or "fill: #rrggbb; ".
    void FillStyle(bool filled, ColorRef color);
    // "#rrggbb" from a COLORREF (red in the low byte).
    void Colour(ColorRef color);
    // Removes blanks at the end of the text.
    void TrimTrailingBlanks();
    // Text content: "&", "<" and ">" escaped, the Windows-1252 bytes as UTF-8 (the file declares
    // no encoding, so readers take UTF-8), control bytes that XML forbids left out.
    void Escaped(std::string_view text);
    // The same for an attribute value between double quotes: "&", "<" and '"' escaped.
    void EscapedAttribute(std::string_view text);
    // The number that makes a layer or group id unique within this export.
    std::uint32_t UniqueNumber(const GraphicObject& object);

private:
    void Xml(std::string_view text, bool attribute);

    std::string out_;
    std::uint32_t nextUnique_ = 0;
};

// The whole drawing as one SVG document, into out.
void WriteSvgDocument(Document& document, SvgWriter& out);
std::string BuildSvgDocument(Document& document);

// Builds the document and writes it to path (WriteFileSafely); on failure, running out of
// memory included, informs the reporter and returns false.
bool ExportSvgFile(Document& document, const std::string& path, Reporter& reporter);

} // namespace rhomba
