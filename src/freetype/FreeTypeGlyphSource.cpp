#include "freetype/FreeTypeGlyphSource.h"

#include "model/Windows1252.h"
#include "text/GlyphRecords.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <cstdint>
#include <vector>

namespace rhomba {

namespace {

// The em height of every glyph request, in pixels: the outlines come back in these units.
constexpr FT_UInt kEmPixels = 1000;

struct LoadedFace {
    GlyphFace key;
    std::string file;
    FT_Face face = nullptr; // null when the face could not be loaded at all
};

// 26.6 to 16.16 the way the system's glyph call widens it: the six fraction bits are repeated
// down the 16-bit fraction (63/64 becomes 65535/65536), not shifted in with zeros.
std::int32_t ToFixed(FT_Pos v) {
    const FT_Pos whole = v >> 6;
    const FT_Pos six = v & 63;
    const FT_Pos fraction = six << 10 | six << 4 | six >> 2;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(whole) << 16 |
                                     static_cast<std::uint32_t>(fraction));
}

bool OnCurve(const FT_Outline& o, int i) { return FT_CURVE_TAG(o.tags[i]) == FT_CURVE_TAG_ON; }
bool Cubic(const FT_Outline& o, int i) { return FT_CURVE_TAG(o.tags[i]) == FT_CURVE_TAG_CUBIC; }

// Converts one contour to a polygon record with its curve records. Runs of on-curve points
// become one line record; a run of quadratic control points together with the on-curve point
// that ends it becomes one quadratic-spline record (the implied midpoints are left out, as the
// system leaves them out); cubic controls give cubic records.
void ConvertContour(const FT_Outline& o, int first, int last, GlyphRecordWriter& out) {
    const int n = last - first + 1;
    if (n < 2) return;

    // Start on an on-curve point; a contour made of control points only starts halfway
    // between its last and its first point.
    int start = -1;
    for (int k = 0; k < n; ++k) {
        if (OnCurve(o, first + k)) {
            start = k;
            break;
        }
    }
    std::int32_t sx, sy;
    if (start >= 0) {
        sx = ToFixed(o.points[first + start].x);
        sy = ToFixed(o.points[first + start].y);
    } else {
        start = 0;
        sx = ToFixed((o.points[last].x + o.points[first].x) / 2);
        sy = ToFixed((o.points[last].y + o.points[first].y) / 2);
    }
    out.BeginPolygon(sx, sy);

    const bool startsOnCurve = OnCurve(o, first + start);
    // Walk the points after the start, once round, ending back at the start.
    std::vector<std::int32_t> run;
    int k = startsOnCurve ? 1 : 0;
    const int end = n;
    auto at = [&](int step) { return first + (start + step) % n; };
    while (k < end) {
        run.clear();
        const int i = at(k);
        if (OnCurve(o, i)) {
            while (k < end && OnCurve(o, at(k))) {
                run.push_back(ToFixed(o.points[at(k)].x));
                run.push_back(ToFixed(o.points[at(k)].y));
                ++k;
            }
            out.Curve(glyph::kPrimLine, run);
            continue;
        }
        const bool cubic = Cubic(o, i);
        while (k < end && !OnCurve(o, at(k))) {
            run.push_back(ToFixed(o.points[at(k)].x));
            run.push_back(ToFixed(o.points[at(k)].y));
            ++k;
        }
        // The on-curve point that ends the run, or the start point when the ring closes.
        if (k < end) {
            run.push_back(ToFixed(o.points[at(k)].x));
            run.push_back(ToFixed(o.points[at(k)].y));
            ++k;
        } else {
            run.push_back(sx);
            run.push_back(sy);
        }
        out.Curve(cubic ? glyph::kPrimCSpline : glyph::kPrimQSpline, run);
    }
}

} // namespace

struct FreeTypeGlyphSource::Impl {
    FT_Library library = nullptr;
    bool fontconfigReady = false;
    std::vector<LoadedFace> faces;
    std::size_t lastFace = 0;
    Glyph scratch;

    Impl() {
        if (FT_Init_FreeType(&library) != 0) library = nullptr;
        fontconfigReady = FcInit() == FcTrue;
    }

    ~Impl() {
        for (LoadedFace& f : faces) {
            if (f.face != nullptr) FT_Done_Face(f.face);
        }
        if (library != nullptr) FT_Done_FreeType(library);
    }

