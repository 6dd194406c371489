#include "win32/GdiGlyphSource.h"

#include "model/PathObject.h"
#include "text/GlyphRecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdint>
#include <string>
#include <vector>

namespace rhomba {
namespace {

struct KeptGlyph {
    const char* face;
    bool bold;
    bool italic;
    unsigned code;
    int cellIncrementX;
    std::vector<std::uint8_t> records;
};

// What the FreeType source answers on Linux for the same characters of the same font files.
const std::vector<KeptGlyph>& FreeTypeGlyphs() {
    static const std::vector<KeptGlyph> glyphs = {
#include "../data/FreeTypeGlyphRecords.inc"
    };
    return glyphs;
}

std::string Describe(const KeptGlyph& g) {
    char text[64];
    std::snprintf(text, sizeof text, "U+%04X%s%s", g.code, g.bold ? " bold" : "",
                  g.italic ? " italic" : "");
    return text;
}

TEST(GlyphOutlineTest, ArialIsAnsweredFromAMetricCompatibleFace) {
    GdiGlyphSource source;
    const std::u16string chosen = source.ChosenFaceName({"Arial", false, false});
    EXPECT_FALSE(chosen.empty());
    EXPECT_TRUE(chosen == u"Arial" || chosen == u"Liberation Sans")
        << std::string(chosen.begin(), chosen.end());
}

TEST(GlyphOutlineTest, SystemOutlinesAgreeWithFreeTypeWithinOneUnit) {
    GdiGlyphSource source;
    ASSERT_FALSE(FreeTypeGlyphs().empty());
    for (const KeptGlyph& kept : FreeTypeGlyphs()) {
        SCOPED_TRACE(Describe(kept));
        const Glyph* glyph =
            source.GetGlyph({kept.face, kept.bold, kept.italic}, static_cast<char16_t>(kept.code));
        ASSERT_NE(glyph, nullptr);
        EXPECT_EQ(glyph->cellIncrementX, kept.cellIncrementX);

        PathObject system;
        PathObject freetype;
        AppendGlyphFigures(glyph->records, 0, system);
        AppendGlyphFigures(kept.records, 0, freetype);
        ASSERT_GT(freetype.NodeCount(), 0u);
        ASSERT_EQ(system.NodeCount(), freetype.NodeCount());
        EXPECT_EQ(system.Types(), freetype.Types());
        double worst = 0;
        for (std::size_t i = 0; i < system.NodeCount(); ++i) {
            const Point2 d = system.PointAt(i) - freetype.PointAt(i);
            worst = std::max({worst, std::fabs(d.x), std::fabs(d.y)});
        }
        EXPECT_LE(worst, 1.0);
        // The Linux source widens the 26.6 values exactly as the system does.
        EXPECT_EQ(glyph->records, kept.records);
    }
}

} // namespace
} // namespace rhomba
