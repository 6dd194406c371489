#include "cli/Step.h"

namespace rhomba::cli {

namespace {

using StepList = const std::vector<Step>& (*)();

std::vector<StepList>& Lists() {
    static std::vector<StepList> lists;
    return lists;
}

struct Registration {
    explicit Registration(StepList list) { Lists().push_back(list); }
};

} // namespace

// One line per concern, in the order their steps are looked up.
#define RHOMBA_CONCERN_STEPS(name)     \
    const std::vector<Step>& name();   \
    static const Registration name##Registration { &name }

RHOMBA_CONCERN_STEPS(FormatSteps);
RHOMBA_CONCERN_STEPS(TransformSteps);
RHOMBA_CONCERN_STEPS(ShapeSteps);
RHOMBA_CONCERN_STEPS(TextSteps);
RHOMBA_CONCERN_STEPS(NodeSteps);

const std::vector<Step>& AllSteps() {
    static const std::vector<Step> all = [] {
        std::vector<Step> steps;
        for (StepList list : Lists()) {
            const std::vector<Step>& more = list();
            steps.insert(steps.end(), more.begin(), more.end());
        }
        return steps;
    }();
    return all;
}

} // namespace rhomba::cli
