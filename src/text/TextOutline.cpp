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
    if (GetText().empty()) {
        // Whatever an earlier text left behind goes, even though the cache already matches.
        if (TextOutlineBox* box = body_.Box()) {
            if (box->outline.NodeCount() != 0) box->outline.ClearNodes();
            box->width = 0;
            box->endPoint = position_;
        }
        return;
    }
    TextOutlineBox& box = OutlineBox();
    if (box.cache == box.text) return;

    box.outline.ClearNodes();
    box.width = 0;
    box.endPoint = position_;
    GlyphSource* source = InstalledGlyphSource();
    // Without a source the cache stays empty, so the outline is built once one is installed.
    if (source == nullptr) return;
    box.cache = box.text;

    const TextLook& look = Look();
    const double pen = BuildGlyphOutlines(*source, TextFace(look.font, IsBold(), IsItalic()),
                                          Cp1252ToUtf16(box.text), box.outline);

    // Scale to the size first, then the text transform, then the position.
    const double units = 1000.0 / look.size;
    const Matrix2D& glyphs = look.transform;
    const Matrix2D outline{glyphs.a / units, glyphs.b / units, glyphs.c / units,
                           glyphs.d / units, position_.x,      position_.y};
    box.outline.Transform(outline);
    box.endPoint = outline.TransformPoint({pen, 0});
    box.width = pen / units;
}

bool TextObject::GetBounds(Rect2& bounds, bool withPenWidth) {
    RefreshOutline();
    if (GetText().empty()) return false;
    return Outline().GetBounds(bounds, withPenWidth);
}

GraphicObject* TextObject::HitTest(Point2 probe, double tolerance) {
    RefreshOutline();
    return Outline().HitTest(probe, tolerance) != nullptr ? this : nullptr;
}

} // namespace rhomba
