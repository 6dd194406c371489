#include "cli/Cli.h"
#include "text/GlyphSource.h"
#ifdef RHOMBA_HAVE_FREETYPE
#include "freetype/FreeTypeGlyphSource.h"
#endif

#include <iostream>

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
#ifdef RHOMBA_HAVE_FREETYPE
    // Texts are measured, exported and converted through their glyph outlines.
    static rhomba::FreeTypeGlyphSource glyphs;
    rhomba::InstallGlyphSource(&glyphs);
#endif
    return rhomba::cli::Run(args, std::cout, std::cerr);
}
