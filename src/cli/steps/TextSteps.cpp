// The apply steps of the text commands.
#include "cli/Step.h"
#include "model/Reporter.h"
#include "ui/DocumentCommands.h"
#include "ui/resource.h"

#include <string>

namespace rhomba::cli {

namespace {

bool RunTextToPath(StepContext& context, StepWords words) {
    if (!words.empty()) {
        context.reporter.Inform("rhomba-cli: text-to-path takes no words");
        return false;
    }
    return RunDocumentCommand(context.document, IDM_TEXT_TO_PATH);
}

} // namespace

const std::vector<Step>& TextSteps() {
    static const std::vector<Step> steps = {
        {"text-to-path", "text-to-path", RunTextToPath, Takes<0>},
    };
    return steps;
}

} // namespace rhomba::cli
