// Builds the outlines of 10,000 texts of 20 characters (Arial, mixed sizes, styles and
// transforms), once through the glyph cache and once asking the platform for every glyph.
#include "text/GlyphSource.h"
#include "model/TextObject.h"
#ifdef RHOMBA_HAVE_FREETYPE
#include "freetype/FreeTypeGlyphSource.h"
#endif

#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

using namespace rhomba;

namespace {

std::vector<std::unique_ptr<TextObject>> MakeTexts(int count) {
    static const char kLetters[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 .,-\xE4\xF6\xFC\xDF";
    std::vector<std::unique_ptr<TextObject>> texts;
    unsigned seed = 12345;
    auto next = [&seed] {
        seed = seed * 1103515245u + 12345u;
        return (seed >> 16) & 0x7FFF;
    };
    for (int i = 0; i < count; ++i) {
        auto text = std::make_unique<TextObject>();
        std::string content;
        for (int k = 0; k < 20; ++k) content.push_back(kLetters[next() % (sizeof kLetters - 1)]);
        text->SetText(content);
        text->SetTextSize(6 + next() % 40);
        text->SetBold(next() % 4 == 0);
        text->SetItalic(next() % 5 == 0);
        const Matrix2D turn = Matrix2D::Rotation(next() % 360);
        text->SetTextTransform(turn.a, turn.b + (next() % 3) * 0.1, turn.c, turn.d);
        text->SetTextPosition(next() % 600, next() % 800);
        texts.push_back(std::move(text));
    }
    return texts;
}

double BuildAll(std::vector<std::unique_ptr<TextObject>>& texts, std::size_t& nodes) {
    const auto start = std::chrono::steady_clock::now();
    nodes = 0;
    for (auto& text : texts) {
        text->SetCache({}); // stale, as after loading
        text->RefreshOutline();
        nodes += text->Outline().NodeCount();
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main() {
#ifdef RHOMBA_HAVE_FREETYPE
    FreeTypeGlyphSource glyphs;
    auto texts = MakeTexts(10000);
    std::size_t nodes = 0;

    InstallGlyphSource(&glyphs, false);
    const double uncached = BuildAll(texts, nodes);
    std::printf("without cache: %.3f s (%zu outline nodes)\n", uncached, nodes);

    InstallGlyphSource(&glyphs, true); // a fresh, empty cache: its misses are counted in
    const double cachedFirst = BuildAll(texts, nodes);
    const double cachedWarm = BuildAll(texts, nodes);
    std::printf("with cache:    %.3f s cold, %.3f s warm (%zu outline nodes)\n", cachedFirst,
                cachedWarm, nodes);
    InstallGlyphSource(nullptr);
    return cachedFirst < 0.5 ? 0 : 1;
#else
    std::puts("TextOutlineBench needs the FreeType glyph source (Linux build).");
    return 0;
#endif
}
