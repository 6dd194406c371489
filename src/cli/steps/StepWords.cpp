#include "cli/steps/StepWords.h"

#include "geometry/NumberText.h"
#include "model/Reporter.h"

#include <string>

namespace rhomba::cli {

std::vector<std::string_view> Words(std::string_view text) { return SplitWords(text, " \t"); }

bool Tell(StepContext& context, std::string_view message) {
    context.reporter.Inform("rhomba-cli: " + std::string(message));
    return false;
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
