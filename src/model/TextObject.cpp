#include "model/TextObject.h"

#include <cstdio>

namespace rhomba {

TextObject::TextObject() {
    // Solid black letters: stroke off with colour 0, fill on with colour 0.
    outline_.SetStroke(false);
    outline_.SetStrokeColor(0);
    outline_.SetFill(true);
    outline_.SetFillColor(0);
}

void TextObject::Describe(std::string& out) const {
    char text[48];
    std::snprintf(text, sizeof text, "Text mit %d Zeichen", static_cast<int>(text_.size()));
    out = text;
}

void TextObject::SetSelected(bool selected) {
    GraphicObject::SetSelected(selected);
    outline_.SetSelected(selected);
}

void TextObject::Attach(Document* document, Group* parent, std::uint32_t requestedId) {
    GraphicObject::Attach(document, parent, requestedId);
    outline_.Attach(document, parent, 0);
}

void TextObject::Transform(const Matrix2D& matrix) {
    const Point2 origin = matrix.TransformPoint(position_);
    SetTextPosition(origin.x, origin.y);
    Matrix2D linear = matrix;
    linear.e = 0;
    linear.f = 0;
    const Matrix2D composed = Multiply(transform_, linear);
    SetTextTransform(composed.a, composed.b, composed.c, composed.d);
}

void TextObject::SetTextFont(const std::string& font) {
    if (font == font_) return;
    Invalidate();
    font_ = font;
}

void TextObject::SetTextSize(double size) {
    if (size == size_) return;
    Invalidate();
    size_ = size;
}

void TextObject::SetTextPosition(double x, double y) {
    if (x == position_.x && y == position_.y) return;
    Invalidate();
    position_ = {x, y};
}

void TextObject::SetText(const std::string& text) {
    if (text == text_) return;
    Invalidate();
    text_ = text;
}

void TextObject::SetBold(bool bold) {
    if (bold == IsBold()) return;
    Invalidate();
    style_ ^= kBold;
}

void TextObject::SetItalic(bool italic) {
    if (italic == IsItalic()) return;
    Invalidate();
    style_ ^= kItalic;
}

void TextObject::SetTextTransform(double a, double b, double c, double d) {
    if (a == transform_.a && b == transform_.b && c == transform_.c && d == transform_.d) return;
    Invalidate();
    transform_ = {a, b, c, d, 0, 0};
}

bool TextObject::AppendFrom(const GraphicObject& other) {
    if (other.GetKind() != ObjectKind::Text) return false;
    SetText(text_ + static_cast<const TextObject&>(other).text_);
    return true;
}

} // namespace rhomba
