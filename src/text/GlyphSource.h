#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace rhomba {

// The font a text asks for: face name (Windows-1252 bytes, as typed) and style.
struct GlyphFace {
    std::string name;
    bool bold = false;
    bool italic = false;

    friend bool operator==(const GlyphFace&, const GlyphFace&) = default;
};

// One glyph as the platform gives it, at an em height of 1000 units: the native outline as
// TTPOLYGONHEADER / TTPOLYCURVE records (little-endian, laid out as Windows returns them for
// GGO_NATIVE) and the cell increment in x. A blank has no records but still advances.
struct Glyph {
    std::vector<std::uint8_t> records;
    int cellIncrementX = 0;
};

// Where glyph outlines come from: GDI on Windows, FreeType with fontconfig on Linux.
class GlyphSource {
public:
    virtual ~GlyphSource() = default;
    // The glyph of one UTF-16 code unit, or null when the platform has none for it (the
    // character is then skipped without advancing). The answer stays valid until the next call.
    virtual const Glyph* GetGlyph(const GlyphFace& face, char16_t code) = 0;
};

// Remembers every glyph asked for, so that a drawing with thousands of texts asks the platform
// once per face, style and character.
// Note: nothing is ever invalidated; fonts do not change under a running program.
class GlyphCache : public GlyphSource {
public:
    explicit GlyphCache(GlyphSource& source) : source_(source) {}
    const Glyph* GetGlyph(const GlyphFace& face, char16_t code) override;

private:
    struct Entry {
        bool known = false;
        bool missing = false;
        Glyph glyph;
    };
    struct FaceTable {
        GlyphFace face;
        std::vector<Entry> low; // code units below 256, indexed directly
        std::unordered_map<char16_t, Entry> high;
    };

    GlyphSource& source_;
    std::vector<FaceTable> faces_;
    std::size_t lastFace_ = 0;
};

// The process-wide glyph source that text outlines are built from. The platform installs it at
// start-up (the editor with GDI, rhomba-cli and the tests with FreeType); without one, texts have
// empty outlines. With cached, the source is put behind a GlyphCache owned here.
// Note: the source must outlive its installation; installing null removes it.
void InstallGlyphSource(GlyphSource* source, bool cached = true);
// The installed source (the cache in front of it when cached), or null.
GlyphSource* InstalledGlyphSource();

} // namespace rhomba
