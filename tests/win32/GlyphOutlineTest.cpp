#include "win32/GdiGlyphSource.h"


#include <gtest/gtest.h>

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
const KeptGlyph kFreeTypeGlyphs[] = {
#include "../data/FreeTypeGlyphRecords.inc"
};

// "Arial" is answered from a metric-compatible face, with the very records the Linux source gives.
TEST(GlyphOutlineTest, SystemOutlinesAreTheFreeTypeRecords) {
    GdiGlyphSource source;
    const std::u16string chosen = source.ChosenFaceName({"Arial", false, false});
    EXPECT_TRUE(chosen == u"Arial" || chosen == u"Liberation Sans") << chosen.size();
    for (const KeptGlyph& kept : kFreeTypeGlyphs) {
        SCOPED_TRACE(std::to_string(kept.code) + (kept.bold ? " bold" : "") +
                     (kept.italic ? " italic" : ""));
        const Glyph* glyph =
            source.GetGlyph({kept.face, kept.bold, kept.italic}, static_cast<char16_t>(kept.code));
        ASSERT_NE(glyph, nullptr);
        EXPECT_EQ(glyph->cellIncrementX, kept.cellIncrementX);
        // The Linux source widens the 26.6 values exactly as the system does.
        EXPECT_EQ(glyph->records, kept.records);
    }
}

} // namespace
} // namespace rhomba
