// The apply steps of the document, selection, clipboard and property commands.
#include "cli/steps/StepWords.h"
#include "format/Clipboard.h"
#include "geometry/NumberText.h"
#include "model/Document.h"
#include "model/Reporter.h"
#include "ui/PropertyCommands.h"

#include <deque>
#include <fstream>
#include <iterator>
#include <string>

namespace rhomba::cli {

namespace {

// Selection as the editor's tools leave it: layers and the document are never selected.
void Select(StepContext& context, GraphicObject* object, std::string_view what) {
    if (object == nullptr) {
        context.reporter.Inform("rhomba-cli: no object " + std::string(what));
        return;
    }
    if (object->GetKind() == ObjectKind::Layer || object->GetKind() == ObjectKind::Document) {
        context.reporter.Inform("rhomba-cli: " + std::string(what) + " is a layer or the document");
        return;
    }
    context.document.AddToSelection(object);
}

bool RunSelect(StepContext& context, std::string_view rest) {
    Document& document = context.document;
    if (rest == "all") {
        document.ClearSelection();
        for (std::size_t i = 0; i < document.LayerCount(); ++i) {
            Layer& layer = document.LayerAt(i);
            if (layer.IsHidden()) continue;
            for (std::size_t k = 0; k < layer.ChildCount(); ++k) {
                document.AddToSelection(layer.ChildAt(k));
            }
        }
        return true;
    }
    if (rest.substr(0, 3) == "id ") {
        long long id = 0;
        if (!ReadWhole(Trim(rest.substr(3)), id) || id < 0 || id > 0xFFFFFFFFll) {
            return Tell(context, "select id needs a number");
        }
        Select(context, document.FindById(static_cast<std::uint32_t>(id), true),
               "#" + std::to_string(id));
        return true;
    }
    if (rest.substr(0, 5) == "name ") {
        const std::string name(rest.substr(5));
        Select(context, document.FindByName(name, true), "named \"" + name + "\"");
        return true;
    }
    return Tell(context, "select needs all, id N or name NAME");
}

bool RunDeselect(StepContext& context, std::string_view) {
    context.document.ClearSelection();
    return true;
}

// The menu offers grouping only for two or more objects.
bool RunGroup(StepContext& context, std::string_view) {
    if (context.document.Selection().size() >= 2) context.document.GroupSelection();
    return true;
}

bool RunUngroup(StepContext& context, std::string_view) {
    context.document.UngroupSelection();
    return true;
}

bool RunDelete(StepContext& context, std::string_view) {
    context.document.DeleteSelection();
    return true;
}

bool RunArrange(StepContext& context, std::string_view rest) {
    long long step = 0;
    if (!ReadWhole(Trim(rest), step) || (step != -1 && step != -111 && step != 1 && step != 111)) {
        return Tell(context, "arrange takes -1, -111, 1 or 111");
    }
    context.document.Arrange(static_cast<int>(step));
    return true;
}

bool RunProp(StepContext& context, std::string_view rest) {
    if (Trim(rest).empty()) return Tell(context, "prop needs a command line");
    ApplyCommand(context.document, rest, true, nullptr);
    return true;
}

bool RunCopy(StepContext& context, std::string_view rest) {
    if (rest.empty()) return Tell(context, "copy needs a file name");
    const std::string text = CopySelectionText(context.document);
    if (text.empty()) return true; // like the clipboard, the file stays as it was
    std::ofstream file{std::string(rest), std::ios::binary};
    file << text;
    if (!file.flush()) {
        InformCannotWrite(context.reporter, rest);
    }
    return true;
}

// Answers the paste questions from a list, passing messages on.
class ScriptedAnswers : public Reporter {
public:
    ScriptedAnswers(Reporter& inner, std::deque<bool> answers)
        : inner_(inner), answers_(std::move(answers)) {}
    void Inform(std::string_view message) override { inner_.Inform(message); }
    bool Ask(std::string_view question) override {
        bool answer = true;
        if (!answers_.empty()) {
            answer = answers_.front();
            answers_.pop_front();
        }
        inner_.Inform(std::string(question) + (answer ? " -> ja" : " -> nein"));
        return answer;
    }

private:
    Reporter& inner_;
    std::deque<bool> answers_;
};

// "y,n,y": true when the word is such a list.
bool ParseAnswers(std::string_view word, std::deque<bool>& answers) {
    if (word.empty()) return false;
    std::deque<bool> parsed;
    bool expectAnswer = true;
    for (char c : word) {
        if (expectAnswer && (c == 'y' || c == 'n')) {
            parsed.push_back(c == 'y');
            expectAnswer = false;
        } else if (!expectAnswer && c == ',') {
            expectAnswer = true;
        } else {
            return false;
        }
    }
    if (expectAnswer) return false;
    answers = std::move(parsed);
    return true;
}

bool RunPaste(StepContext& context, std::string_view rest) {
    std::string_view path = rest;
    std::deque<bool> answers;
    const std::size_t blank = rest.rfind(' ');
    if (blank != std::string_view::npos && ParseAnswers(rest.substr(blank + 1), answers)) {
        path = rest.substr(0, blank);
    }
    if (path.empty()) return Tell(context, "paste needs a file name");
    std::ifstream file{std::string(path), std::ios::binary};
    if (!file) return Tell(context, "cannot read " + std::string(path));
    ClipboardText text;
    text.bytes.assign(std::istreambuf_iterator<char>(file), {});
    ScriptedAnswers reporter(context.reporter, std::move(answers));
    PasteText(context.document, text, reporter);
    return true;
}

bool RunNew(StepContext& context, std::string_view) {
    context.document.Reset();
    return true;
}

} // namespace

const std::vector<Step>& FormatSteps() {
    static const std::vector<Step> steps = {
        {"select", "select all | select id N | select name NAME", RunSelect},
        {"deselect", "deselect", RunDeselect},
        {"group", "group", RunGroup},
        {"ungroup", "ungroup", RunUngroup},
        {"delete", "delete", RunDelete},
        {"arrange", "arrange -1|-111|1|111", RunArrange},
        {"prop", "prop COMMAND ARGUMENT (e.g. prop SetPenWidth 0.5)", RunProp},
        {"copy", "copy FILE", RunCopy},
        {"paste", "paste FILE [y,n,...]", RunPaste},
        {"new", "new", RunNew},
    };
    return steps;
}

} // namespace rhomba::cli
