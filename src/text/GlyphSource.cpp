#include "text/GlyphSource.h"

#include <memory>

namespace rhomba {

const Glyph* GlyphCache::GetGlyph(const GlyphFace& face, char16_t code) {
    // Texts come in runs of one face: try the last one before searching.
    if (lastFace_ >= faces_.size() || !(faces_[lastFace_].face == face)) {
        lastFace_ = faces_.size();
        for (std::size_t i = 0; i < faces_.size(); ++i) {
            if (faces_[i].face == face) {
                lastFace_ = i;
                break;
            }
        }
        if (lastFace_ == faces_.size()) {
            faces_.push_back({face, std::vector<Entry>(256), {}});
        }
    }
    FaceTable& table = faces_[lastFace_];
    Entry& entry = code < 256 ? table.low[code] : table.high[code];
    if (!entry.known) {
        entry.known = true;
        if (const Glyph* glyph = source_.GetGlyph(face, code)) {
            entry.glyph = *glyph;
        } else {
            entry.missing = true;
        }
    }
    return entry.missing ? nullptr : &entry.glyph;
}

namespace {

struct Installed {
    GlyphSource* source = nullptr;
    std::unique_ptr<GlyphCache> cache;
};

Installed& TheInstalled() {
    static Installed installed;
    return installed;
}

} // namespace

void InstallGlyphSource(GlyphSource* source, bool cached) {
    Installed& installed = TheInstalled();
    installed.cache.reset();
    installed.source = source;
    if (source != nullptr && cached) installed.cache = std::make_unique<GlyphCache>(*source);
}

GlyphSource* InstalledGlyphSource() {
    Installed& installed = TheInstalled();
    if (installed.cache) return installed.cache.get();
    return installed.source;
}

} // namespace rhomba
