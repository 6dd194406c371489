#pragma once

#include <string>
#include <string_view>

namespace rhomba {

class Document;
class Reporter;

// Parses native text (after its header line has been checked) into document: layers, groups
// and objects go where the lines say, starting in the current layer; parsing stops at
// RhombaEnd or at the end of text. With paste set, the objects placed directly into a layer
// become selected.
// Note: the reader never fails: unknown lines are skipped, bad numbers read as 0, groups nested
// deeper than kMaxGroupDepth are flattened into their deepest allowed ancestor.
void ParseNative(Document& document, std::string_view text, bool paste);

inline constexpr int kMaxGroupDepth = 256;

// True when the first word of text is the product word, with or without a UTF-8 byte-order
// mark in front.
bool StartsWithProductWord(std::string_view text);

// Opens a drawing for "Oeffnen": refuses files that cannot be read, are shorter than 21 bytes or
// do not start with the product word, telling reporter why; otherwise empties document, parses
// the file and gives the document its name. Returns false when the file was refused.
bool LoadNativeFile(Document& document, const std::string& path, Reporter& reporter);

// Writes document to path as "Speichern" does: a temporary file beside the target renamed over
// it, so that a failure midway never leaves the old drawing truncated. Without a temporary file
// the target is created or truncated directly, and failing that an existing target is written
// over from its start. On success the document takes the file name.
bool SaveNativeFile(Document& document, const std::string& path);

} // namespace rhomba
