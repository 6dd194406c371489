#pragma once

#include "geometry/Point2.h"
#include "render/RecordingDevice.h"
#include "ui/CanvasHost.h"
#include "ui/ContextMenu.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace rhomba::test {

// A canvas that records what the tools ask of it. Feedback goes to screen, a recording device.
class FakeCanvasHost : public CanvasHost {
public:
    void CaptureMouse() override { captured = true; }
    void ReleaseMouse() override { captured = false; }
    void SetToolCursor(CanvasCursor c) override { toolCursor = cursor = c; }
    void SetCursor(CanvasCursor c) override { cursor = c; }
    Device& BeginFeedback() override {
        EXPECT_FALSE(inFeedback_) << "feedback drawings nest";
        inFeedback_ = true;
        ropBefore_ = screen.SetROP2(gdi::kR2Not);
        return screen;
    }
    void EndFeedback() override {
        inFeedback_ = false;
        screen.SetROP2(ropBefore_);
    }
    void ShowCursorPoints(double x, double y) override { points = {x, y}; }
    void ShowCursorMillimetres(double x, double y) override { millimetres = {x, y}; }
    void SetStatusText(const std::string& text) override { status = text; }
    ClientSize GetClientSize() const override { return size; }
    void Redraw() override { ++redraws; }
    void RefreshPanel() override { ++panelRefreshes; }
    void ShowPanelAt(int x, int y) override { panelAt = {x, y}; }
    int TrackMenu(const ContextMenu& m, int x, int y) override {
        menu = m;
        menuAt = {x, y};
        return menuChoice;
    }

    // The figures left on the screen: those drawn an odd number of times since the last repaint.
    std::vector<std::string> Visible() const {
        std::map<std::string, int> count;
        std::string at;
        for (const std::string& call : screen.Calls()) {
            const std::string name = call.substr(0, call.find(' '));
            if (name == "MoveTo") {
                at = call.substr(6);
            } else if (name == "LineTo") {
                ++count["Line" + at + " to" + call.substr(6)];
                at = call.substr(6);
            } else if (name == "Rectangle" || name == "Ellipse" || name == "PolyDraw") {
                ++count[call];
            }
        }
        std::vector<std::string> odd;
        for (const auto& [figure, n] : count) {
            if (n % 2 != 0) odd.push_back(figure);
        }
        return odd;
    }

    // A repaint wipes the canvas; paintFeedback then draws on the fresh picture.
    template <typename F> void Repaint(F paintFeedback) {
        screen.ClearCalls();
        paintFeedback(screen);
    }

    RecordingDevice screen;
    bool captured = false;
    CanvasCursor toolCursor = CanvasCursor::Arrow;
    CanvasCursor cursor = CanvasCursor::Arrow;
    Point2 points, millimetres;
    std::string status;
    ClientSize size{800, 600};
    int redraws = 0;
    int panelRefreshes = 0;
    DevicePoint panelAt{-1, -1};
    ContextMenu menu;
    DevicePoint menuAt{-1, -1};
    int menuChoice = 0;

private:
    bool inFeedback_ = false;
    int ropBefore_ = gdi::kR2CopyPen;
};

} // namespace rhomba::test
