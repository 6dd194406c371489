#pragma once

namespace rhomba {

class Document;

// The commands that need nothing but the drawing (new, the isometric projections, the arrange
// entries, delete, text to path). The editor's command table hands these ids on here, and
// rhomba-cli's steps run them by the same ids, so both do the same. False for any other id.
bool RunDocumentCommand(Document& document, int id);

} // namespace rhomba
