#pragma once

#include "model/Types.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace rhomba {

class GraphicObject;

// The product word that opens every drawing and clipboard block.
inline constexpr std::string_view kProductWord = "Rhomba";
inline constexpr std::string_view kVersionText = "Version 1.0";

// The style values that writer and reader carry from object to object, so that a style line is
// written only when its value changes and is read back into the same slot.
struct NativeStyle {
    ColorRef fillColor = 0xFFFFFF;
    ColorRef strokeColor = 0x000000;
    double penWidth = 1.0;
    DashDot dash{};
    std::string font = "Arial";
    bool bold = false;
    bool italic = false;
    double textSize = 12.0;
    double transform[4] = {1, 0, 0, 1};

    void Reset() { *this = NativeStyle{}; }
};

// The output of one native save or copy: the text being built and the shared style state.
// Lines end in CR LF; numbers come out as printf "%g" prints them.
class NativeWriter {
public:
    NativeWriter() = default;

    std::string& Out() { return out_; }
    const std::string& Text() const { return out_; }
    std::string Take() { return std::move(out_); }
    NativeStyle& Style() { return style_; }

    void Append(std::string_view text) { out_.append(text); }
    void Append(char c) { out_.push_back(c); }
    void Newline() { out_.append("\r\n"); }
    // value as "%g".
    void Number(double value);
    // value rounded to decimals places, then as "%g".
    void Rounded(double value, int decimals);
    // The "Rhomba Version 1.0" line.
    void Header();
    // The blank line and "RhombaEnd" that close a drawing or clipboard block.
    void Trailer();

    // Style lines, each written only when the value differs from the state, which then takes it.
    void StrokeLines(ColorRef color, double penWidth, const DashDot& dash);
    void FillLine(ColorRef color);

private:
    std::string out_;
    NativeStyle style_;
};

// "%06X" of a COLORREF with red first (RRGGBB).
void AppendRrggbb(std::string& out, ColorRef color, bool padded);

// The native text of a whole drawing, as "Speichern" writes it.
class Document;
std::string SaveNativeText(Document& document);

} // namespace rhomba
