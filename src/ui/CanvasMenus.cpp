#include "ui/CanvasMenus.h"

#include "model/Combine.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathFigures.h"
#include "model/PathNodes.h"
#include "model/PathReduction.h"
#include "model/PathObject.h"
#include "model/PathSegments.h"
#include "text/TextToPath.h"
#include "ui/CanvasHost.h"
#include "ui/ToolIds.h"

#include <cstdio>
#include <memory>

namespace rhomba {

bool ContextMenu::IsEnabled(int id) const {
    for (const MenuEntry& entry : entries) {
        if (entry.id == id) return entry.enabled;
    }
    return false;
}

namespace {

const MenuEntry kSeparator{};

// True when every selected object is of the same kind as the first.
bool OneKind(const std::vector<GraphicObject*>& selection) {
    for (const GraphicObject* object : selection) {
        if (object->GetKind() != selection.front()->GetKind()) return false;
    }
    return true;
}

PathObject* FirstSelectedPath(const Document& document) {
    const auto& selection = document.Selection();
    if (selection.empty() || selection.front()->GetKind() != ObjectKind::Path) return nullptr;
    return static_cast<PathObject*>(selection.front());
}

// The end node of the one selected segment of a kind: a line node for "In Kurve", a curve's end
// point for "In Linie"; -1 when there is none.
long SelectedSegmentEnd(const PathObject& path, SegmentKind kind) {
    SegmentCursor cursor(path.Points(), path.Types());
    PathSegment s;
    while (cursor.Next(s)) {
        if (s.kind == kind && (path.TypeAt(s.EndIndex()) & node::kSelected) != 0) {
            return static_cast<long>(s.EndIndex());
        }
    }
    return -1;
}

void RunObjectEntry(Document& document, CanvasHost& host, int id, int x, int y) {
    switch (id) {
    case kObjectGroup: document.GroupSelection(); break;
    case kObjectUngroup: document.UngroupSelection(); break;
    case kObjectCombine: CombineSelection(document); break;
    case kObjectSplitCombination: SplitCombination(document); break;
    case kObjectDelete: document.DeleteSelection(); break;
    case kObjectTextToPath: ConvertTextsToPaths(document, host); break;
    case kObjectHotspot: AddHotspotAtSelection(document); break;
    case kObjectProperties: host.ShowPanelAt(x, y); break;
    default: break;
    }
}

void RunNodeEntry(Document& document, CanvasHost& host, int id, int x, int y, Point2 world) {
    PathObject* path = FirstSelectedPath(document);
    if (id == kNodeProperties) {
        host.ShowPanelAt(x, y);
        return;
    }
    if (path == nullptr) return;
    const long a = NextSelectedNode(*path, 0);
    const long b = a >= 0 ? NextSelectedNode(*path, static_cast<std::size_t>(a) + 1) : -1;
    switch (id) {
    case kNodeAdd: AddNodeAt(*path, world, AddNodeTolerance(document.view.zoom)); break;
    case kNodeJoinLine:
    case kNodeJoinIntersection:
        if (a < 0 || b < 0) break;
        if (id == kNodeJoinLine) {
            JoinWithLine(*path, static_cast<std::size_t>(a), static_cast<std::size_t>(b));
        } else {
            JoinAtIntersection(*path, static_cast<std::size_t>(a), static_cast<std::size_t>(b));
        }
        break;
    case kNodeDelete: DeleteSelectedNodesOf(document, *path); break;
    case kNodeSplit: SplitAtSelectedNodes(*path); break;
    case kNodeToCurve:
        if (const long at = SelectedSegmentEnd(*path, SegmentKind::Line); at >= 0) {
            ConvertToCurve(*path, static_cast<std::size_t>(at));
        }
        break;
    case kNodeToLine:
        if (const long at = SelectedSegmentEnd(*path, SegmentKind::Bezier); at >= 0) {
            ConvertToLine(*path, static_cast<std::size_t>(at));
        }
        break;
    case kNodeReduce: ReduceSelectedNodes(*path); break;
    default: break;
    }
}

} // namespace

ContextMenu BuildObjectMenu(const Document& document) {
    const auto& selection = document.Selection();
    const std::size_t n = selection.size();
    const GraphicObject* first = n > 0 ? selection.front() : nullptr;
    const ObjectKind kind = first != nullptr ? first->GetKind() : ObjectKind::Graphic;
    const bool splittable = n == 1 && kind == ObjectKind::Path &&
                            CountFigures(static_cast<const PathObject&>(*first)) != 1;
    return {{
        {kObjectGroup, "Gruppieren", n >= 2},
        {kObjectUngroup, "Gruppe aufl\xF6sen", n == 1 && kind == ObjectKind::Group},
        {kObjectCombine, "Kombinieren", n >= 2 && OneKind(selection)},
        {kObjectSplitCombination, "Kombination aufl\xF6sen", splittable},
        kSeparator,
        {kObjectCopy, "Kopieren", false},
        {kObjectDelete, "L\xF6schen", n > 0},
        kSeparator,
        {kObjectTextToPath, "Text zu Pfad konvertieren", n == 1 && kind == ObjectKind::Text},
        {kObjectHotspot, "Hotspot an Auswahl", n > 0},
        kSeparator,
        {kObjectProperties, "Eigenschaften", n == 1},
    }};
}

ContextMenu BuildNodeMenu(const Document& document) {
    const auto& selection = document.Selection();
    const NodeMenuState state = NodeMenuRules(selection.empty() ? nullptr : selection.front());
    return {{
        {kNodeAdd, "Hinzuf\xFCgen", state[kNodeAdd]},
        {kNodeJoinLine, "Verbinden mit Linie", state[kNodeJoinLine]},
        {kNodeJoinIntersection, "Verbinden an Schnittpunkt", state[kNodeJoinIntersection]},
        kSeparator,
        {kNodeDelete, "L\xF6schen", state[kNodeDelete]},
        {kNodeSplit, "Trennen", state[kNodeSplit]},
        kSeparator,
        {kNodeToCurve, "In Kurve", state[kNodeToCurve]},
        {kNodeToLine, "In Linie", state[kNodeToLine]},
        {kNodeReduce, "Automatisch reduzieren", state[kNodeReduce]},
        kSeparator,
        {kNodeProperties, "Eigenschaften", state[kNodeProperties]},
    }};
}

ContextMenu BuildCanvasMenu(const Document& document, int tool) {
    return (tool & kToolNodeMenuBit) != 0 ? BuildNodeMenu(document) : BuildObjectMenu(document);
}

void RunCanvasMenuEntry(Document& document, CanvasHost& host, int tool, int id, int x, int y,
                        Point2 world) {
    // Grayed entries never come back from a real menu; a stale or made-up id must not act either.
    if (!BuildCanvasMenu(document, tool).IsEnabled(id)) return;
    if ((tool & kToolNodeMenuBit) != 0) {
        RunNodeEntry(document, host, id, x, y, world);
    } else {
        RunObjectEntry(document, host, id, x, y);
    }
}

void ConvertTextsToPaths(Document& document, CanvasHost& host) {
    ConvertSelectedTextsToPaths(document);
    char text[64];
    std::snprintf(text, sizeof text, "Auswahl mit %ld Objekten",
                  static_cast<long>(document.Selection().size()));
    host.SetStatusText(text);
}

void DeleteSelectedNodesOf(Document& document, PathObject& path) {
    DeleteSelectedNodes(path);
    if (path.NodeCount() == 0 && path.GetParent() != nullptr) {
        document.RemoveFromSelection(&path);
        path.GetParent()->DeleteChild(&path, true);
    }
}

bool AddHotspotAtSelection(Document& document) {
    const Rect2 box = document.SelectionBounds();
    if (box.IsEmpty()) return false;
    auto hotspot = std::make_unique<Hotspot>();
    hotspot->SetRect(box.left, box.top, box.right, box.bottom);
    document.AddObject(std::move(hotspot));
    return true;
}

} // namespace rhomba
