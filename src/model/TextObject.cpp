#include "model/TextObject.h"

#include "model/Document.h"

#include <cstdio>
#include <cstring>

namespace rhomba {

// Ten million short texts must fit in a gigabyte: 72 bytes take an 80-byte heap chunk.
static_assert(sizeof(TextObject) <= 72);

void TextObject::Describe(std::string& out) const {
    char text[48];
    std::snprintf(text, sizeof text, "Text mit %d Zeichen", static_cast<int>(GetText().size()));
    out = text;
}

void TextObject::SetSelected(bool selected) {
    GraphicObject::SetSelected(selected);
    if (TextOutlineBox* box = body_.Box()) box->outline.SetSelected(selected);
}

void TextObject::Attach(Document* document, Group* parent, std::uint32_t requestedId) {
    GraphicObject::Attach(document, parent, requestedId);
    if (outlineId_ == 0 && document != nullptr) outlineId_ = document->IssueId(0);
    if (TextOutlineBox* box = body_.Box()) {
        box->outline.SetParent(parent);
        box->outline.id_ = outlineId_;
    }
}

TextOutlineBox& TextObject::OutlineBox() const {
    if (body_.MakeBox()) {
        PathObject& outline = body_.Box()->outline;
        outline.id_ = outlineId_;
        outline.SetParent(GetParent());
        outline.SetSelected(IsSelected());
        PaintOutline(outline);
    }
    return *body_.Box();
}

void TextObject::PaintOutline(PathObject& outline) const {
    const TextLook& look = Look();
    outline.SetStrokeColor(look.stroke & kColourMask);
    outline.SetStroke((look.stroke & kStyleOn) != 0);
    outline.SetFillColor(look.fill & kColourMask);
    outline.SetFill((look.fill & kStyleOn) != 0);
    outline.SetPenWidth(look.penWidth);
    outline.SetDashDot(look.dash);
}

void TextObject::Invalidate() {
    if (TextOutlineBox* box = body_.Box()) box->cache.clear();
}

double TextObject::GetWidth() const {
    const TextOutlineBox* box = body_.Box();
    return box != nullptr ? box->width : 0;
}

Point2 TextObject::GetEndPoint() const {
    const TextOutlineBox* box = body_.Box();
    return box != nullptr ? box->endPoint : position_;
}

const std::string& TextObject::GetCache() const {
    static const std::string stale;
    const TextOutlineBox* box = body_.Box();
    return box != nullptr ? box->cache : stale;
}

void TextObject::Transform(const Matrix2D& matrix) {
    const Point2 origin = matrix.TransformPoint(position_);
    SetTextPosition(origin.x, origin.y);
    Matrix2D linear = matrix;
    linear.e = 0;
    linear.f = 0;
    const Matrix2D composed = Multiply(GetTextTransform(), linear);
    SetTextTransform(composed.a, composed.b, composed.c, composed.d);
}

template <class Change>
void TextObject::ChangeLook(bool glyphs, Change change) {
    if (glyphs) Invalidate();
    TextLook next = Look();
    change(next);
    look_.Change(next);
    if (TextOutlineBox* box = body_.Box()) PaintOutline(box->outline);
}

void TextObject::SetStrokeColor(ColorRef color) {
    ChangeLook(false, [color](TextLook& look) { look.stroke = WithColour(look.stroke, color); });
}

void TextObject::SetStroke(bool on) {
    ChangeLook(false, [on](TextLook& look) { look.stroke = WithSwitch(look.stroke, on); });
}

void TextObject::SetFillColor(ColorRef color) {
    ChangeLook(false, [color](TextLook& look) { look.fill = WithColour(look.fill, color); });
}

void TextObject::SetFill(bool on) {
    ChangeLook(false, [on](TextLook& look) { look.fill = WithSwitch(look.fill, on); });
}

void TextObject::SetPenWidth(double width) {
    ChangeLook(false, [width](TextLook& look) { look.penWidth = width; });
}

void TextObject::SetDashDotRaw(std::uint64_t raw) {
    DashDot dash;
    std::memcpy(dash.data(), &raw, sizeof raw);
    SetDashDot(dash);
}

void TextObject::SetDashDot(const DashDot& dash) {
    ChangeLook(false, [&dash](TextLook& look) { look.dash = dash; });
}

std::uint64_t TextObject::GetDashDotRaw() const {
    std::uint64_t raw;
    std::memcpy(&raw, Look().dash.data(), sizeof raw);
    return raw;
}

bool TextObject::GetDashDot(DashDot& dash) const {
    dash = Look().dash;
    return true;
}

void TextObject::SetTextFont(const std::string& font) {
    if (font == GetFont()) return;
    ChangeLook(true, [&font](TextLook& look) { look.font = font; });
}

void TextObject::SetTextSize(double size) {
    if (size == GetSize()) return;
    ChangeLook(true, [size](TextLook& look) { look.size = size; });
}

void TextObject::SetTextPosition(double x, double y) {
    if (x == position_.x && y == position_.y) return;
    Invalidate();
    position_ = {x, y};
}

void TextObject::SetText(const std::string& text) {
    if (text == GetText()) return;
    Invalidate();
    if (text.size() > TextBody::kInPlace) OutlineBox();
    body_.Assign(text);
}

void TextObject::SetBold(bool bold) {
    if (bold == IsBold()) return;
    ChangeLook(true, [](TextLook& look) { look.style ^= kBold; });
}

void TextObject::SetItalic(bool italic) {
    if (italic == IsItalic()) return;
    ChangeLook(true, [](TextLook& look) { look.style ^= kItalic; });
}

void TextObject::SetTextTransform(double a, double b, double c, double d) {
    const Matrix2D& now = GetTextTransform();
    if (a == now.a && b == now.b && c == now.c && d == now.d) return;
    ChangeLook(true, [=](TextLook& look) { look.transform = {a, b, c, d, 0, 0}; });
}

bool TextObject::AppendFrom(const GraphicObject& other) {
    if (other.GetKind() != ObjectKind::Text) return false;
    SetText(std::string(GetText()).append(static_cast<const TextObject&>(other).GetText()));
    return true;
}

} // namespace rhomba
