#include "cli/Step.h"

namespace rhomba::cli {

// Each concern's steps, from its own file under steps/.
const std::vector<Step>& FormatSteps();
const std::vector<Step>& TransformSteps();
const std::vector<Step>& ShapeSteps();
const std::vector<Step>& TextSteps();
const std::vector<Step>& NodeSteps();

const std::vector<Step>& AllSteps() {
    static const std::vector<Step> all = [] {
        std::vector<Step> steps;
        // In the order the keywords are looked up.
        for (const std::vector<Step>* more :
             {&FormatSteps(), &TransformSteps(), &ShapeSteps(), &TextSteps(), &NodeSteps()}) {
            steps.insert(steps.end(), more->begin(), more->end());
        }
        return steps;
    }();
    return all;
}

} // namespace rhomba::cli