    // The file and index fontconfig picks for family and style; false when it picks nothing.
    bool Match(const std::string& family, bool bold, bool italic, std::string& file, int& index) {
        if (!fontconfigReady) return false;
        FcPattern* pattern = FcPatternCreate();
        if (pattern == nullptr) return false;
        if (!family.empty()) {
            FcPatternAddString(pattern, FC_FAMILY,
                               reinterpret_cast<const FcChar8*>(family.c_str()));
        }
        FcPatternAddInteger(pattern, FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
        FcPatternAddInteger(pattern, FC_SLANT, italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
        FcPatternAddBool(pattern, FC_OUTLINE, FcTrue);
        FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
        FcDefaultSubstitute(pattern);
        FcResult result = FcResultNoMatch;
        FcPattern* match = FcFontMatch(nullptr, pattern, &result);
        FcPatternDestroy(pattern);
        if (match == nullptr) return false;
        FcChar8* path = nullptr;
        bool found = false;
        if (FcPatternGetString(match, FC_FILE, 0, &path) == FcResultMatch && path != nullptr) {
            file = reinterpret_cast<const char*>(path);
            index = 0;
            FcPatternGetInteger(match, FC_INDEX, 0, &index);
            found = true;
        }
        FcPatternDestroy(match);
        return found;
    }

    FT_Face Open(const std::string& file, int index) {
        if (library == nullptr || file.empty()) return nullptr;
        FT_Face face = nullptr;
        if (FT_New_Face(library, file.c_str(), index, &face) != 0) return nullptr;
        if (FT_Select_Charmap(face, FT_ENCODING_UNICODE) != 0 ||
            FT_Set_Pixel_Sizes(face, 0, kEmPixels) != 0) {
            FT_Done_Face(face);
            return nullptr;
        }
        return face;
    }

    LoadedFace& Find(const GlyphFace& key) {
        if (lastFace < faces.size() && faces[lastFace].key == key) return faces[lastFace];
        for (std::size_t i = 0; i < faces.size(); ++i) {
            if (faces[i].key == key) {
                lastFace = i;
                return faces[i];
            }
        }
        LoadedFace loaded;
        loaded.key = key;
        int index = 0;
        if (Match(Cp1252ToUtf8(key.name), key.bold, key.italic, loaded.file, index)) {
            loaded.face = Open(loaded.file, index);
        }
        // Never nothing: an unusable match falls back to the default sans face.
        if (loaded.face == nullptr && Match("sans-serif", key.bold, key.italic, loaded.file, index)) {
            loaded.face = Open(loaded.file, index);
        }
        if (loaded.face == nullptr) loaded.file.clear();
        faces.push_back(std::move(loaded));
        lastFace = faces.size() - 1;
        return faces.back();
    }

    const Glyph* Load(const GlyphFace& key, char16_t code) {
        LoadedFace& loaded = Find(key);
        if (loaded.face == nullptr) return nullptr;
        FT_Face face = loaded.face;
        // A character the face lacks gets the face's missing-glyph shape, as on Windows.
        const FT_UInt index = FT_Get_Char_Index(face, code);
        if (FT_Load_Glyph(face, index, FT_LOAD_NO_BITMAP) != 0) return nullptr;
        if (face->glyph->format != FT_GLYPH_FORMAT_OUTLINE) return nullptr;

        scratch.records.clear();
        scratch.cellIncrementX = static_cast<int>((face->glyph->advance.x + 32) >> 6);
        const FT_Outline& o = face->glyph->outline;
        GlyphRecordWriter writer(scratch.records);
        int first = 0;
        for (int c = 0; c < o.n_contours; ++c) {
            const int last = o.contours[c];
            if (last < first || last >= o.n_points) break;
            ConvertContour(o, first, last, writer);
            first = last + 1;
        }
        writer.Finish();
        return &scratch;
    }
};

FreeTypeGlyphSource::FreeTypeGlyphSource() : impl_(std::make_unique<Impl>()) {}

FreeTypeGlyphSource::~FreeTypeGlyphSource() = default;

const Glyph* FreeTypeGlyphSource::GetGlyph(const GlyphFace& face, char16_t code) {
    return impl_->Load(face, code);
}

std::string FreeTypeGlyphSource::FontFile(const GlyphFace& face) { return impl_->Find(face).file; }

} // namespace rhomba
