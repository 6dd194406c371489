#include "ui/DocumentCommands.h"

#include "model/Document.h"
#include "text/TextToPath.h"
#include "transform/IsoProjection.h"
#include "ui/resource.h"

#include <algorithm>
#include <iterator>

namespace rhomba {

namespace {

struct DocumentCommand {
    int id;
    void (*run)(Document&);
};

constexpr DocumentCommand kDocumentCommands[] = {
    {IDM_NEW, [](Document& d) { d.Reset(); }},
    {IDM_DELETE, [](Document& d) { d.DeleteSelection(); }},
    {IDM_TEXT_TO_PATH, [](Document& d) { ConvertSelectedTextsToPaths(d); }},
    {IDM_ISO_LEFT, [](Document& d) { ProjectSelection(d, kFaceLeft); }},
    {IDM_ISO_RIGHT, [](Document& d) { ProjectSelection(d, kFaceRight); }},
    {IDM_ISO_TOP1, [](Document& d) { ProjectSelection(d, kFaceTop1); }},
    {IDM_ISO_TOP2, [](Document& d) { ProjectSelection(d, kFaceTop2); }},
    {IDM_ISO_BACK_LEFT, [](Document& d) { ProjectSelection(d, kBackFromLeft); }},
    {IDM_ISO_BACK_RIGHT, [](Document& d) { ProjectSelection(d, kBackFromRight); }},
    {IDM_ISO_BACK_TOP1, [](Document& d) { ProjectSelection(d, kBackFromTop1); }},
    {IDM_ISO_BACK_TOP2, [](Document& d) { ProjectSelection(d, kBackFromTop2); }},
    {IDM_BACK_ONE, [](Document& d) { d.Arrange(-1); }},
    {IDM_BACK_ALL, [](Document& d) { d.Arrange(-111); }},
    {IDM_FORWARD_ONE, [](Document& d) { d.Arrange(1); }},
    {IDM_FORWARD_ALL, [](Document& d) { d.Arrange(111); }},
};

} // namespace

bool RunDocumentCommand(Document& document, int id) {
    const auto found =
        std::find_if(std::begin(kDocumentCommands), std::end(kDocumentCommands),
                     [id](const DocumentCommand& command) { return command.id == id; });
    if (found == std::end(kDocumentCommands)) return false;
    found->run(document);
    return true;
}

} // namespace rhomba
