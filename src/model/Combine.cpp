#include "model/Combine.h"

#include "model/Document.h"
#include "model/PathFigures.h"
#include "model/PathObject.h"

#include <vector>

namespace rhomba {

PathObject* CombineSelection(Document& document) {
    std::vector<PathObject*> paths;
    for (GraphicObject* object : document.Selection()) {
        if (object->GetKind() == ObjectKind::Path) paths.push_back(static_cast<PathObject*>(object));
    }
    if (paths.size() < 2) return nullptr;
    PathObject* target = paths.front();
    for (std::size_t i = 1; i < paths.size(); ++i) {
        PathObject* other = paths[i];
        target->AppendFrom(*other);
        document.RemoveFromSelection(other);
        if (Group* parent = other->GetParent()) parent->Detach(other);
    }
    return target;
}

int SplitCombination(Document& document) {
    if (document.Selection().size() != 1) return 0;
    GraphicObject* first = document.Selection().front();
    if (first->GetKind() != ObjectKind::Path) return 0;
    auto* path = static_cast<PathObject*>(first);
    Group* parent = path->GetParent();
    if (parent == nullptr || CountFigures(*path) < 2) return 0;

    // Cut every figure after the first in one pass from the back, so that no node moves twice.
    std::vector<NodeRun> figures;
    for (std::size_t end = path->NodeCount(); end > 0;) {
        const FigureRange range = FigureOf(*path, end - 1);
        if (range.first == 0) break;
        figures.push_back(path->CutNodes(range.first, end - range.first));
        end = range.first;
    }
    document.ClearSelection();
    document.AddToSelection(path);
    std::size_t at = static_cast<std::size_t>(parent->IndexOf(path)) + 1;
    for (auto it = figures.rbegin(); it != figures.rend(); ++it) {
        auto piece = std::make_unique<PathObject>();
        piece->SetFill(path->HasFill());
        piece->SetFillColor(path->GetFillColor());
        piece->SetStroke(path->HasStroke());
        piece->SetStrokeColor(path->GetStrokeColor());
        piece->SetPenWidth(path->GetPenWidth());
        piece->SetDashDotRaw(path->GetDashDotRaw());
        piece->InsertNodes(0, *it);
        document.AddToSelection(parent->InsertAt(std::move(piece), &document, 0, at++));
    }
    return static_cast<int>(figures.size()) + 1;
}

} // namespace rhomba
