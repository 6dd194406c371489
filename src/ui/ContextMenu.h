#pragma once

#include <string>
#include <vector>

namespace rhomba {

// One line of a popup menu: an entry with its number and Windows-1252 text, or a separator
// (id 0, no text).
struct MenuEntry {
    int id = 0;
    std::string text;
    bool enabled = false;

    bool IsSeparator() const { return id == 0; }
};

// A popup menu as the platform shows it, built afresh for each right click.
struct ContextMenu {
    std::vector<MenuEntry> entries;

    // False for an id that is not in the menu.
    bool IsEnabled(int id) const;
};

} // namespace rhomba
