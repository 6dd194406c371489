// The apply steps of node editing and of combining paths.
#include "cli/steps/StepWords.h"
#include "geometry/NumberText.h"
#include "model/Combine.h"
#include "model/Document.h"
#include "model/PathFigures.h"
#include "model/PathNodes.h"
#include "model/PathReduction.h"
#include "model/PathObject.h"
#include "model/Reporter.h"
#include "ui/NodeMenuRules.h"

#include <string>
#include <vector>

namespace rhomba::cli {

namespace {

// The path the node menu acts on: the first selected object, when it is a path.
PathObject* NodePath(StepContext& context) {
    const auto& selection = context.document.Selection();
    if (selection.empty()) {
        context.reporter.Inform("Kein Object markiert!");
        return nullptr;
    }
    if (selection.front()->GetKind() != ObjectKind::Path) {
        context.reporter.Inform("rhomba-cli: the first selected object is not a path");
        return nullptr;
    }
    return static_cast<PathObject*>(selection.front());
}

// A grayed menu entry does nothing; the run goes on.
bool Grayed(StepContext& context, std::string_view entry) {
    context.reporter.Inform("rhomba-cli: node " + std::string(entry) +
                            " is not available for this selection");
    return true;
}

bool RunNodes(StepContext& context, StepWords words) {
    unsigned long long id = 0;
    if (words.empty() || !ReadWhole(words[0], id) || id > 0xFFFFFFFFull) {
        return Tell(context, "nodes needs a path id and node indices");
    }
    GraphicObject* object = context.document.FindById(static_cast<std::uint32_t>(id), true);
    if (object == nullptr || object->GetKind() != ObjectKind::Path) {
        return Tell(context, "#" + std::to_string(id) + " is not a path");
    }
    auto* path = static_cast<PathObject*>(object);
    std::vector<std::size_t> chosen;
    for (std::size_t w = 1; w < words.size(); ++w) {
        unsigned long long index = 0;
        if (!ReadWhole(words[w], index) || index >= path->NodeCount()) {
            return Tell(context, "no node " + std::string(words[w]) + " in #" + std::to_string(id));
        }
        chosen.push_back(static_cast<std::size_t>(index));
    }
    context.document.ClearSelection();
    context.document.AddToSelection(path);
    for (std::size_t i = 0; i < path->NodeCount(); ++i) {
        path->SetType(i, static_cast<NodeType>(path->TypeAt(i) & ~node::kSelected));
    }
    for (std::size_t i : chosen)
        path->SetType(i, static_cast<NodeType>(path->TypeAt(i) | node::kSelected));
    return true;
}

bool RunNode(StepContext& context, StepWords words) {
    if (words.empty()) return Tell(context, "node needs an operation");
    const std::string_view op = words[0];
    const bool known = op == "add" || op == "join-line" || op == "join-intersection" ||
                       op == "delete" || op == "split" || op == "to-curve" || op == "to-line" ||
                       op == "reduce";
    if (!known) return Tell(context, "unknown node operation " + std::string(op));

    double x = 0, y = 0;
    unsigned long long index = 0;
    if (op == "add" &&
        (words.size() != 3 || !ReadWholeNumber(words[1], x) || !ReadWholeNumber(words[2], y))) {
        return Tell(context, "node add needs X Y in points");
    }
    if ((op == "to-curve" || op == "to-line") &&
        (words.size() != 2 || !ReadWhole(words[1], index))) {
        return Tell(context, "node " + std::string(op) + " needs a node index");
    }

    PathObject* path = NodePath(context);
    if (path == nullptr) return true;
    const NodeMenuState menu = NodeMenuRules(path);
    const long a = NextSelectedNode(*path, 0);
    const long b = a < 0 ? -1 : NextSelectedNode(*path, static_cast<std::size_t>(a) + 1);

    if (op == "add") {
        if (!menu[kNodeAdd]) return Grayed(context, op);
        AddNodeAt(*path, {x, y}, AddNodeTolerance(context.document.view.zoom));
    } else if (op == "join-line") {
        if (!menu[kNodeJoinLine]) return Grayed(context, op);
        JoinWithLine(*path, static_cast<std::size_t>(a), static_cast<std::size_t>(b));
    } else if (op == "join-intersection") {
        if (!menu[kNodeJoinIntersection]) return Grayed(context, op);
        JoinAtIntersection(*path, static_cast<std::size_t>(a), static_cast<std::size_t>(b));
    } else if (op == "delete") {
        if (!menu[kNodeDelete]) return Grayed(context, op);
        DeleteSelectedNodes(*path);
        // A path that cannot be drawn any more goes from the drawing.
        if (path->NodeCount() < 2) {
            context.document.RemoveFromSelection(path);
            if (Group* parent = path->GetParent()) parent->Detach(path);
        }
    } else if (op == "split") {
        if (!menu[kNodeSplit]) return Grayed(context, op);
        SplitAtSelectedNodes(*path);
    } else if (op == "to-curve") {
        if (index >= path->NodeCount() || !ConvertToCurve(*path, static_cast<std::size_t>(index))) {
            context.reporter.Inform("rhomba-cli: node " + std::to_string(index) +
                                    " ends no straight segment");
        }
    } else if (op == "to-line") {
        if (index >= path->NodeCount() || !ConvertToLine(*path, static_cast<std::size_t>(index))) {
            context.reporter.Inform("rhomba-cli: node " + std::to_string(index) + " ends no curve");
        }
    } else {
        if (!menu[kNodeReduce]) return Grayed(context, op);
        ReduceSelectedNodes(*path);
    }
    return true;
}

// The path id and every whole number after it.
std::size_t NodesTakes(StepWords next) {
    std::size_t count = next.empty() ? 0 : 1;
    unsigned long long index = 0;
    while (count < next.size() && ReadWhole(next[count], index)) ++count;
    return count;
}

// "add X Y", "to-curve I", "to-line I", or the operation alone.
std::size_t NodeTakes(StepWords next) {
    if (next.empty()) return 0;
    return next[0] == "add" ? 3 : next[0] == "to-curve" || next[0] == "to-line" ? 2 : 1;
}

bool RunCombine(StepContext& context, StepWords) {
    if (CombineSelection(context.document) == nullptr) {
        context.reporter.Inform("rhomba-cli: combine needs two or more selected paths");
    }
    return true;
}

bool RunSplit(StepContext& context, StepWords) {
    if (SplitCombination(context.document) == 0) {
        context.reporter.Inform("rhomba-cli: split needs one selected path with several figures");
    }
    return true;
}

} // namespace

const std::vector<Step>& NodeSteps() {
    static const std::vector<Step> steps{
        {"nodes", "nodes ID I J ... (select path ID and exactly its nodes I, J, ...)", RunNodes,
         NodesTakes},
        {"node",
         "node add X Y | node join-line | node join-intersection | node delete | node split | "
         "node to-curve I | node to-line I | node reduce",
         RunNode, NodeTakes},
        {"combine", "combine", RunCombine, Takes<0>},
        {"split", "split", RunSplit, Takes<0>},
    };
    return steps;
}

} // namespace rhomba::cli
