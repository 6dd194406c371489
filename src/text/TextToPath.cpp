#include "text/TextToPath.h"

#include "model/Document.h"
#include "model/TextObject.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace rhomba {

int ConvertSelectedTextsToPaths(Document& document) {
    const std::vector<GraphicObject*> chosen = document.Selection();
    std::unordered_map<const GraphicObject*, GraphicObject*> replaced;

    for (GraphicObject* object : chosen) {
        if (object->GetKind() != ObjectKind::Text) continue;
        auto& text = static_cast<TextObject&>(*object);
        Group* parent = text.GetParent();
        if (parent == nullptr) continue;
        const int index = parent->IndexOf(&text);
        if (index < 0) continue;
        text.RefreshOutline();
        const PathObject& outline = text.Outline();
        if (outline.NodeCount() < 2) continue;

        auto path = std::make_unique<PathObject>();
        path->CopyStyleFrom(text);
        path->ReserveNodes(outline.NodeCount());
        for (std::size_t i = 0; i < outline.NodeCount(); ++i) {
            path->AddNode(outline.PointAt(i), static_cast<NodeType>(
                              outline.TypeAt(i) & ~(node::kSelected | node::kShowHandles)));
        }

        document.RemoveFromSelection(&text);
        parent->Detach(&text); // the text dies here
        replaced[object] = parent->InsertAt(std::move(path), &document, 0,
                                            static_cast<std::size_t>(index));
    }
    if (replaced.empty()) return 0;

    // The new paths take the places of their texts in the selection order.
    document.ClearSelection();
    for (GraphicObject* object : chosen) {
        const auto it = replaced.find(object);
        document.AddToSelection(it != replaced.end() ? it->second : object);
    }
    return static_cast<int>(replaced.size());
}

} // namespace rhomba
