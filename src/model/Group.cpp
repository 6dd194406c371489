#include "model/Group.h"

#include <cstdio>

namespace rhomba {

Group::~Group() {
    // Children go from the last to the first; a nested group hands its children to the work list
    // before it dies, so each destructor below runs on an empty group.
    std::vector<std::unique_ptr<GraphicObject>> pending = std::move(children_);
    while (!pending.empty()) {
        std::unique_ptr<GraphicObject> object = std::move(pending.back());
        pending.pop_back();
        if (IsContainer(*object)) {
            auto& nested = static_cast<Group&>(*object).children_;
            for (auto& child : nested) pending.push_back(std::move(child));
            nested.clear();
        }
    }
}

void Group::Describe(std::string& out) const {
    char text[48];
    std::snprintf(text, sizeof text, "Gruppe mit %d Objekten", static_cast<int>(ChildCount()));
    out = text;
}

void Group::SetSelected(bool selected) {
    GraphicObject::SetSelected(selected);
    for (auto& child : children_) child->SetSelected(selected);
}

int Group::IndexOf(const GraphicObject* child) const {
    for (std::size_t i = 0; i < children_.size(); ++i) {
        if (children_[i].get() == child) return static_cast<int>(i);
    }
    return -1;
}

int Group::CountObjects() const {
    int count = 0;
    for (const auto& child : children_) count += child->CountObjects();
    return count;
}

bool Group::GetBounds(Rect2& bounds, bool withPenWidth) {
    if (children_.empty()) return false;
    // The children's own answers are not checked: a child with nothing to measure leaves the
    // box as it was, and the temporary starts empty so that merging it changes nothing.
    children_.front()->GetBounds(bounds, withPenWidth);
    for (std::size_t i = 1; i < children_.size(); ++i) {
        Rect2 box = Rect2::Empty();
        children_[i]->GetBounds(box, withPenWidth);
        bounds.Merge(box);
    }
    return true;
}

GraphicObject* Group::FindByName(const std::string& name, bool includeHidden) {
    if (IsHidden() && !includeHidden) return nullptr;
    for (auto it = children_.rbegin(); it != children_.rend(); ++it) {
        if (GraphicObject* found = (*it)->FindByName(name, includeHidden)) return found;
    }
    return GetName() == name ? this : nullptr;
}

GraphicObject* Group::FindById(std::uint32_t id, bool includeHidden) {
    if (IsHidden() && !includeHidden) return nullptr;
    if (GetId() == id) return this;
    for (auto it = children_.rbegin(); it != children_.rend(); ++it) {
        if (GraphicObject* found = (*it)->FindById(id, includeHidden)) return found;
    }
    return nullptr;
}

bool Group::DeleteChild(const GraphicObject* object, bool includeHidden) {
    if (IsHidden() && !includeHidden) return false;
    for (std::size_t i = children_.size(); i-- > 0;) {
        if (children_[i].get() == object) {
            children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(i));
            return true;
        }
        if (children_[i]->DeleteChild(object, includeHidden)) return true;
    }
    return false;
}

GraphicObject* Group::HitChildren(Point2 probe, double tolerance, bool asGroup) {
    if (IsHidden()) return nullptr;
    for (auto it = children_.rbegin(); it != children_.rend(); ++it) {
        if (GraphicObject* hit = (*it)->HitTest(probe, tolerance)) return asGroup ? this : hit;
    }
    return nullptr;
}

GraphicObject* Group::HitTest(Point2 probe, double tolerance) {
    return HitChildren(probe, tolerance, true);
}

GraphicObject* Layer::HitTest(Point2 probe, double tolerance) {
    return HitChildren(probe, tolerance, false);
}

void Group::Transform(const Matrix2D& matrix) {
    for (auto& child : children_) child->Transform(matrix);
}

void Group::WrapCylinder(const CylinderWrapParams& params) {
    for (auto& child : children_) child->WrapCylinder(params);
}

void Group::RotateIsoPlane(const PlaneRotationParams& params) {
    for (auto& child : children_) child->RotateIsoPlane(params);
}

std::unique_ptr<GraphicObject> Group::Detach(const GraphicObject* child) {
    const int index = IndexOf(child);
    if (index < 0) return nullptr;
    std::unique_ptr<GraphicObject> object = std::move(children_[static_cast<std::size_t>(index)]);
    children_.erase(children_.begin() + index);
    object->SetParent(nullptr);
    return object;
}

GraphicObject* Group::InsertAt(std::unique_ptr<GraphicObject> object, Document* document,
                               std::uint32_t requestedId, std::size_t index) {
    GraphicObject* raw = object.get();
    raw->Attach(document, this, requestedId);
    if (index >= children_.size()) {
        children_.push_back(std::move(object));
    } else {
        children_.insert(children_.begin() + static_cast<std::ptrdiff_t>(index), std::move(object));
    }
    return raw;
}

void Group::TakeChildren(Group& other) {
    std::vector<std::unique_ptr<GraphicObject>> old = std::move(children_);
    children_.swap(other.children_);
    for (auto& child : children_) child->SetParent(this);
    old.swap(other.children_); // other keeps an empty list; the old children go with old
}

void Group::MoveChild(std::size_t from, std::size_t to) {
    if (from >= children_.size() || to >= children_.size() || from == to) return;
    std::unique_ptr<GraphicObject> object = std::move(children_[from]);
    children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(from));
    children_.insert(children_.begin() + static_cast<std::ptrdiff_t>(to), std::move(object));
}

} // namespace rhomba
