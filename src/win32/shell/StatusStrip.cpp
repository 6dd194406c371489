// The status strip: cursor position in points and millimetres, and the tools' messages.
#include "ui/StatusTexts.h"
#include "ui/resource.h"
#include "win32/shell/Shell.h"

namespace rhomba {

namespace {

void SetField(int id, const std::string& text) {
    if (TheShell().status == nullptr) return;
    ::SetDlgItemTextW(TheShell().status, id, Wide(text).c_str());
}

} // namespace

void ShowCursorPoints(double x, double y) { SetField(IDC_STATUS_POINTS, CursorPointsText(x, y)); }

void ShowCursorMillimetres(double x, double y) {
    SetField(IDC_STATUS_MILLIMETRES, CursorMillimetresText(x, y));
}

void SetStatusText(const char* text) { SetField(IDC_STATUS_TEXT, text != nullptr ? text : ""); }

} // namespace rhomba
