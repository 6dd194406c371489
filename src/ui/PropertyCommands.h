#pragma once

#include <string_view>

namespace rhomba {

class Document;
class GraphicObject;
class Group;

// The one-line commands through which the properties panel changes objects:
// "SetName", "SetStrokeColor", "SetStroke", "SetFillColor", "SetFill", "SetPenWidth",
// "SetDashDot", "SetText", "SetTextSize", "SetTextPosition", "SetTextFont", "SetTextStyle",
// each followed by a blank and its argument.

// Runs line on the selected objects of document (group == null) or on the children of group;
// with descend set, a group among them passes the line on to its children instead.
void ApplyCommand(Document& document, std::string_view line, bool descend, Group* group);

// Runs every line of text (cut at CR and LF) on one object. Unknown commands are ignored.
void ExecuteCommand(GraphicObject& object, std::string_view text);

} // namespace rhomba
