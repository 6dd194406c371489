// The apply steps of the shape generators. The typed values go through the dialog models exactly
// as if typed into the fields before OK; a value the dialog refuses changes nothing.
#include "cli/Step.h"
#include "model/Document.h"
#include "model/Reporter.h"
#include "ui/dialogs/GeneratorDialogs.h"

#include <string>
#include <vector>

namespace rhomba::cli {

namespace {

std::vector<std::string_view> Words(std::string_view text) {
    std::vector<std::string_view> words;
    std::size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && text[i] == ' ') ++i;
        const std::size_t start = i;
        while (i < text.size() && text[i] != ' ') ++i;
        if (i > start) words.push_back(text.substr(start, i - start));
    }
    return words;
}

bool Tell(StepContext& context, std::string_view message) {
    context.reporter.Inform("rhomba-cli: " + std::string(message));
    return false;
}

// Reads the 0|1 words from first on into flags; false when any is something else.
bool ReadFlags(const std::vector<std::string_view>& words, std::size_t first,
               std::initializer_list<bool*> flags) {
    std::size_t i = first;
    for (bool* flag : flags) {
        if (i >= words.size() || (words[i] != "0" && words[i] != "1")) return false;
        *flag = words[i++] == "1";
    }
    return true;
}

template <typename Model>
struct Dialog {
    FieldTable fields;
    Model model{RunMemory(), fields};

    Dialog() {
        fields.onNotify = [this](int id, int code) { model.OnCommand(id, code); };
        model.Open();
    }
    void Type(int id, std::string_view text) { fields.SetText(id, text); }
    void Check(int id, bool on) {
        fields.SetChecked(id, on);
        model.OnCommand(id, kButtonClicked);
    }
};

bool RunSine(StepContext& context, std::string_view rest) {
    const auto words = Words(rest);
    bool axes = false, ticks = false;
    if (words.size() != 5 || !ReadFlags(words, 3, {&axes, &ticks})) {
        return Tell(context, "sine needs AMPLITUDE START END AXES(0|1) TICKS(0|1)");
    }
    Dialog<SineDialogModel> d;
    d.Type(SineDialogModel::kAmplitude, words[0]);
    d.Type(SineDialogModel::kStart, words[1]);
    d.Type(SineDialogModel::kEnd, words[2]);
    d.Check(SineDialogModel::kAxes, axes);
    d.Check(SineDialogModel::kTickMarks, ticks);
    d.model.Ok(context.document);
    return true;
}

bool RunCircle(StepContext& context, std::string_view rest) {
    const auto words = Words(rest);
    bool spokes = false, centre = false;
    if (words.size() != 5 || !ReadFlags(words, 3, {&spokes, &centre})) {
        return Tell(context, "circle needs RADIUS START END SPOKES(0|1) CENTRE(0|1)");
    }
    Dialog<CircleDialogModel> d;
    d.Type(CircleDialogModel::kRadius, words[0]);
    d.Type(CircleDialogModel::kStart, words[1]);
    d.Type(CircleDialogModel::kEnd, words[2]);
    d.Check(CircleDialogModel::kSpokes, spokes);
    d.Check(CircleDialogModel::kCentre, centre);
    d.model.Ok(context.document);
    return true;
}

bool RunPolygon(StepContext& context, std::string_view rest) {
    const auto words = Words(rest);
    bool pie = false, spokes = false, outline = false;
    int start = -1;
    if (words.size() == 6) {
        const std::string_view names[] = {"top", "right", "bottom", "left"};
        for (int i = 0; i < 4; ++i) {
            if (words[2] == names[i]) start = i;
        }
    }
    if (start < 0 || !ReadFlags(words, 3, {&pie, &spokes, &outline})) {
        return Tell(context,
                    "polygon needs CORNERS RADIUS top|right|bottom|left PIE(0|1) SPOKES(0|1) "
                    "OUTLINE(0|1)");
    }
    Dialog<PolygonDialogModel> d;
    d.Type(PolygonDialogModel::kCorners, words[0]);
    d.Type(PolygonDialogModel::kRadius, words[1]);
    CheckRadio(d.fields, PolygonDialogModel::kStarts, 4, start);
    d.Check(PolygonDialogModel::kPiePieces, pie);
    d.Check(PolygonDialogModel::kSpokes, spokes);
    d.Check(PolygonDialogModel::kOutline, outline);
    const std::string refusal = d.model.Refusal();
    if (!refusal.empty()) {
        // Like the disabled OK button: the drawing stays as it is and the run goes on.
        Tell(context, "polygon: " + refusal);
        return true;
    }
    d.model.Ok(context.document);
    return true;
}

bool RunSpiral(StepContext& context, std::string_view rest) {
    const auto words = Words(rest);
    int kind = -1;
    if (words.size() == 3) {
        if (words[2] == "archimedisch") kind = 0;
        if (words[2] == "logarithmisch") kind = 1;
    }
    if (kind < 0) return Tell(context, "spiral needs MAXRADIUS GROWTH archimedisch|logarithmisch");
    Dialog<SpiralDialogModel> d;
    d.Type(SpiralDialogModel::kMaxRadius, words[0]);
    d.fields.SetChecked(SpiralDialogModel::kArchimedean, kind == 0);
    d.fields.SetChecked(SpiralDialogModel::kLogarithmic, kind == 1);
    d.model.OnCommand(kind == 0 ? SpiralDialogModel::kArchimedean : SpiralDialogModel::kLogarithmic,
                      kButtonClicked);
    d.Type(SpiralDialogModel::kGrowth, words[1]);
    const std::string refusal = d.model.Refusal();
    if (!refusal.empty()) {
        // Like the disabled OK button: the drawing stays as it is and the run goes on.
        Tell(context, "spiral: " + refusal);
        return true;
    }
    d.model.Ok(context.document);
    return true;
}

} // namespace

const std::vector<Step>& ShapeSteps() {
    static const std::vector<Step> steps = {
        {"sine", "sine AMPLITUDE START END AXES(0|1) TICKS(0|1)", RunSine},
        {"circle", "circle RADIUS START END SPOKES(0|1) CENTRE(0|1)", RunCircle},
        {"polygon", "polygon CORNERS RADIUS top|right|bottom|left PIE(0|1) SPOKES(0|1) OUTLINE(0|1)",
         RunPolygon},
        {"spiral", "spiral MAXRADIUS GROWTH archimedisch|logarithmisch (GROWTH: mm per turn, or "
                   "the factor per turn)",
         RunSpiral},
    };
    return steps;
}

} // namespace rhomba::cli
