#pragma once

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
};

// One step of "rhomba-cli apply": each step is one command-line argument whose first word is the
// keyword; run receives the rest of the argument after the keyword and its single blank (it may
// be empty) and returns false when the words are not usable, after telling why on the reporter.
// Messages of the commands themselves ("Kein Object markiert!") go to the reporter too and do
// not stop the run.
struct Step {
    std::string_view keyword;
    std::string_view usage;
    bool (*run)(StepContext& context, std::string_view rest);
};

// Each concern lists its steps in its own file under src/cli/steps/; StepTable.cpp joins them.
const std::vector<Step>& AllSteps();

} // namespace rhomba::cli
