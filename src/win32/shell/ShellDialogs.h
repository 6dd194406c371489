#pragma once

#include <string>

#include <windows.h>

namespace rhomba {

class Document;
struct DisplaySwitches;

// "Einstellungen" (dialog 151): the display switches and the printer. The printer choice takes
// effect at once; the switches only on OK. True when closed with OK.
bool RunSettingsDialogBox(HWND owner, DisplaySwitches& switches);
// "Drucken" (dialog 152): shows and changes the printer and prints the drawing on one page.
void RunPrintDialogBox(HWND owner, Document& document);
// "Online-Hilfe" (dialog 103): the version, and the help page opened in the browser.
void RunAboutDialogBox(HWND owner);

// The help page that ships beside the program.
std::string HelpPagePath();

} // namespace rhomba
