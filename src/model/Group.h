#pragma once

#include "model/GraphicObject.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace rhomba {

// An ordered set of objects that act as one. Owns its children; index 0 is drawn first, the last
// lies on top.
class Group : public GraphicObject {
public:
    Group() = default;
    // Note: tears the subtree down with a work list, not recursion, so that no depth of nesting
    // can exhaust the stack.
    ~Group() override;

    void Describe(std::string& out) const override;
    void DrawEdit(Device& device, const DrawContext& context, unsigned flags) override;
    // Every child in order, hidden ones included.
    void Render(Device& device, const Matrix2D& view) override;
    // Written only when it holds something; children in order between Group and GroupEnd.
    void SaveNative(NativeWriter& out, bool reset) override;
    // Each layer or group child inside its own <g> wrapper, other children as they are.
    void ExportSvg(SvgWriter& out, const Matrix2D& matrix, int depth) override;
    void SetSelected(bool selected) override;
    int IndexOf(const GraphicObject* child) const override;
    int CountObjects() const override;
    ObjectKind GetKind() const override { return ObjectKind::Group; }
    // The first child writes its box straight into bounds, the others are merged in; true when
    // there is at least one child.
    bool GetBounds(Rect2& bounds, bool withPenWidth) override;
    GraphicObject* FindByName(const std::string& name, bool includeHidden) override;
    GraphicObject* FindById(std::uint32_t id, bool includeHidden) override;
    bool DeleteChild(const GraphicObject* object, bool includeHidden) override;
    // The group itself when any child is hit, children asked from the top down.
    GraphicObject* HitTest(Point2 probe, double tolerance) override;
    void Transform(const Matrix2D& matrix) override;
    void WrapCylinder(const CylinderWrapParams& params) override;
    void RotateIsoPlane(const PlaneRotationParams& params) override;

    // Takes a child out without deleting it; null when it is not a child of this group.
    std::unique_ptr<GraphicObject> Detach(const GraphicObject* child);
    // Attaches object to document (keeping or requesting requestedId) and inserts it before
    // index; any index at or past the end appends. Returns the inserted object.
    GraphicObject* InsertAt(std::unique_ptr<GraphicObject> object, Document* document,
                            std::uint32_t requestedId, std::size_t index);
    // Moves the child at from to position to (positions counted after the removal).
    void MoveChild(std::size_t from, std::size_t to);
    // Deletes every child for which doomed(child) is true, in one pass over the list.
    template <typename Predicate>
    void EraseChildrenIf(Predicate doomed) {
        std::erase_if(children_, [&](const std::unique_ptr<GraphicObject>& child) {
            return doomed(static_cast<const GraphicObject*>(child.get()));
        });
    }
    // Deletes this group's children and takes over those of other, which is left empty; nothing
    // is allocated, so it cannot fail halfway.
    void TakeChildren(Group& other);
    // Deletes the children from position count on.
    void TruncateChildren(std::size_t count) {
        if (count < children_.size()) children_.resize(count);
    }

    std::size_t ChildCount() const { return children_.size(); }
    GraphicObject* ChildAt(std::size_t i) const { return children_[i].get(); }

protected:
    // Asks the children from the top down; the group answers for itself on a hit when asGroup.
    GraphicObject* HitChildren(Point2 probe, double tolerance, bool asGroup);

private:
    std::vector<std::unique_ptr<GraphicObject>> children_;
};

// A top-level division of the drawing. Like a group, but a hit names the child that was hit.
class Layer : public Group {
public:
    ObjectKind GetKind() const override { return ObjectKind::Layer; }
    GraphicObject* HitTest(Point2 probe, double tolerance) override;
};

} // namespace rhomba
