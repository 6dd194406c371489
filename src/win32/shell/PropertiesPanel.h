#pragma once

namespace rhomba {

// The properties panel beside the canvas: created on first use, then shown or hidden; refresh
// fills it from the current selection.
void ShowPropertiesPanel(bool shown);
void RefreshPropertiesPanel();

} // namespace rhomba
