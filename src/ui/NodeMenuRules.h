#pragma once

#include <array>

namespace rhomba {

class GraphicObject;
class PathObject;

// The enabling rules of the node menu, read from the type bytes as they stand.
bool SplitRule(const PathObject& path);
bool ToCurveRule(const PathObject& path);
bool ToLineRule(const PathObject& path);

// The node menu's entries 1 to 9 ("Hinzufuegen" ... "Eigenschaften"); index 0 is unused.
enum NodeMenuEntry {
    kNodeAdd = 1,
    kNodeJoinLine,
    kNodeJoinIntersection,
    kNodeDelete,
    kNodeSplit,
    kNodeToCurve,
    kNodeToLine,
    kNodeReduce,
    kNodeProperties,
};
using NodeMenuState = std::array<bool, 10>;
// Which entries are enabled for the first selected object (null when nothing is selected).
NodeMenuState NodeMenuRules(const GraphicObject* first);

} // namespace rhomba
