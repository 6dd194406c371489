// The apply steps of the document, selection, clipboard and property commands.
#include "cli/steps/StepWords.h"
#include "format/Clipboard.h"
#include "format/FileWrite.h"
#include "format/NativeReader.h"
#include "geometry/NumberText.h"
#include "model/Document.h"
#include "model/Reporter.h"
#include "ui/DocumentCommands.h"
#include "ui/PropertyCommands.h"
#include "ui/resource.h"

#include <deque>
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

bool RunSelect(StepContext& context, StepWords words) {
    Document& document = context.document;
    if (words.size() == 1 && words[0] == "all") {
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
    if (words.size() == 2 && words[0] == "id") {
        long long id = 0;
        if (!ReadWhole(Trim(words[1]), id) || id < 0 || id > 0xFFFFFFFFll) {
            return Tell(context, "select id needs a number");
        }
        Select(context, document.FindById(static_cast<std::uint32_t>(id), true),
               "#" + std::to_string(id));
        return true;
    }
    if (words.size() == 2 && words[0] == "name") {
        Select(context, document.FindByName(words[1], true), "named \"" + words[1] + "\"");
        return true;
    }
    return Tell(context, "select needs all, id N or name NAME");
}

std::size_t SelectTakes(StepWords next) { return !next.empty() && next[0] == "all" ? 1 : 2; }

bool RunDeselect(StepContext& context, StepWords) {
    context.document.ClearSelection();
    return true;
}

// The menu offers grouping only for two or more objects.
bool RunGroup(StepContext& context, StepWords) {
    if (context.document.Selection().size() >= 2) context.document.GroupSelection();
    return true;
}

bool RunUngroup(StepContext& context, StepWords) {
    context.document.UngroupSelection();
    return true;
}

bool RunDelete(StepContext& context, StepWords) {
    return RunDocumentCommand(context.document, IDM_DELETE);
}

bool RunArrange(StepContext& context, StepWords words) {
    static constexpr CommandWord kSteps[] = {
        {"-1", IDM_BACK_ONE},
        {"-111", IDM_BACK_ALL},
        {"1", IDM_FORWARD_ONE},
        {"111", IDM_FORWARD_ALL},
    };
    return RunNamedCommand(context, words, kSteps, "arrange takes -1, -111, 1 or 111");
}

bool RunProp(StepContext& context, StepWords words) {
    std::string line;
    for (const std::string& word : words) line += (line.empty() ? "" : " ") + word;
    if (Trim(line).empty()) return Tell(context, "prop needs a command line");
    ApplyCommand(context.document, line, true, nullptr);
    return true;
}

// "prop SetPenWidth 0.5", or the whole command line as one word.
std::size_t PropTakes(StepWords next) {
    return !next.empty() && next[0].find(' ') != std::string::npos ? 1 : 2;
}

bool RunCopy(StepContext& context, StepWords words) {
    if (words.size() != 1 || words[0].empty()) return Tell(context, "copy needs a file name");
    const std::string text = CopySelectionText(context.document);
    if (text.empty()) return true; // like the clipboard, the file stays as it was
    if (!WriteFileSafely(words[0], text, context.reporter)) context.writeFailed = true;
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

bool RunPaste(StepContext& context, StepWords words) {
    std::deque<bool> answers;
    if (words.empty() || words[0].empty() || words.size() > 2 ||
        (words.size() == 2 && !ParseAnswers(words[1], answers))) {
        return Tell(context, "paste needs a file name and optionally answers like y,n");
    }
    ClipboardText text;
    // A folder, a device or an unreadable file gets the loader's message; nothing is pasted.
    if (!ReadWholeFile(words[0], text.bytes, context.reporter)) return true;
    ScriptedAnswers reporter(context.reporter, std::move(answers));
    PasteText(context.document, text, reporter);
    return true;
}

std::size_t PasteTakes(StepWords next) {
    std::deque<bool> answers;
    return next.size() >= 2 && ParseAnswers(next[1], answers) ? 2 : 1;
}

// The one-argument form "paste FILE y,n": the answers are the last word, the file the rest.
std::vector<std::string> SplitPaste(std::string_view rest) {
    std::deque<bool> answers;
    const std::size_t blank = rest.rfind(' ');
    if (blank != std::string_view::npos && ParseAnswers(rest.substr(blank + 1), answers)) {
        return {std::string(rest.substr(0, blank)), std::string(rest.substr(blank + 1))};
    }
    return KeepRest<1>(rest);
}

bool RunNew(StepContext& context, StepWords) {
    return RunDocumentCommand(context.document, IDM_NEW);
}

} // namespace

const std::vector<Step>& FormatSteps() {
    static const std::vector<Step> steps = {
        {"select", "select all | select id N | select name NAME", RunSelect, SelectTakes,
         KeepRest<2>},
        {"deselect", "deselect", RunDeselect, Takes<0>},
        {"group", "group", RunGroup, Takes<0>},
        {"ungroup", "ungroup", RunUngroup, Takes<0>},
        {"delete", "delete", RunDelete, Takes<0>},
        {"arrange", "arrange -1|-111|1|111", RunArrange, Takes<1>},
        {"prop", "prop COMMAND ARGUMENT (e.g. prop SetPenWidth 0.5, prop SetDashDot '4 2')",
         RunProp, PropTakes, KeepRest<2>},
        {"copy", "copy FILE", RunCopy, Takes<1>, KeepRest<1>},
        {"paste", "paste FILE [y,n,...]", RunPaste, PasteTakes, SplitPaste},
        {"new", "new", RunNew, Takes<0>},
    };
    return steps;
}

} // namespace rhomba::cli
