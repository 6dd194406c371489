#include "win32/shell/Clipboard.h"

#include "export/EmfExport.h"
#include "format/NativeReader.h"
#include "model/Document.h"
#include "win32/GdiDevice.h"
#include "win32/shell/Shell.h"

namespace rhomba {

namespace {

// Locks the clipboard data of format and hands its bytes to read; false when anything fails.
template <typename Read>
bool WithClipboardData(HWND owner, UINT format, Read read) {
    if (!::OpenClipboard(owner)) return false;
    bool done = false;
    if (HANDLE data = ::GetClipboardData(format)) {
        if (const void* bytes = ::GlobalLock(data)) {
            read(bytes, ::GlobalSize(data));
            ::GlobalUnlock(data);
            done = true;
        }
    }
    ::CloseClipboard();
    return done;
}

// The copied objects drawn as the EMF export draws a drawing: read back from their own text, so
// that the picture shows exactly what a paste would insert.
HENHMETAFILE DrawingPicture(const std::string& nativeText) {
    Document copied;
    ParseNative(copied, nativeText, false);
    HDC reference = ::GetDC(nullptr);
    HDC metafile = ::CreateEnhMetaFileA(reference, nullptr, nullptr, "Rhomba\0\0");
    ::ReleaseDC(nullptr, reference);
    if (metafile == nullptr) return nullptr;
    GdiDevice device(metafile);
    RenderEmf(device, copied);
    return ::CloseEnhMetaFile(metafile);
}

} // namespace

std::optional<ClipboardText> ReadClipboardText(HWND owner) {
    std::optional<ClipboardText> text;
    if (::IsClipboardFormatAvailable(CF_UNICODETEXT)) {
        WithClipboardData(owner, CF_UNICODETEXT, [&text](const void* bytes, std::size_t size) {
            const auto* units = static_cast<const char16_t*>(bytes);
            const std::size_t count = size / sizeof(char16_t);
            std::size_t length = 0;
            while (length < count && units[length] != 0) ++length;
            text = FromUnicodeClipboard(std::u16string_view(units, length));
        });
    } else if (::IsClipboardFormatAvailable(CF_TEXT)) {
        WithClipboardData(owner, CF_TEXT, [&text](const void* bytes, std::size_t size) {
            const auto* chars = static_cast<const char*>(bytes);
            std::size_t length = 0;
            while (length < size && chars[length] != 0) ++length;
            text = ClipboardText{std::string(chars, length), false};
        });
    }
    return text;
}

void WriteClipboardDrawing(HWND owner, HWND copyField, const std::string& nativeText) {
    ::SetWindowTextW(copyField, Wide(nativeText).c_str());
    ::SendMessageW(copyField, EM_SETSEL, 0, -1);
    ::SendMessageW(copyField, WM_COPY, 0, 0);
    ::SetWindowTextW(copyField, L"");

    HENHMETAFILE picture = DrawingPicture(nativeText);
    if (picture == nullptr) return;
    if (::OpenClipboard(owner)) {
        // The clipboard owns the picture once it takes it.
        if (::SetClipboardData(CF_ENHMETAFILE, picture) != nullptr) picture = nullptr;
        ::CloseClipboard();
    }
    if (picture != nullptr) ::DeleteEnhMetaFile(picture);
}

} // namespace rhomba
