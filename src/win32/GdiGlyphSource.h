#pragma once

#include "text/GlyphSource.h"

namespace rhomba {

// Glyph outlines from GDI: GetGlyphOutlineW with GGO_NATIVE and the identity matrix, on the
// desktop's device context, with the font built at an em height of 1000.
class GdiGlyphSource : public GlyphSource {
public:
    GdiGlyphSource() = default;
    ~GdiGlyphSource() override;
    GdiGlyphSource(const GdiGlyphSource&) = delete;
    GdiGlyphSource& operator=(const GdiGlyphSource&) = delete;

    const Glyph* GetGlyph(const GlyphFace& face, char16_t code) override;

    // The face name GDI actually chose for face (empty when no font could be made).
    std::u16string ChosenFaceName(const GlyphFace& face);

private:
    // The font of the last face asked for; kept so that a run of glyphs builds it once.
    void* FontFor(const GlyphFace& face);

    void* font_ = nullptr; // HFONT
    GlyphFace fontFace_;
    Glyph scratch_;
};

} // namespace rhomba
