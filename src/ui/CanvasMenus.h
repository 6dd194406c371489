#pragma once

#include "geometry/Point2.h"
#include "ui/ContextMenu.h"
#include "ui/NodeMenuRules.h"

namespace rhomba {

class CanvasHost;
class Document;
class PathObject;

// The object menu's entries 1 to 9, opened with the tools 0 to 3.
enum ObjectMenuEntry {
    kObjectGroup = 1,
    kObjectUngroup,
    kObjectCombine,
    kObjectSplitCombination,
    kObjectCopy,
    kObjectDelete,
    kObjectTextToPath,
    kObjectHotspot,
    kObjectProperties,
};

// The object menu for the selection; "Kopieren" is always grayed (copying goes through the edit
// menu).
ContextMenu BuildObjectMenu(const Document& document);
// The node menu for the selected nodes of the first selected path.
ContextMenu BuildNodeMenu(const Document& document);
// The menu a right click opens with tool: the node menu for the tools 4 to 7.
ContextMenu BuildCanvasMenu(const Document& document, int tool);

// Carries out entry id of the menu BuildCanvasMenu made for tool; (x, y) is the click in client
// pixels, world the same point in the drawing. An id of 0 (menu dismissed) does nothing.
void RunCanvasMenuEntry(Document& document, CanvasHost& host, int tool, int id, int x, int y,
                        Point2 world);

// "Text zu Pfad konvertieren": every selected text becomes a path in its place; the status field
// then counts the selection ("Auswahl mit %ld Objekten").
void ConvertTextsToPaths(Document& document, CanvasHost& host);

// The node menu's "Loeschen" and the Delete key with the node tool: removes the selected nodes
// of path; a path left without nodes leaves the drawing.
void DeleteSelectedNodesOf(Document& document, PathObject& path);

// "Hotspot an Auswahl": a hotspot over the selection's box, added to the current layer, where it
// becomes the selection. False when nothing selected can be measured.
bool AddHotspotAtSelection(Document& document);

} // namespace rhomba
