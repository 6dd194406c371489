#include "text/TextOutline.h"

#include "model/TextObject.h"
#include "text/GlyphRecords.h"

namespace rhomba {

namespace {

// The code points of 0x80 to 0x9F; the five unassigned bytes keep their own value.
constexpr char16_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char16_t FromCp1252(unsigned char c) {
    if (c >= 0x80 && c < 0xA0) return kHighControls[c - 0x80];
    return c;
}

} // namespace

std::u16string Cp1252ToUtf16(std::string_view bytes) {
    std::u16string out;
    out.reserve(bytes.size());
    for (char c : bytes) out.push_back(FromCp1252(static_cast<unsigned char>(c)));
    return out;
}

std::string Cp1252ToUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() * 2);
    for (char c : bytes) {
        const char16_t u = FromCp1252(static_cast<unsigned char>(c));
        if (u < 0x80) {
            out.push_back(static_cast<char>(u));
        } else if (u < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (u >> 6)));
            out.push_back(static_cast<char>(0x80 | (u & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xE0 | (u >> 12)));
            out.push_back(static_cast<char>(0x80 | ((u >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (u & 0x3F)));
        }
    }
    return out;
}

GlyphFace TextFace(const std::string& fontName, bool bold, bool italic) {
    return {fontName.substr(0, kMaxFaceNameLength), bold, italic};
}

double BuildGlyphOutlines(GlyphSource& source, const GlyphFace& face, std::u16string_view text,
                          PathObject& out) {
    double pen = 0;
    for (char16_t code : text) {
        if (code == 0) break;
        const Glyph* glyph = source.GetGlyph(face, code);
        if (glyph == nullptr) continue;
        if (!glyph->records.empty()) AppendGlyphFigures(glyph->records, pen, out);
        pen += glyph->cellIncrementX;
    }
    return pen;
}

void TextObject::RefreshOutline() {
    if (text_.empty()) {
        // Whatever an earlier text left behind goes, even though the cache already matches.
        if (outline_.NodeCount() != 0) outline_.ClearNodes();
        width_ = 0;
        endPoint_ = position_;
        return;
    }
    if (cache_ == text_) return;

    outline_.ClearNodes();
    width_ = 0;
    endPoint_ = position_;
    GlyphSource* source = InstalledGlyphSource();
    // Without a source the cache stays empty, so the outline is built once one is installed.
    if (source == nullptr) return;
    cache_ = text_;

    const double pen = BuildGlyphOutlines(*source, TextFace(font_, IsBold(), IsItalic()),
                                          Cp1252ToUtf16(text_), outline_);

    // Scale to the size first, then the text transform, then the position.
    const double units = 1000.0 / size_;
    const Matrix2D outline{transform_.a / units, transform_.b / units, transform_.c / units,
                           transform_.d / units, position_.x,          position_.y};
    outline_.Transform(outline);
    endPoint_ = outline.TransformPoint({pen, 0});
    width_ = pen / units;
}

bool TextObject::GetBounds(Rect2& bounds, bool withPenWidth) {
    RefreshOutline();
    if (text_.empty()) return false;
    return outline_.GetBounds(bounds, withPenWidth);
}

GraphicObject* TextObject::HitTest(Point2 probe, double tolerance) {
    RefreshOutline();
    return outline_.HitTest(probe, tolerance) != nullptr ? this : nullptr;
}

} // namespace rhomba
