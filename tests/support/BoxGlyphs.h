#pragma once

#include "text/GlyphRecords.h"
#include "text/GlyphSource.h"

#include <gtest/gtest.h>

#include <vector>

namespace rhomba::test {

// Every letter is a 500 x 700 box advancing 600; a blank advances 250 without a figure; '#'
// is missing altogether. Records every request.
class BoxGlyphs : public GlyphSource {
public:
    const Glyph* GetGlyph(const GlyphFace& face, char16_t code) override {
        requests.push_back(code);
        faces.push_back(face);
        if (code == u'#') return nullptr;
        glyph_.records.clear();
        if (code == u' ') {
            glyph_.cellIncrementX = 250;
            return &glyph_;
        }
        GlyphRecordWriter writer(glyph_.records);
        writer.BeginPolygon(0, 0);
        const std::vector<std::int32_t> box = {500 << 16, 0, 500 << 16, 700 << 16, 0, 700 << 16};
        writer.Curve(glyph::kPrimLine, box);
        writer.Finish();
        glyph_.cellIncrementX = 600;
        return &glyph_;
    }

    std::vector<char16_t> requests;
    std::vector<GlyphFace> faces;

private:
    Glyph glyph_;
};

// Installs the box glyphs, uncached, for the length of each test.
class BoxGlyphTest : public ::testing::Test {
protected:
    void SetUp() override { InstallGlyphSource(&glyphs, false); }
    void TearDown() override { InstallGlyphSource(nullptr); }

    BoxGlyphs glyphs;
};

} // namespace rhomba::test
