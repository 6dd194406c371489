#include "cli/Cli.h"
#include "text/GlyphSource.h"
#ifdef RHOMBA_HAVE_FREETYPE
#include "freetype/FreeTypeGlyphSource.h"
#elif defined(_WIN32)
#include "win32/GdiGlyphSource.h"
#endif

#include <iostream>

#ifdef _WIN32
// Declared here rather than taken from <windows.h>, which only the Win32 shell includes.
extern "C" __declspec(dllimport) int __stdcall SetConsoleOutputCP(unsigned codePage);
#endif

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
#ifdef _WIN32
    // The messages are written in UTF-8, as on Linux; the console is told so.
    SetConsoleOutputCP(65001);
#endif
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
