#include "ui/Editor.h"

#include "ui/ShellHost.h"

namespace rhomba {

Editor::Editor(ShellHost& shell) : host(shell) {
    document.onTitleChange = [this](const std::string& name) { host.UpdateTitle(name); };
}

} // namespace rhomba
