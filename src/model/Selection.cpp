#include "model/Document.h"

#include <algorithm>
#include <unordered_set>

namespace rhomba {

void Document::ClearSelection() {
    for (GraphicObject* object : selection_) object->SetSelected(false);
    selection_.clear();
}

void Document::AddToSelection(GraphicObject* object) {
    if (object == nullptr) return;
    // The flag answers for nearly every object; only one flagged through a selected group may
    // be missing from the list, so only a flagged one costs a search.
    const bool listed = object->IsSelected() &&
                        std::find(selection_.begin(), selection_.end(), object) != selection_.end();
    object->SetSelected(true);
    if (!listed) selection_.push_back(object);
}

void Document::RemoveFromSelection(GraphicObject* object) {
    auto it = std::find(selection_.begin(), selection_.end(), object);
    if (it == selection_.end()) return;
    object->SetSelected(false);
    selection_.erase(it);
}

void Document::ToggleSelection(GraphicObject* object) {
    if (object == nullptr) return;
    if (object->IsSelected()) {
        RemoveFromSelection(object);
    } else {
        AddToSelection(object);
    }
}

void Document::ChangeSelection(const std::vector<GraphicObject*>& objects, SelectionChange change) {
    if (change == SelectionChange::Replace) {
        ClearSelection();
        selection_.reserve(objects.size());
        for (GraphicObject* object : objects) {
            if (object == nullptr) continue;
            object->SetSelected(true);
            selection_.push_back(object);
        }
        return;
    }
    std::unordered_set<const GraphicObject*> selected(selection_.begin(), selection_.end());
    std::unordered_set<const GraphicObject*> dropped;
    for (GraphicObject* object : objects) {
        if (object == nullptr) continue;
        if (selected.count(object) == 0) {
            object->SetSelected(true);
            selection_.push_back(object);
            selected.insert(object);
        } else if (change == SelectionChange::Toggle) {
            object->SetSelected(false);
            dropped.insert(object);
        }
    }
    if (dropped.empty()) return;
    std::erase_if(selection_, [&](const GraphicObject* object) { return dropped.count(object) != 0; });
}

void Document::DeleteSelection() {
    std::vector<GraphicObject*> doomed;
    doomed.swap(selection_);
    for (GraphicObject* object : doomed) object->SetSelected(false);

    // An object inside another selected object dies with it; deleting it first by pointer
    // after its ancestor is gone could hit a new object at a reused address.
    const std::unordered_set<const GraphicObject*> chosen(doomed.begin(), doomed.end());
    auto insideChosen = [&](const GraphicObject* object) {
        for (const Group* p = object->GetParent(); p != nullptr; p = p->GetParent()) {
            if (chosen.count(p) != 0) return true;
        }
        return false;
    };
    // Each parent's list is swept once, however many of its children go.
    std::unordered_set<Group*> parents;
    for (GraphicObject* object : doomed) {
        if (!insideChosen(object) && object->GetParent() != nullptr) {
            parents.insert(object->GetParent());
        }
    }
    for (Group* parent : parents) {
        parent->EraseChildrenIf([&](const GraphicObject* child) { return chosen.count(child) != 0; });
    }
}

Rect2 Document::SelectionBounds() {
    Rect2 bounds = Rect2::Empty();
    for (GraphicObject* object : selection_) {
        Rect2 box = Rect2::Empty();
        if (object->GetBounds(box, false)) bounds.Merge(box);
    }
    return bounds;
}

void Document::Arrange(int step) {
    switch (step) {
    case -1: ArrangeBackward(false); break;
    case -111: ArrangeBackward(true); break;
    case 1: ArrangeForward(false); break;
    case 111: ArrangeForward(true); break;
    default: break;
    }
}

void Document::ArrangeBackward(bool all) {
    for (GraphicObject* object : selection_) {
        Group* parent = object->GetParent();
        if (parent == nullptr) continue;
        const int index = parent->IndexOf(object);
        if (index <= 0) continue;
        const auto at = static_cast<std::size_t>(index);
        if (!all) {
            if (!parent->ChildAt(at - 1)->IsSelected()) parent->MoveChild(at, at - 1);
            continue;
        }
        // To just before the first unselected sibling, when that lies below the object.
        for (std::size_t i = 0; i < at; ++i) {
            if (!parent->ChildAt(i)->IsSelected()) {
                parent->MoveChild(at, i);
                break;
            }
        }
    }
}

void Document::ArrangeForward(bool all) {
    for (auto it = selection_.rbegin(); it != selection_.rend(); ++it) {
        GraphicObject* object = *it;
        Group* parent = object->GetParent();
        if (parent == nullptr) continue;
        const int index = parent->IndexOf(object);
        if (index < 0) continue;
        const auto at = static_cast<std::size_t>(index);
        const std::size_t count = parent->ChildCount();
        if (!all) {
            if (at + 1 < count && !parent->ChildAt(at + 1)->IsSelected()) {
                parent->MoveChild(at, at + 1);
            }
            continue;
        }
        // To just after the last unselected sibling, when that lies above the object; after the
        // object is taken out, that sibling's slot is where it goes.
        for (std::size_t i = count; i-- > at + 1;) {
            if (!parent->ChildAt(i)->IsSelected()) {
                parent->MoveChild(at, i);
                break;
            }
        }
    }
}

Group* Document::GroupSelection() {
    if (selection_.empty()) return nullptr;
    Layer* layer = EnclosingLayer(*selection_.back());
    if (layer == nullptr) return nullptr;

    auto group = std::make_unique<Group>();
    for (GraphicObject* object : selection_) {
        Group* parent = object->GetParent();
        const ObjectKind kind = object->GetKind();
        // Layers and the document never move into a group.
        if (parent == nullptr || kind == ObjectKind::Layer || kind == ObjectKind::Document) continue;
        group->InsertAt(parent->Detach(object), this, 0, group->ChildCount());
    }
    selection_.clear();
    Group* added = static_cast<Group*>(
        layer->InsertAt(std::move(group), this, 0, layer->ChildCount()));
    AddToSelection(added);
    return added;
}

bool Document::UngroupSelection() {
    if (selection_.size() != 1 || selection_.front()->GetKind() != ObjectKind::Group) {
        return false;
    }
    auto* group = static_cast<Group*>(selection_.front());
    Layer* layer = EnclosingLayer(*group);
    if (layer == nullptr) return false;

    ClearSelection();
    std::unique_ptr<GraphicObject> owned = group->GetParent()->Detach(group);
    while (group->ChildCount() > 0) {
        std::unique_ptr<GraphicObject> child = group->Detach(group->ChildAt(0));
        AddToSelection(layer->InsertAt(std::move(child), this, 0, layer->ChildCount()));
    }
    return true;
}

} // namespace rhomba
