#include "model/Group.h"
#include "render/DrawContext.h"

namespace rhomba {

void Group::DrawEdit(Device& device, const DrawContext& context, unsigned flags) {
    if (IsHidden())
        return;
    for (auto& child : children_) {
        if (MayShow(*child, context))
            child->DrawEdit(device, context, flags);
    }
}

// Hidden or not, every child goes to the device: the metafile holds the whole drawing.
void Group::Render(Device& device, const Matrix2D& view) {
    for (std::size_t i = 0; i < ChildCount(); ++i)
        ChildAt(i)->Render(device, view);
}

} // namespace rhomba
