#include "model/GraphicObject.h"

#include "model/Document.h"

namespace rhomba {

void GraphicObject::Describe(std::string& out) const { out = "Grafikdaten"; }
void GraphicObject::DrawEdit(Device&, const DrawContext&, unsigned) {}
void GraphicObject::SaveNative(NativeWriter&, bool) {}
void GraphicObject::ExportQuenda(QuendaWriter&, const Matrix2D&) {}
void GraphicObject::ExportSvg(SvgWriter&, const Matrix2D&, int) {}
void GraphicObject::Render(Device&, const Matrix2D&) {}
void GraphicObject::ReadQuenda(QuendaReader&, const Matrix2D&) {}

void GraphicObject::SetSelected(bool selected) {
    flags_ = selected ? (flags_ | kFlagSelected) : (flags_ & ~kFlagSelected);
}
bool GraphicObject::IsSelected() const { return (flags_ & kFlagSelected) != 0; }

void GraphicObject::SetHidden(bool hidden) {
    flags_ = hidden ? (flags_ | kFlagHidden) : (flags_ & ~kFlagHidden);
}
bool GraphicObject::IsHidden() const { return (flags_ & kFlagHidden) != 0; }

const std::string& GraphicObject::GetName() const {
    static const std::string none;
    return name_ != nullptr ? *name_ : none;
}

void GraphicObject::SetName(std::string name) {
    if (name.empty()) {
        name_.reset();
    } else if (name_ != nullptr) {
        *name_ = std::move(name);
    } else {
        name_ = std::make_unique<std::string>(std::move(name));
    }
}

Document* GraphicObject::GetOwner() const {
    const GraphicObject* top = this;
    while (top->parent_ != nullptr) top = top->parent_;
    if (top->GetKind() != ObjectKind::Document) return nullptr;
    return static_cast<Document*>(const_cast<GraphicObject*>(top));
}

void GraphicObject::Attach(Document* document, Group* parent, std::uint32_t requestedId) {
    parent_ = parent;
    if (id_ == 0 && document != nullptr) id_ = document->IssueId(requestedId);
}

int GraphicObject::IndexOf(const GraphicObject*) const { return -1; }

bool GraphicObject::CollectInRect(std::vector<GraphicObject*>&, double, double, double, double,
                                  int) {
    return false;
}

int GraphicObject::CountObjects() const { return 1; }
ObjectKind GraphicObject::GetKind() const { return ObjectKind::Graphic; }
bool GraphicObject::GetBounds(Rect2&, bool) { return false; }

GraphicObject* GraphicObject::FindByName(const std::string& name, bool includeHidden) {
    if (IsHidden() && !includeHidden) return nullptr;
    return GetName() == name ? this : nullptr;
}

GraphicObject* GraphicObject::FindById(std::uint32_t id, bool includeHidden) {
    if (IsHidden() && !includeHidden) return nullptr;
    return id_ == id ? this : nullptr;
}

bool GraphicObject::DeleteChild(const GraphicObject*, bool) { return false; }
GraphicObject* GraphicObject::HitTest(Point2, double) { return nullptr; }
void GraphicObject::Transform(const Matrix2D&) {}
void GraphicObject::SetStrokeColor(ColorRef) {}
ColorRef GraphicObject::GetStrokeColor() const { return 0; }
void GraphicObject::SetStroke(bool) {}
bool GraphicObject::HasStroke() const { return false; }
void GraphicObject::SetFillColor(ColorRef) {}
ColorRef GraphicObject::GetFillColor() const { return 0; }
void GraphicObject::SetFill(bool) {}
bool GraphicObject::HasFill() const { return false; }
void GraphicObject::SetPenWidth(double) {}
double GraphicObject::GetPenWidth() const { return 0.0; }
void GraphicObject::SetDashDotRaw(std::uint64_t) {}
void GraphicObject::SetDashDot(const DashDot&) {}
std::uint64_t GraphicObject::GetDashDotRaw() const { return 0; }
bool GraphicObject::GetDashDot(DashDot&) const { return false; }
int GraphicObject::GetDashCount() const { return 0; }
void GraphicObject::SetTextFont(const std::string&) {}
void GraphicObject::SetTextSize(double) {}
void GraphicObject::SetTextPosition(double, double) {}
void GraphicObject::SetText(const std::string&) {}
void GraphicObject::SetBold(bool) {}
void GraphicObject::SetItalic(bool) {}
bool GraphicObject::AppendFrom(const GraphicObject&) { return false; }
std::unique_ptr<GraphicObject> GraphicObject::SplitOff() { return nullptr; }

void GraphicObject::CopyStyleFrom(const GraphicObject& other) {
    SetName(other.GetName());
    SetStrokeColor(other.GetStrokeColor());
    SetStroke(other.HasStroke());
    SetPenWidth(other.GetPenWidth());
    DashDot dash{};
    other.GetDashDot(dash);
    SetDashDot(dash);
    SetFillColor(other.GetFillColor());
    SetFill(other.HasFill());
}

void GraphicObject::WrapCylinder(const CylinderWrapParams&) {}
void GraphicObject::RotateIsoPlane(const PlaneRotationParams&) {}

} // namespace rhomba
