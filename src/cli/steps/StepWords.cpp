#include "cli/steps/StepWords.h"

#include "geometry/NumberText.h"
#include "model/Reporter.h"
#include "ui/DocumentCommands.h"

#include <string>

namespace rhomba::cli {

std::vector<std::string> SplitAtBlanks(std::string_view rest) {
    std::vector<std::string> words;
    for (std::string_view word : SplitWords(rest, " \t")) words.emplace_back(word);
    return words;
}

std::vector<std::string> SplitKeepingRest(std::string_view rest, std::size_t count) {
    std::vector<std::string> words;
    while (!rest.empty() && words.size() + 1 < count) {
        const std::size_t blank = rest.find_first_of(" \t");
        words.emplace_back(rest.substr(0, blank));
        rest = blank == std::string_view::npos ? std::string_view{} : rest.substr(blank + 1);
    }
    if (!rest.empty()) words.emplace_back(rest);
    return words;
}

bool Tell(StepContext& context, std::string_view message) {
    context.reporter.Inform("rhomba-cli: " + std::string(message));
    return false;
}

bool RunNamedCommand(StepContext& context, StepWords words, std::span<const CommandWord> names,
                     std::string_view usage) {
    for (const CommandWord& name : names) {
        if (words.size() == 1 && words[0] == name.word) {
            return RunDocumentCommand(context.document, name.command);
        }
    }
    return Tell(context, usage);
}

bool ReadFlag(std::string_view word, bool& flag) {
    if (word != "0" && word != "1") return false;
    flag = word == "1";
    return true;
}

int IndexOf(std::string_view word, std::initializer_list<std::string_view> names) {
    int i = 0;
    for (std::string_view name : names) {
        if (word == name) return i;
        ++i;
    }
    return -1;
}

} // namespace rhomba::cli
