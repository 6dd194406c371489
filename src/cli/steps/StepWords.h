#pragma once

#include "cli/Step.h"

#include <charconv>
#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

namespace rhomba::cli {

// The one-argument form of a step whose last word is a text that may hold blanks: the first
// count - 1 words are cut at blanks and tabs, the last keeps the rest as it is.
std::vector<std::string> SplitKeepingRest(std::string_view rest, std::size_t count);
template <std::size_t N>
std::vector<std::string> KeepRest(std::string_view rest) {
    return SplitKeepingRest(rest, N);
}

// Reports "rhomba-cli: <message>" and returns false, the result of a step whose words are not
// usable.
bool Tell(StepContext& context, std::string_view message);

// "0" or "1" into flag; false (flag untouched) for anything else.
bool ReadFlag(std::string_view word, bool& flag);
// A whole number in decimal digits filling the word; false otherwise.
template <typename Integer>
bool ReadWhole(std::string_view word, Integer& value) {
    const auto result = std::from_chars(word.data(), word.data() + word.size(), value);
    return result.ec == std::errc{} && result.ptr == word.data() + word.size();
}
// A step whose one word names one of the editor's own commands ("iso links", "arrange -1").
struct CommandWord {
    std::string_view word;
    int command;
};
// Runs the command the step's one word names; otherwise tells usage and returns false.
bool RunNamedCommand(StepContext& context, StepWords words, std::span<const CommandWord> names,
                     std::string_view usage);

// The position of word among names, -1 when it is none of them.
int IndexOf(std::string_view word, std::initializer_list<std::string_view> names);

} // namespace rhomba::cli
