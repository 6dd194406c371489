#include "model/TextBody.h"

#include <cassert>
#include <cstring>

namespace rhomba {

std::string_view TextBody::View() const {
    if (const TextOutlineBox* box = Box()) return box->text;
    return {bytes_.data(), static_cast<std::size_t>(bytes_[kInPlace])};
}

void TextBody::Assign(std::string_view text) {
    if (TextOutlineBox* box = Box()) {
        box->text.assign(text);
        return;
    }
    assert(text.size() <= kInPlace);
    bytes_.fill(0);
    std::memcpy(bytes_.data(), text.data(), text.size());
    bytes_[kInPlace] = static_cast<char>(text.size());
}

TextOutlineBox* TextBody::Box() const {
    if (bytes_[kInPlace] != kBoxed) return nullptr;
    TextOutlineBox* box;
    std::memcpy(&box, bytes_.data(), sizeof box);
    return box;
}

bool TextBody::MakeBox() {
    if (Box() != nullptr) return false;
    auto* box = new TextOutlineBox;
    box->text.assign(View());
    std::memcpy(bytes_.data(), &box, sizeof box);
    bytes_[kInPlace] = kBoxed;
    return true;
}

} // namespace rhomba
