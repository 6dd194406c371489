#include "win32/shell/PropertiesPanel.h"

namespace rhomba {

// The panel's pages come with the tools; until then the menu entry only keeps its check mark.
void ShowPropertiesPanel(bool) {}
void RefreshPropertiesPanel() {}

} // namespace rhomba
