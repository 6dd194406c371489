#pragma once

#include "ui/resource.h"

namespace rhomba {

class Editor;

// Carries out a menu or accelerator command and repaints when the command asks for it. Returns
// false for an id that is no command of the program (the platform then handles it).
bool RunCommand(Editor& editor, int id);

// Whether the command repaints the canvas after it runs.
bool CommandRedraws(int id);

// How an entry of the "Bearbeiten" menu is enabled each time the menu opens: by the selection
// (copy, cut, delete, the four transformations and the "&Isometrie" popup), by text on the
// clipboard (paste), or never touched (everything else, in every menu).
enum class CommandEnabling { Always, Selection, ClipboardText };
CommandEnabling EnablingOf(int id);
bool IsEnabledNow(Editor& editor, CommandEnabling enabling);

} // namespace rhomba
