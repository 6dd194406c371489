#include "text/TextOutline.h"

#include "model/TextObject.h"
#include "text/GlyphRecords.h"

namespace rhomba {

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
