#pragma once

namespace rhomba {

// The properties panel beside the canvas: created on first use, then shown or hidden; refresh
// fills it from the current selection.
void ShowPropertiesPanel(bool shown);
void RefreshPropertiesPanel();
// Shows the panel with its top left corner at a screen point, and checks its menu entry.
void ShowPropertiesPanelAt(int screenX, int screenY);

} // namespace rhomba
