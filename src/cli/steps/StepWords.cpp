#include "cli/steps/StepWords.h"

#include "geometry/NumberText.h"
#include "model/Reporter.h"

#include <string>

namespace rhomba::cli {

std::vector<std::string_view> Words(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    std::vector<std::string_view> words;
    std::size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && blank(text[i])) ++i;
        const std::size_t start = i;
        while (i < text.size() && !blank(text[i])) ++i;
        if (i > start) words.push_back(text.substr(start, i - start));
    }
    return words;
}

bool Tell(StepContext& context, std::string_view message) {
    context.reporter.Inform("rhomba-cli: " + std::string(message));
    return false;
}

bool ReadFlag(std::string_view word, bool& flag) {
    if (word != "0" && word != "1") return false;
    flag = word == "1";
    return true;
}

bool ReadDecimal(std::string_view word, double& value) {
    std::size_t end = 0;
    const double read = ReadLeadingNumber(word, end);
    if (end == 0 || end != word.size()) return false;
    value = read;
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
