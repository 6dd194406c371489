#pragma once

#include "text/GlyphSource.h"

#include <memory>
#include <string>

namespace rhomba {

// Glyph outlines from FreeType, with faces found through fontconfig: the records come out laid
// out and grouped as the Windows glyph call gives them for GGO_NATIVE at an em height of 1000,
// so the same walker builds the same outlines on both platforms.
// Note: "Arial" resolves to a metric-compatible face where one is installed; a face that cannot
// be found falls back to the default sans face.
class FreeTypeGlyphSource : public GlyphSource {
public:
    FreeTypeGlyphSource();
    ~FreeTypeGlyphSource() override;
    FreeTypeGlyphSource(const FreeTypeGlyphSource&) = delete;
    FreeTypeGlyphSource& operator=(const FreeTypeGlyphSource&) = delete;

    const Glyph* GetGlyph(const GlyphFace& face, char16_t code) override;

    // The font file that face resolves to, empty when there is none at all.
    std::string FontFile(const GlyphFace& face);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace rhomba
