// The apply steps of the shape generators. The typed values go through the dialog models exactly
// as if typed into the fields before OK; a value the dialog refuses changes nothing.
#include "cli/steps/StepWords.h"
#include "model/Document.h"
#include "ui/dialogs/FieldDialog.h"
#include "ui/dialogs/GeneratorDialogs.h"

#include <string>

namespace rhomba::cli {

namespace {

// Reads the 0|1 words from first on into flags; false when any is something else.
bool ReadFlags(StepWords words, std::size_t first,
               std::initializer_list<bool*> flags) {
    std::size_t i = first;
    for (bool* flag : flags) {
        if (i >= words.size() || !ReadFlag(words[i++], *flag)) return false;
    }
    return true;
}

// Like the disabled OK button, a refusal leaves the drawing as it is, and the run goes on.
template <typename Model>
void OkUnlessRefused(StepContext& context, Model& model, std::string_view step) {
    const std::string refusal = model.Refusal();
    if (refusal.empty()) {
        model.Ok(context.document);
    } else {
        Tell(context, std::string(step) + ": " + refusal);
    }
}

bool RunSine(StepContext& context, StepWords words) {
    bool axes = false, ticks = false;
    if (words.size() != 5 || !ReadFlags(words, 3, {&axes, &ticks})) {
        return Tell(context, "sine needs AMPLITUDE START END AXES(0|1) TICKS(0|1)");
    }
    FieldDialog<SineDialogModel> d;
    d.Type(SineDialogModel::kAmplitude, words[0]);
    d.Type(SineDialogModel::kStart, words[1]);
    d.Type(SineDialogModel::kEnd, words[2]);
    d.Check(SineDialogModel::kAxes, axes);
    d.Check(SineDialogModel::kTickMarks, ticks);
    d.model.Ok(context.document);
    return true;
}

bool RunCircle(StepContext& context, StepWords words) {
    bool spokes = false, centre = false;
    if (words.size() != 5 || !ReadFlags(words, 3, {&spokes, &centre})) {
        return Tell(context, "circle needs RADIUS START END SPOKES(0|1) CENTRE(0|1)");
    }
    FieldDialog<CircleDialogModel> d;
    d.Type(CircleDialogModel::kRadius, words[0]);
    d.Type(CircleDialogModel::kStart, words[1]);
    d.Type(CircleDialogModel::kEnd, words[2]);
    d.Check(CircleDialogModel::kSpokes, spokes);
    d.Check(CircleDialogModel::kCentre, centre);
    d.model.Ok(context.document);
    return true;
}

bool RunPolygon(StepContext& context, StepWords words) {
    bool pie = false, spokes = false, outline = false;
    const int start =
        words.size() == 6 ? IndexOf(words[2], {"top", "right", "bottom", "left"}) : -1;
    if (start < 0 || !ReadFlags(words, 3, {&pie, &spokes, &outline})) {
        return Tell(context,
                    "polygon needs CORNERS RADIUS top|right|bottom|left PIE(0|1) SPOKES(0|1) "
                    "OUTLINE(0|1)");
    }
    FieldDialog<PolygonDialogModel> d;
    d.Type(PolygonDialogModel::kCorners, words[0]);
    d.Type(PolygonDialogModel::kRadius, words[1]);
    d.Click(PolygonDialogModel::kStarts, 4, start);
    d.Check(PolygonDialogModel::kPiePieces, pie);
    d.Check(PolygonDialogModel::kSpokes, spokes);
    d.Check(PolygonDialogModel::kOutline, outline);
    OkUnlessRefused(context, d.model, "polygon");
    return true;
}

bool RunSpiral(StepContext& context, StepWords words) {
    const int kind = words.size() == 3 ? IndexOf(words[2], {"archimedisch", "logarithmisch"}) : -1;
    if (kind < 0) return Tell(context, "spiral needs MAXRADIUS GROWTH archimedisch|logarithmisch");
    FieldDialog<SpiralDialogModel> d;
    d.Type(SpiralDialogModel::kMaxRadius, words[0]);
    d.Click(SpiralDialogModel::kKinds, 2, kind);
    d.Type(SpiralDialogModel::kGrowth, words[1]);
    OkUnlessRefused(context, d.model, "spiral");
    return true;
}

} // namespace

const std::vector<Step>& ShapeSteps() {
    static const std::vector<Step> steps = {
        {"sine", "sine AMPLITUDE START END AXES(0|1) TICKS(0|1)", RunSine, Takes<5>},
        {"circle", "circle RADIUS START END SPOKES(0|1) CENTRE(0|1)", RunCircle, Takes<5>},
        {"polygon",
         "polygon CORNERS RADIUS top|right|bottom|left PIE(0|1) SPOKES(0|1) OUTLINE(0|1)",
         RunPolygon, Takes<6>},
        {"spiral",
         "spiral MAXRADIUS GROWTH archimedisch|logarithmisch (GROWTH: mm per turn, or "
         "the factor per turn)",
         RunSpiral, Takes<3>},
    };
    return steps;
}

} // namespace rhomba::cli
