// The FreeType glyph source exists in the Linux build only.
#ifdef RHOMBA_HAVE_FREETYPE

#include "freetype/FreeTypeGlyphSource.h"

#include "text/GlyphRecords.h"
#include "text/TextOutline.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace rhomba {
namespace {

bool HaveLiberation() {
    return std::filesystem::exists("/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf");
}

std::string FileName(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

TEST(FreeTypeGlyphSourceTest, ArialAndItsStylesResolveToMetricCompatibleFaces) {
    if (!HaveLiberation()) GTEST_SKIP() << "fonts-liberation is not installed";
    FreeTypeGlyphSource source;
    EXPECT_EQ(FileName(source.FontFile({"Arial", false, false})), "LiberationSans-Regular.ttf");
    EXPECT_EQ(FileName(source.FontFile({"Arial", true, false})), "LiberationSans-Bold.ttf");
    EXPECT_EQ(FileName(source.FontFile({"Arial", false, true})), "LiberationSans-Italic.ttf");
    EXPECT_EQ(FileName(source.FontFile({"Arial", true, true})), "LiberationSans-BoldItalic.ttf");
    // Unknown names still give a face, never nothing.
    EXPECT_FALSE(source.FontFile({"No Such Face 1234", false, false}).empty());
    EXPECT_NE(source.GetGlyph({"No Such Face 1234", false, false}, u'A'), nullptr);
    EXPECT_NE(source.GetGlyph({"", false, false}, u'A'), nullptr);
}

TEST(FreeTypeGlyphSourceTest, GlyphsComeAtThousandUnitsWithTheirCellIncrements) {
    if (!HaveLiberation()) GTEST_SKIP() << "fonts-liberation is not installed";
    FreeTypeGlyphSource source;
    const Glyph* a = source.GetGlyph({"Arial", false, false}, u'A');
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a->cellIncrementX, 667); // 1366 of 2048 font units
    PathObject outline;
    EXPECT_EQ(AppendGlyphFigures(a->records, 0, outline), 2); // outer shape and the hole
    Rect2 box;
    ASSERT_TRUE(outline.GetBounds(box, false));
    EXPECT_NEAR(box.top, 688, 2); // cap height
    EXPECT_NEAR(box.bottom, 0, 1);

    const Glyph* blank = source.GetGlyph({"Arial", false, false}, u' ');
    ASSERT_NE(blank, nullptr);
    EXPECT_TRUE(blank->records.empty());
    EXPECT_EQ(blank->cellIncrementX, 278);
}

TEST(FreeTypeGlyphSourceTest, CurvedGlyphsGiveQuadraticRunsEndingOnTheCurve) {
    if (!HaveLiberation()) GTEST_SKIP() << "fonts-liberation is not installed";
    FreeTypeGlyphSource source;
    const Glyph* o = source.GetGlyph({"Arial", false, false}, u'o');
    ASSERT_NE(o, nullptr);
    PathObject outline;
    EXPECT_EQ(AppendGlyphFigures(o->records, 0, outline), 2);
    std::size_t beziers = 0;
    for (NodeType t : outline.Types()) beziers += node::IsBezier(t) ? 1 : 0;
    EXPECT_GT(beziers, 0u);
    EXPECT_EQ(beziers % 3, 0u);
    // Each figure ends back where it started.
    EXPECT_TRUE(node::IsMoveTo(outline.TypeAt(0)));
}

// The characters whose FreeType records are kept in tests/data for the comparison with the
// system's records under Wine.
constexpr char16_t kSampleCharacters[] = u"AQagos&8%\x00E4\x00DF";

std::string DumpRecords(FreeTypeGlyphSource& source) {
    std::ostringstream out;
    out << "// FreeType records of a few characters, written by FreeTypeGlyphSourceTest when\n"
           "// RHOMBA_WRITE_GLYPH_DATA names this file. One entry: face, bold, italic, code,\n"
           "// cell increment, record bytes.\n";
    for (int style = 0; style < 3; ++style) {
        for (const char16_t* c = kSampleCharacters; *c != 0; ++c) {
            const GlyphFace face{"Arial", style == 1, style == 2};
            const Glyph* glyph = source.GetGlyph(face, *c);
            if (glyph == nullptr) continue;
            char head[96];
            std::snprintf(head, sizeof head, "{\"Arial\", %s, %s, 0x%04X, %d, {",
                          face.bold ? "true" : "false", face.italic ? "true" : "false",
                          static_cast<unsigned>(*c), glyph->cellIncrementX);
            out << head;
            for (std::size_t i = 0; i < glyph->records.size(); ++i) {
                if (i % 24 == 0) out << "\n    ";
                out << static_cast<unsigned>(glyph->records[i]) << ',';
            }
            out << "}},\n";
        }
    }
    return out.str();
}

TEST(FreeTypeGlyphSourceTest, RecordsMatchTheKeptSampleData) {
    if (!HaveLiberation()) GTEST_SKIP() << "fonts-liberation is not installed";
    FreeTypeGlyphSource source;
    const std::string dump = DumpRecords(source);
    if (const char* target = std::getenv("RHOMBA_WRITE_GLYPH_DATA")) {
        std::ofstream(target, std::ios::binary) << dump;
    }
    const std::filesystem::path kept =
        std::filesystem::path(__FILE__).parent_path().parent_path() / "data" /
        "FreeTypeGlyphRecords.inc";
    std::ifstream in(kept, std::ios::binary);
    if (!in) GTEST_SKIP() << "no kept sample data at " << kept;
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_EQ(text.str(), dump) << "the FreeType records changed; regenerate " << kept;
}

} // namespace
} // namespace rhomba

#endif
