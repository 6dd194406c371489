#pragma once

#include "model/PathObject.h"
#include "model/Windows1252.h"
#include "text/GlyphSource.h"

#include <string>
#include <string_view>

namespace rhomba {

// The longest face name a font request carries (a LOGFONT face holds 32 characters with its
// terminating zero).
inline constexpr std::size_t kMaxFaceNameLength = 31;

// The face a text asks for: its font name cut to kMaxFaceNameLength bytes, and its style.
GlyphFace TextFace(const std::string& fontName, bool bold, bool italic);

// Appends the glyph outlines of text (at 1000 units) to out, one glyph at a time from pen
// position 0, stopping at the first 0 code unit; returns the final pen position.
// Note: a character without records (a blank) adds no figure but still advances.
double BuildGlyphOutlines(GlyphSource& source, const GlyphFace& face, std::u16string_view text,
                          PathObject& out);

} // namespace rhomba
