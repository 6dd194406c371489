// The transformation and generator dialogs opened through their menu commands in the running
// editor: typed into and clicked as a user would, and checked against the same model on
// in-memory fields over a copy of the input.
#include "format/NativeWriter.h"
#include "support/Paths.h"
#include "ui/dialogs/AffineDialogs.h"
#include "ui/dialogs/FieldDialog.h"
#include "ui/dialogs/GeneratorDialogs.h"
#include "ui/dialogs/IsoSpaceDialogs.h"
#include "win32/dialogs/ModelDialog.h"
#include "win32/support/EditorFixture.h"
#include "win32/support/ModalDriver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <span>

namespace rhomba::test {
namespace {

// One user action: typing text into a field, or, without text, clicking a button (a disabled
// one takes no click).
struct Step {
    int id;
    std::optional<std::string> text = std::nullopt;
};
using Steps = std::vector<Step>;

void Play(HWND dialog, const Steps& steps) {
    for (const Step& step : steps) {
        HWND control = ::GetDlgItem(dialog, step.id);
        if (step.text) ModalDriver::Type(dialog, step.id, Wide(*step.text));
        else if (::IsWindowEnabled(control)) ::SendMessageW(control, BM_CLICK, 0, 0);
    }
}

// Every radio group of these dialogs; any other clicked button is a check box.
const std::span<const int> kRadioGroups[] = {
    RotateDialogModel::kDirections, PlaneDialogModel::kPlanes,   PlaneDialogModel::kFirstAxes,
    PlaneDialogModel::kSecondAxes,  PolygonDialogModel::kStarts, SpiralDialogModel::kKinds};

template <typename Model>
void Play(FieldDialog<Model>& dialog, const Steps& steps) {
    for (const Step& step : steps) {
        if (step.text) dialog.Type(step.id, *step.text);
        if (step.text || !dialog.fields.IsEnabled(step.id)) continue;
        bool radio = false;
        for (std::span<const int> group : kRadioGroups) {
            const auto at = std::find(group.begin(), group.end(), step.id);
            if (at == group.end()) continue;
            dialog.Click(group.data(), int(group.size()), int(at - group.begin()));
            radio = true;
        }
        if (!radio) dialog.Check(step.id, !dialog.fields.IsChecked(step.id));
    }
}

// Every edit field's text and every button's state (checked, unchecked, disabled) among the
// controls of dialog, read through fields.
std::string Snapshot(HWND dialog, const DialogFields& fields) {
    std::string shown;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        wchar_t kind[16] = {};
        ::GetClassNameW(child, kind, 16);
        const int id = ::GetDlgCtrlID(child);
        if (std::wstring(kind) == L"Edit") shown += " '" + fields.GetText(id) + "'";
        if (std::wstring(kind) == L"Button")
            shown += fields.IsEnabled(id) ? fields.IsChecked(id) ? " x" : " o" : " -";
    }
    return shown;
}

// Plays the steps on the model over in-memory fields, applies its OK to document when ok, and
// returns the snapshot of the fields before OK for the controls of dialog.
template <typename Model>
std::string Reference(HWND dialog, Document& document, DialogMemory memory, const Steps& steps,
                      bool ok) {
    FieldDialog<Model> reference(memory);
    Play(reference, steps);
    const std::string shown = Snapshot(dialog, reference.fields);
    if (ok) reference.model.Ok(document);
    return shown;
}

const struct {
    int command;
    const char* caption;
    std::string (*reference)(HWND, Document&, DialogMemory, const Steps&, bool);
} kDialogs[] = {
    {IDM_ROTATE, "Rotieren", Reference<RotateDialogModel>},
    {IDM_STRETCH, "Dehnen", Reference<StretchDialogModel>},
    {IDM_SHEAR, "Scheren", Reference<ShearDialogModel>},
    {IDM_MOVE, "Verschieben", Reference<MoveDialogModel>},
    {IDM_CYLINDER, "Um Zylinder wickeln", Reference<CylinderDialogModel>},
    {IDM_PLANE, "Ebene im Iso-Raum drehen", Reference<PlaneDialogModel>},
    {IDM_POLYGON, "Vieleck", Reference<PolygonDialogModel>},
    {IDM_CIRCLE, "Vieleck", Reference<CircleDialogModel>},
    {IDM_SINE, "Sinus", Reference<SineDialogModel>},
    {IDM_SPIRAL, "Spirale", Reference<SpiralDialogModel>},
};

// A closed square and an open curve, both selected.
void AddInput(Document& document) {
    document.Reset();
    GraphicObject* square = Add(document, Square(10, 20, 100));
    Add(document, NodePath({{{0, 0}, 6}, {{30, 90}, 4}, {{90, 120}, 4}, {{200, -30}, 4}}));
    document.AddToSelection(square);
}

enum class Ending { Ok, Escape, CloseBox };

class TransformDialogs : public EditorFixture {
protected:
    // Opens the dialog through its command on the input, plays the steps, ends the dialog (after
    // OK also with Cancel, should OK refuse) and expects the fields and the document that the
    // model gives on in-memory fields.
    void RunAndCompare(int command, const Steps& steps, Ending ending) {
        const auto& c = *std::find_if(std::begin(kDialogs), std::end(kDialogs),
                                      [command](const auto& d) { return d.command == command; });
        SCOPED_TRACE(c.caption);
        AddInput(Doc());
        Document expected;
        AddInput(expected);
        const DialogMemory memory = TheEditor().memory;
        ModalDriver driver;
        driver.Then([&](HWND dialog) {
            EXPECT_EQ(ModalDriver::Text(dialog), c.caption);
            RECT own{}, owner{}; // centred over the main window
            ::GetWindowRect(dialog, &own);
            ::GetWindowRect(TheShell().main, &owner);
            EXPECT_LE(std::abs(own.left + own.right - owner.left - owner.right), 1);
            Play(dialog, steps);
            WindowFields fields;
            fields.dialog = dialog;
            EXPECT_EQ(Snapshot(dialog, fields),
                      c.reference(dialog, expected, memory, steps, ending == Ending::Ok));
            if (ending == Ending::Escape) {
                ::PostMessageW(::GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
            } else if (ending == Ending::CloseBox) {
                ::SendMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
            } else {
                ModalDriver::Press(dialog, IDOK);
                if (::IsWindow(dialog)) ModalDriver::Press(dialog, IDCANCEL);
            }
        });
        Command(c.command);
        EXPECT_TRUE(driver.Done());
        const std::string text = SaveNativeText(Doc());
        EXPECT_EQ(text, SaveNativeText(expected));
        EXPECT_EQ(text.find("nan"), std::string::npos);
        EXPECT_EQ(text.find("inf"), std::string::npos);
    }
};

// Each dialog once, with the couplings, the axis exclusion, OK's enabling and bad typed text.
TEST_F(TransformDialogs, OkGivesTheModelsDrawingAndTheFieldsFollowTyping) {
    const std::string digits(300, '7');
    const std::pair<int, Steps> runs[] = {
        {IDM_ROTATE, {{IDC_ROTATE_ANGLE, "-90"}, {IDC_ROTATE_CCW}}},
        // "beide Achsen gleich" copies the typed value; unchecked, the fields part.
        {IDM_STRETCH, {{IDC_STRETCH_X, "50"}, {IDC_STRETCH_BOTH}, {IDC_STRETCH_Y, "1e400"}}},
        {IDM_SHEAR, {{IDC_SHEAR_X_PERCENT, digits}, {IDC_SHEAR_Y_PERCENT, "-50"}}},
        {IDM_MOVE, {{IDC_MOVE_X, "1,5.2"}, {IDC_MOVE_Y, "-5,5 mm"}}},
        {IDM_CYLINDER, {{IDC_CYLINDER_ANGLE, "400"}, {IDC_FORESHORTEN}}},
        // The second Y is disabled once Y is the first axis: its click does nothing.
        {IDM_PLANE,
         {{IDC_PLANE_ZY},
          {IDC_PLANE_FIRST_Y},
          {IDC_PLANE_SECOND_Y},
          {IDC_PLANE_FIRST_ANGLE, "370"},
          {IDC_PLANE_SECOND_ANGLE, "nan"}}},
        {IDM_POLYGON, {{IDC_POLYGON_CORNERS, "6"}, {IDC_POLYGON_PIE}, {IDC_POLYGON_RIGHT}}},
        {IDM_POLYGON, {{IDC_POLYGON_RADIUS, "0,5"}}}, // OK disabled: nothing added
        {IDM_CIRCLE, {{IDC_CIRCLE_RADIUS, "15"}, {IDC_CIRCLE_END, "300"}, {IDC_CIRCLE_SPOKES}}},
        {IDM_SINE, {{IDC_SINE_AMPLITUDE, "abc"}, {IDC_SINE_START, "400"}, {IDC_SINE_END, ""}}},
        {IDM_SPIRAL, {{IDC_SPIRAL_LOGARITHMIC}, {IDC_SPIRAL_GROWTH, "1,3"}}},
    };
    for (const auto& [command, steps] : runs) RunAndCompare(command, steps, Ending::Ok);
}

TEST_F(TransformDialogs, EscapeAndTheCloseBoxChangeNothing) {
    RunAndCompare(IDM_STRETCH, {{IDC_STRETCH_X, "12"}}, Ending::Escape);
    RunAndCompare(IDM_SPIRAL, {{IDC_SPIRAL_GROWTH, "12"}}, Ending::CloseBox);
    Doc().Reset();
    ModalDriver driver;
    driver.Answer(IDOK);
    Command(IDM_ROTATE); // a transformation wants a selection
    EXPECT_EQ(driver.seen, std::vector<std::string>{"Rhomba|Kein Object markiert!"});
}

// The repaint time of a 10,000-node preview is reported, not asserted: it measures Wine.
TEST_F(TransformDialogs, PlanePreviewRedrawsWhenTypedInto) {
    Doc().Reset();
    std::vector<Point2> zigzag;
    for (int i = 0; i < 10000; ++i) zigzag.push_back({i * 0.05, (i % 2) * 40.0 + i * 0.01});
    Add(Doc(), Polyline(zigzag));
    std::vector<double> ms;
    ModalDriver driver;
    driver.Then([&ms](HWND dialog) {
        HWND preview = ::GetDlgItem(dialog, IDC_PLANE_PREVIEW);
        ::UpdateWindow(preview);
        ModalDriver::Type(dialog, IDC_PLANE_FIRST_ANGLE, L"30");
        EXPECT_TRUE(::GetUpdateRect(preview, nullptr, FALSE)); // a change redraws it
        for (int run = 0; run < 10; ++run) {
            const auto start = std::chrono::steady_clock::now();
            ::RedrawWindow(preview, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            ::GdiFlush();
            const auto took = std::chrono::steady_clock::now() - start;
            ms.push_back(std::chrono::duration<double, std::milli>(took).count());
        }
        // Painted: a dark pixel of the drawing on the middle row of the field.
        RECT field{};
        ::GetClientRect(preview, &field);
        HDC dc = ::GetDC(preview);
        int x = 0;
        while (x < field.right && (::GetPixel(dc, x, field.bottom / 2) & 0xFF) > 0x80) ++x;
        ::ReleaseDC(preview, dc);
        EXPECT_LT(x, field.right);
        ModalDriver::Press(dialog, IDCANCEL);
    });
    Command(IDM_PLANE);
    ASSERT_EQ(ms.size(), 10u);
    std::sort(ms.begin(), ms.end());
    std::printf("[ PlanePreview ] 10,000 nodes: median %.2f ms, best %.2f ms\n", ms[5], ms[0]);
}

} // namespace
} // namespace rhomba::test
