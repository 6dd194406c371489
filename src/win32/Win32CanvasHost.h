#pragma once

#include "ui/CanvasHost.h"
#include "win32/GdiDevice.h"

#include <windows.h>

#include <array>
#include <functional>
#include <optional>
#include <string>

namespace rhomba {

// The canvas port on the canvas window. The shell creates it with the fourteen cursors it loaded
// (in CanvasCursor order) and sets the callbacks that reach its status strip and panel.
class Win32CanvasHost : public CanvasHost {
public:
    Win32CanvasHost(HWND canvas, const std::array<HCURSOR, kCanvasCursorCount>& cursors);
    ~Win32CanvasHost() override;
    Win32CanvasHost(const Win32CanvasHost&) = delete;
    Win32CanvasHost& operator=(const Win32CanvasHost&) = delete;

    void CaptureMouse() override;
    void ReleaseMouse() override;
    // Becomes the canvas class cursor as well, so that the system shows it on every move.
    void SetToolCursor(CanvasCursor cursor) override;
    void SetCursor(CanvasCursor cursor) override;
    // A GdiDevice on GetDC(canvas) with R2_NOT, released by EndFeedback.
    Device& BeginFeedback() override;
    void EndFeedback() override;
    void ShowCursorPoints(double x, double y) override;
    void ShowCursorMillimetres(double x, double y) override;
    void SetStatusText(const std::string& text) override;
    ClientSize GetClientSize() const override;
    // onRedraw when set, else the whole client area is invalidated with background erase.
    void Redraw() override;
    void RefreshPanel() override;
    // Calls onShowPanelAt with the click in screen coordinates.
    void ShowPanelAt(int x, int y) override;
    // A popup menu at the client point, owned by the canvas, returning the chosen id (0 when
    // dismissed) without sending a command.
    int TrackMenu(const ContextMenu& menu, int x, int y) override;

    // The shell's side; unset ones do nothing. Status texts come as Windows-1252 bytes.
    std::function<void(double x, double y)> onCursorPoints;
    std::function<void(double x, double y)> onCursorMillimetres;
    std::function<void(const std::string& text)> onStatusText;
    std::function<void()> onRedraw;
    std::function<void()> onRefreshPanel;
    std::function<void(int screenX, int screenY)> onShowPanelAt;

private:
    HCURSOR CursorOf(CanvasCursor cursor) const;

    HWND canvas_;
    std::array<HCURSOR, kCanvasCursorCount> cursors_;
    HDC feedbackDc_ = nullptr;
    int feedbackRop_ = R2_COPYPEN;
    std::optional<GdiDevice> feedback_;
};

} // namespace rhomba
