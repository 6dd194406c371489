#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace rhomba {
class Document;
class Reporter;
} // namespace rhomba

namespace rhomba::cli {

// What an apply step works on.
struct StepContext {
    Document& document;
    Reporter& reporter;
    // Set by a step whose file could not be written; the run goes on but ends with a failure.
    bool writeFailed = false;
};

// The words of one step after its keyword, each a text as typed (it may hold blanks).
using StepWords = std::span<const std::string>;

// The words of a step given as one argument ("move 10 0"): the text after the keyword cut at
// blanks and tabs.
std::vector<std::string> SplitAtBlanks(std::string_view rest);

// Steps that take a fixed number of words.
template <std::size_t N>
std::size_t Takes(StepWords) {
    return N;
}

// One step of "rhomba-cli apply". On the command line a step is its keyword followed by the
// words its grammar takes ("move 10 0" as three shell words), or, as before, one argument holding
// keyword and words ("move 10 0" quoted). run returns false when the words are not usable, after
// telling why on the reporter. Messages of the commands themselves ("Kein Object markiert!") go
// to the reporter too and do not stop the run.
struct Step {
    std::string_view keyword;
    std::string_view usage;
    bool (*run)(StepContext& context, StepWords words);
    // How many of the command-line words after the keyword belong to this step; next holds all
    // words that follow, so a step may look at them to decide.
    std::size_t (*takes)(StepWords next);
    // The words of the one-argument form.
    std::vector<std::string> (*split)(std::string_view rest) = SplitAtBlanks;
};

// Each concern lists its steps in its own file under src/cli/steps/; StepTable.cpp joins them.
const std::vector<Step>& AllSteps();

} // namespace rhomba::cli
