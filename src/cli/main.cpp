#include "cli/Cli.h"
#include "text/GlyphSource.h"
#ifdef RHOMBA_HAVE_FREETYPE
#include "freetype/FreeTypeGlyphSource.h"
#elif defined(_WIN32)
#include "win32/GdiGlyphSource.h"
#endif

#include <iostream>

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    // Texts are measured, exported and converted through their glyph outlines.
#ifdef RHOMBA_HAVE_FREETYPE
    static rhomba::FreeTypeGlyphSource glyphs;
    rhomba::InstallGlyphSource(&glyphs);
#elif defined(_WIN32)
    static rhomba::GdiGlyphSource glyphs;
    rhomba::InstallGlyphSource(&glyphs);
#endif
    return rhomba::cli::Run(args, std::cout, std::cerr);
}
