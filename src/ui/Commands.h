#pragma once

#include "ui/resource.h"

namespace rhomba {

class Editor;

// Carries out a menu or accelerator command and repaints when the command asks for it. Returns
// false for an id that is no command of the program (the platform then handles it).
bool RunCommand(Editor& editor, int id);

// Whether the command repaints the canvas after it runs.
bool CommandRedraws(int id);

// The entries of the "Bearbeiten" menu that depend on the state: paste on clipboard text, the
// selection entries (copy, cut, delete, the "&Isometrie" popup and the four transformations) on
// a selection. Nothing else in the menus is ever grayed.
struct EditMenuState {
    bool paste = false;
    bool selectionEntries = false;
};
EditMenuState EditMenuEnabling(Editor& editor);

// The commands grayed with an empty selection (the "&Isometrie" popup is grayed by position).
inline constexpr int kSelectionCommands[] = {IDM_COPY,   IDM_CUT,     IDM_DELETE, IDM_ROTATE,
                                             IDM_STRETCH, IDM_SHEAR, IDM_MOVE};

} // namespace rhomba
