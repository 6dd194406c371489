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
// Note: the text itself never makes the reader fail: unknown lines are skipped, bad numbers
// read as 0, groups nested deeper than kMaxGroupDepth are flattened into their deepest allowed
// ancestor. Only memory running out does; the document is then put back as it was (selection
// aside) and the result is false.
bool ParseNative(Document& document, std::string_view text, bool paste);

inline constexpr int kMaxGroupDepth = 256;

// True when the first word of text is the product word, with or without a UTF-8 byte-order
// mark in front.
bool StartsWithProductWord(std::string_view text);

// The whole content of the file at path into bytes. A path that cannot be opened or names no
// plain file (a folder, a device) gets "Die Datei '%s' konnte nicht zum Lesen geöffnet werden.",
// a file too big for the memory "Nicht genügend Speicher (%d Bytes)."; both return false.
bool ReadWholeFile(const std::string& path, std::string& bytes, Reporter& reporter);

// Opens a drawing for "Oeffnen": refuses files that cannot be read, are shorter than 21 bytes or
// do not start with the product word (the last empties document), telling reporter why;
// otherwise replaces the drawing by the file's and gives the document its name. Running out of
// memory is reported and leaves the document as it was. Returns false when nothing was loaded.
bool LoadNativeFile(Document& document, const std::string& path, Reporter& reporter);

// Writes document to path as "Speichern" does (WriteFileSafely), telling reporter of a failure.
// On success the document takes the file name.
bool SaveNativeFile(Document& document, const std::string& path, Reporter& reporter);

} // namespace rhomba
