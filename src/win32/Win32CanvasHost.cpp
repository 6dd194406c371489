#include "win32/Win32CanvasHost.h"

#include "win32/Text.h"

#include "ui/ContextMenu.h"

namespace rhomba {

Win32CanvasHost::Win32CanvasHost(HWND canvas,
                                 const std::array<HCURSOR, kCanvasCursorCount>& cursors)
    : canvas_(canvas), cursors_(cursors) {}

Win32CanvasHost::~Win32CanvasHost() {
    if (feedbackDc_ != nullptr) EndFeedback();
}

void Win32CanvasHost::CaptureMouse() { ::SetCapture(canvas_); }

void Win32CanvasHost::ReleaseMouse() {
    if (::GetCapture() == canvas_) ::ReleaseCapture();
}

HCURSOR Win32CanvasHost::CursorOf(CanvasCursor cursor) const {
    const auto i = static_cast<std::size_t>(cursor);
    return i < cursors_.size() ? cursors_[i] : nullptr;
}

void Win32CanvasHost::SetToolCursor(CanvasCursor cursor) {
    const HCURSOR handle = CursorOf(cursor);
    ::SetClassLongPtrW(canvas_, GCLP_HCURSOR, reinterpret_cast<LONG_PTR>(handle));
    ::SetCursor(handle);
}

void Win32CanvasHost::SetCursor(CanvasCursor cursor) { ::SetCursor(CursorOf(cursor)); }

Device& Win32CanvasHost::BeginFeedback() {
    if (feedbackDc_ == nullptr) {
        feedbackDc_ = ::GetDC(canvas_);
        feedbackRop_ = ::SetROP2(feedbackDc_, R2_NOT);
        feedback_.emplace(feedbackDc_);
    }
    return *feedback_;
}

void Win32CanvasHost::EndFeedback() {
    if (feedbackDc_ == nullptr) return;
    feedback_.reset();
    ::SetROP2(feedbackDc_, feedbackRop_);
    ::ReleaseDC(canvas_, feedbackDc_);
    feedbackDc_ = nullptr;
}

void Win32CanvasHost::ShowCursorPoints(double x, double y) {
    if (onCursorPoints) onCursorPoints(x, y);
}

void Win32CanvasHost::ShowCursorMillimetres(double x, double y) {
    if (onCursorMillimetres) onCursorMillimetres(x, y);
}

void Win32CanvasHost::SetStatusText(const std::string& text) {
    if (onStatusText) onStatusText(text);
}

ClientSize Win32CanvasHost::GetClientSize() const {
    RECT r{};
    ::GetClientRect(canvas_, &r);
    return {r.right - r.left, r.bottom - r.top};
}

void Win32CanvasHost::Redraw() {
    if (onRedraw) {
        onRedraw();
    } else {
        ::InvalidateRect(canvas_, nullptr, TRUE);
    }
}

void Win32CanvasHost::RefreshPanel() {
    if (onRefreshPanel) onRefreshPanel();
}

void Win32CanvasHost::ShowPanelAt(int x, int y) {
    POINT p{x, y};
    ::ClientToScreen(canvas_, &p);
    if (onShowPanelAt) onShowPanelAt(p.x, p.y);
}

int Win32CanvasHost::TrackMenu(const ContextMenu& menu, int x, int y) {
    HMENU popup = ::CreatePopupMenu();
    if (popup == nullptr) return 0;
    for (const MenuEntry& entry : menu.entries) {
        if (entry.IsSeparator()) {
            ::AppendMenuW(popup, MF_SEPARATOR, 0, nullptr);
        } else {
            const UINT state = entry.enabled ? MF_ENABLED : MF_GRAYED;
            ::AppendMenuW(popup, MF_STRING | state, static_cast<UINT_PTR>(entry.id),
                          Wide(entry.text).c_str());
        }
    }
    POINT p{x, y};
    ::ClientToScreen(canvas_, &p);
    const int chosen = static_cast<int>(::TrackPopupMenu(
        popup, TPM_RETURNCMD | TPM_NONOTIFY | TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, p.x,
        p.y, 0, canvas_, nullptr));
    ::DestroyMenu(popup);
    return chosen;
}

} // namespace rhomba
