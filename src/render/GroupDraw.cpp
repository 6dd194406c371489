#include "model/Group.h"

namespace rhomba {

// Hidden or not, every child goes to the device: the metafile holds the whole drawing.
void Group::Render(Device& device, const Matrix2D& view) {
    for (std::size_t i = 0; i < ChildCount(); ++i) ChildAt(i)->Render(device, view);
}

} // namespace rhomba
