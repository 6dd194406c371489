#pragma once

namespace rhomba {

class Document;

// "Text zu Pfad konvertieren": every selected text, in selection order, is replaced at its place
// in its parent by a new path holding its outline and its style (stroke, fill, pen width, dash,
// name); the texts are deleted and the new paths take their places in the selection. Other
// selected objects stay selected and untouched. A text without an outline (empty, blanks only,
// or no glyph source) is left as it is. Returns the number of texts converted.
int ConvertSelectedTextsToPaths(Document& document);

} // namespace rhomba
