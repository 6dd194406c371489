#include "win32/GdiGlyphSource.h"

#include "text/TextOutline.h"

#include <windows.h>

#include <cwchar>

namespace rhomba {

namespace {

// Selects a font into the desktop's device context for as long as it lives.
class DesktopDc {
public:
    explicit DesktopDc(HFONT font) : dc_(GetDC(nullptr)) {
        if (dc_ != nullptr && font != nullptr) old_ = SelectObject(dc_, font);
    }
    ~DesktopDc() {
        if (dc_ == nullptr) return;
        if (old_ != nullptr) SelectObject(dc_, old_);
        ReleaseDC(nullptr, dc_);
    }
    DesktopDc(const DesktopDc&) = delete;
    DesktopDc& operator=(const DesktopDc&) = delete;

    HDC Get() const { return dc_; }

private:
    HDC dc_;
    HGDIOBJ old_ = nullptr;
};

MAT2 Identity() {
    MAT2 m{};
    m.eM11.value = 1;
    m.eM22.value = 1;
    return m;
}

} // namespace

GdiGlyphSource::~GdiGlyphSource() {
    if (font_ != nullptr) DeleteObject(static_cast<HFONT>(font_));
}

void* GdiGlyphSource::FontFor(const GlyphFace& face) {
    if (font_ != nullptr && face == fontFace_) return font_;
    if (font_ != nullptr) DeleteObject(static_cast<HFONT>(font_));

    LOGFONTW lf{};
    lf.lfHeight = -static_cast<LONG>(1000.0 + 0.5);
    lf.lfWeight = face.bold ? FW_BOLD : FW_NORMAL;
    lf.lfItalic = face.italic ? TRUE : FALSE;
    lf.lfCharSet = ANSI_CHARSET;
    lf.lfOutPrecision = OUT_DEFAULT_PRECIS;
    lf.lfClipPrecision = CLIP_DEFAULT_PRECIS;
    lf.lfQuality = PROOF_QUALITY;
    lf.lfPitchAndFamily = VARIABLE_PITCH;
    const std::u16string name = Cp1252ToUtf16(face.name.substr(0, kMaxFaceNameLength));
    std::size_t i = 0;
    for (; i < name.size() && i < LF_FACESIZE - 1; ++i) lf.lfFaceName[i] = name[i];
    lf.lfFaceName[i] = 0;

    font_ = CreateFontIndirectW(&lf);
    fontFace_ = face;
    return font_;
}

const Glyph* GdiGlyphSource::GetGlyph(const GlyphFace& face, char16_t code) {
    HFONT font = static_cast<HFONT>(FontFor(face));
    if (font == nullptr) return nullptr;
    DesktopDc dc(font);
    if (dc.Get() == nullptr) return nullptr;

    const MAT2 identity = Identity();
    GLYPHMETRICS metrics{};
    const DWORD size = GetGlyphOutlineW(dc.Get(), code, GGO_NATIVE, &metrics, 0, nullptr,
                                        &identity);
    if (size == GDI_ERROR) return nullptr;
    scratch_.records.clear();
    scratch_.cellIncrementX = metrics.gmCellIncX;
    // A blank has no outline but advances.
    if (size == 0) return &scratch_;
    scratch_.records.resize(size);
    if (GetGlyphOutlineW(dc.Get(), code, GGO_NATIVE, &metrics, size, scratch_.records.data(),
                         &identity) == GDI_ERROR) {
        return nullptr;
    }
    return &scratch_;
}

std::u16string GdiGlyphSource::ChosenFaceName(const GlyphFace& face) {
    HFONT font = static_cast<HFONT>(FontFor(face));
    if (font == nullptr) return {};
    DesktopDc dc(font);
    wchar_t name[LF_FACESIZE] = {};
    if (dc.Get() == nullptr || GetTextFaceW(dc.Get(), LF_FACESIZE, name) == 0) return {};
    return std::u16string(name, name + std::wcslen(name));
}

} // namespace rhomba
