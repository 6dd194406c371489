#include "ui/PropertyCommands.h"

#include "geometry/NumberText.h"
#include "model/Colour.h"
#include "model/Document.h"
#include "model/TextObject.h"

#include <string>
#include <vector>

namespace rhomba {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

double Number(std::string_view& text) {
    std::size_t end = 0;
    const double value = ReadLeadingNumber(text, end);
    // Past the number, or past the word that was no number.
    std::size_t skip = end;
    if (skip == 0) {
        while (skip < text.size() && IsBlank(text[skip])) ++skip;
        while (skip < text.size() && !IsBlank(text[skip])) ++skip;
    }
    text.remove_prefix(skip);
    return value;
}

bool Switch(std::string_view text) { return Number(text) != 0; }

void ExecuteLine(GraphicObject& object, std::string_view line) {
    std::size_t start = 0;
    while (start < line.size() && IsBlank(line[start])) ++start;
    std::size_t stop = start;
    while (stop < line.size() && !IsBlank(line[stop])) ++stop;
    const std::string_view command = line.substr(start, stop - start);
    std::string_view argument = line.substr(stop);
    if (!argument.empty()) argument.remove_prefix(1);

    if (command == "SetName") {
        object.SetName(std::string(argument));
    } else if (command == "SetStrokeColor") {
        object.SetStrokeColor(ReadHexColour(Trim(argument)));
    } else if (command == "SetStroke") {
        object.SetStroke(Switch(argument));
    } else if (command == "SetFillColor") {
        object.SetFillColor(ReadHexColour(Trim(argument)));
    } else if (command == "SetFill") {
        object.SetFill(Switch(argument));
    } else if (command == "SetPenWidth") {
        object.SetPenWidth(Number(argument));
    } else if (command == "SetDashDot") {
        DashDot dash{};
        for (auto& entry : dash) {
            const double v = Number(argument);
            entry = static_cast<std::uint8_t>(v > 0 ? (v < 255 ? v : 255) : 0);
        }
        object.SetDashDot(dash);
    } else if (command == "SetText") {
        object.SetText(std::string(argument));
    } else if (command == "SetTextSize") {
        object.SetTextSize(Number(argument));
    } else if (command == "SetTextPosition") {
        const double x = Number(argument);
        const double y = Number(argument);
        object.SetTextPosition(x, y);
    } else if (command == "SetTextFont") {
        object.SetTextFont(std::string(Trim(argument)));
    } else if (command == "SetTextStyle") {
        const int style = static_cast<int>(Number(argument));
        object.SetBold((style & TextObject::kBold) != 0);
        object.SetItalic((style & TextObject::kItalic) != 0);
    }
}

} // namespace

void ExecuteCommand(GraphicObject& object, std::string_view text) {
    while (!text.empty()) {
        const std::size_t stop = text.find_first_of("\r\n");
        const std::string_view line = text.substr(0, stop);
        if (!line.empty()) ExecuteLine(object, line);
        if (stop == std::string_view::npos) break;
        text.remove_prefix(stop + 1);
    }
}

void ApplyCommand(Document& document, std::string_view line, bool descend, Group* group) {
    std::vector<GraphicObject*> work;
    if (group == nullptr) {
        const auto& selection = document.Selection();
        work.assign(selection.rbegin(), selection.rend());
    } else {
        for (std::size_t i = group->ChildCount(); i-- > 0;) work.push_back(group->ChildAt(i));
    }
    // A work list in place of recursion, visiting the objects in the same order.
    while (!work.empty()) {
        GraphicObject* object = work.back();
        work.pop_back();
        if (object == nullptr) continue;
        if (descend && object->GetKind() == ObjectKind::Group) {
            const Group& nested = static_cast<const Group&>(*object);
            for (std::size_t i = nested.ChildCount(); i-- > 0;) work.push_back(nested.ChildAt(i));
        } else {
            ExecuteCommand(*object, line);
        }
    }
}

} // namespace rhomba
