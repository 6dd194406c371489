#include "model/Document.h"

#include "geometry/Isometric.h"

#include <algorithm>
#include <limits>

namespace rhomba {

ViewState::ViewState() {
    const double scale = zoom * kScreenPixelsPerPoint;
    view = Multiply(Matrix2D::Scaling(scale, -scale), Matrix2D::Translation(100, 800));
    Invert(view, inverse);
}

Document::Document() {
    // The document is object 1 of its own numbering.
    id_ = 1;
}

bool Document::GetBounds(Rect2& bounds, bool withPenWidth) {
    bounds = {kEmptyDrawingMark, -kEmptyDrawingMark, -kEmptyDrawingMark, kEmptyDrawingMark};
    return Group::GetBounds(bounds, withPenWidth);
}

GraphicObject* Document::HitTest(Point2 probe, double tolerance) {
    tolerance /= view.zoom;
    for (std::size_t i = 0; i < LayerCount(); ++i) {
        if (GraphicObject* hit = LayerAt(i).HitTest(probe, tolerance)) return hit;
    }
    return nullptr;
}

std::uint32_t Document::IssueId(std::uint32_t requestedId) {
    constexpr std::uint32_t kLargest = std::numeric_limits<std::uint32_t>::max();
    if (requestedId == 0) {
        if (ids_.last < kLargest) return ++ids_.last;
        return IssueFreeId();
    }
    // Keep the counter beyond every id handed out, so later objects never collide with it.
    if (requestedId > ids_.last) ids_.last = requestedId;
    if (ids_.exhausted && requestedId > ids_.gap) {
        ids_.taken.insert(std::lower_bound(ids_.taken.begin(), ids_.taken.end(), requestedId),
                          requestedId);
    }
    return requestedId;
}

std::uint32_t Document::IssueFreeId() {
    if (!ids_.exhausted) {
        // Collected once: from here on the gaps are handed out in rising order.
        ids_.exhausted = true;
        std::vector<const GraphicObject*> work{this};
        while (!work.empty()) {
            const GraphicObject* object = work.back();
            work.pop_back();
            ids_.taken.push_back(object->GetId());
            if (!IsContainer(*object)) continue;
            const Group& group = static_cast<const Group&>(*object);
            for (std::size_t i = 0; i < group.ChildCount(); ++i) work.push_back(group.ChildAt(i));
        }
        std::sort(ids_.taken.begin(), ids_.taken.end());
    }
    auto next = std::upper_bound(ids_.taken.begin(), ids_.taken.end(), ids_.gap);
    while (ids_.gap < std::numeric_limits<std::uint32_t>::max()) {
        ++ids_.gap;
        while (next != ids_.taken.end() && *next < ids_.gap) ++next;
        if (next == ids_.taken.end() || *next != ids_.gap) return ids_.gap;
    }
    return ids_.gap; // four billion objects: nothing left to hand out
}

Layer& Document::CurrentLayer() {
    if (LayerCount() == 0) {
        InsertAt(std::make_unique<Layer>(), this, 0, LayerCount());
        currentLayer_ = 0;
    }
    if (currentLayer_ < 0) currentLayer_ = 0;
    if (static_cast<std::size_t>(currentLayer_) >= LayerCount()) {
        currentLayer_ = static_cast<int>(LayerCount()) - 1;
    }
    return LayerAt(static_cast<std::size_t>(currentLayer_));
}

Layer& Document::NewLayer(const std::string& name, const std::string& flags) {
    if (CurrentLayer().CountObjects() != 0) {
        InsertAt(std::make_unique<Layer>(), this, 0, LayerCount());
        currentLayer_ = static_cast<int>(LayerCount()) - 1;
    }
    Layer& layer = CurrentLayer();
    layer.SetName(name);
    layer.SetHidden(flags.find('v') != std::string::npos);
    return layer;
}

GraphicObject* Document::AddObject(std::unique_ptr<GraphicObject> object) {
    Layer& layer = CurrentLayer();
    GraphicObject* added = layer.InsertAt(std::move(object), this, 0, layer.ChildCount());
    ClearSelection();
    AddToSelection(added);
    return added;
}

void Document::Reset() {
    ClearSelection();
    fileName_.clear();
    currentLayer_ = -1;
    defaults = StyleDefaults{};
    defaults.penWidth = 1.0;
    while (LayerCount() > 0) DeleteChild(ChildAt(LayerCount() - 1), true);
    ids_ = Ids{};
    if (onTitleChange) onTitleChange(fileName_);
}

void Document::TakeDrawing(Document& other) {
    Reset();
    TakeChildren(other);
    ids_ = std::move(other.ids_);
    currentLayer_ = other.currentLayer_;
    other.Reset();
}

void Document::SetFileName(std::string fileName) {
    fileName_ = std::move(fileName);
    if (onTitleChange) onTitleChange(fileName_);
}

Layer* EnclosingLayer(const GraphicObject& object) {
    for (Group* parent = object.GetParent(); parent != nullptr; parent = parent->GetParent()) {
        if (parent->GetKind() == ObjectKind::Layer) return static_cast<Layer*>(parent);
    }
    return nullptr;
}

} // namespace rhomba
