#include "ui/dialogs/GeneratorDialogs.h"

#include "geometry/NumberText.h"
#include "model/Document.h"
#include "shapes/GeneratedPath.h"

#include <cmath>
#include <utility>

namespace rhomba {

namespace {

// The corner count as typed: a whole number (a fraction is cut off); 0 for what is none.
int ReadCorners(std::string_view text) {
    const double value = std::trunc(ReadNumber(text));
    if (value < 0) return 0;
    if (value > kMaxPolygonCorners) return kMaxPolygonCorners + 1;
    return static_cast<int>(value);
}

bool AcceptableRadius(double millimetres) { return millimetres >= 1 && millimetres <= 1000; }

} // namespace

void PolygonDialogModel::Open() {
    const PolygonSettings& m = memory_.polygon;
    fields_.SetText(kCorners, FormatG(m.corners));
    fields_.SetText(kRadius, ShowMillimetres(m.radiusMillimetres));
    fields_.SetChecked(kPiePieces, m.piePieces);
    fields_.SetChecked(kSpokes, m.spokes);
    fields_.SetChecked(kOutline, m.outline);
    CheckRadio(fields_, kStarts, 4, m.firstCorner);
    fields_.Enable(kIdOk, Refusal().empty());
}

void PolygonDialogModel::OnCommand(int id, int code) {
    if (code == kEditChange && (id == kCorners || id == kRadius)) {
        fields_.Enable(kIdOk, Refusal().empty());
    }
}

std::string PolygonDialogModel::Refusal() const {
    if (!AcceptableRadius(ReadMillimetres(fields_.GetText(kRadius)))) {
        return "the radius must lie between 1 and 1000 mm";
    }
    const int corners = ReadCorners(fields_.GetText(kCorners));
    if (corners < 3 || corners > kMaxPolygonCorners) {
        return "the corner count must lie between 3 and " + std::to_string(kMaxPolygonCorners);
    }
    return {};
}

bool PolygonDialogModel::Ok(Document& document) {
    if (!Refusal().empty()) return false;
    PolygonSettings& m = memory_.polygon;
    m.corners = ReadCorners(fields_.GetText(kCorners));
    m.radiusMillimetres = ReadMillimetres(fields_.GetText(kRadius));
    m.piePieces = fields_.IsChecked(kPiePieces);
    m.spokes = fields_.IsChecked(kSpokes);
    m.outline = fields_.IsChecked(kOutline);
    m.firstCorner = CheckedRadio(fields_, kStarts, 4, kCornerTop);
    AddGeneratedPath(document, BuildPolygon(m));
    return true;
}

void CircleDialogModel::Open() {
    const CircleSettings& m = memory_.circle;
    fields_.SetText(kRadius, ShowMillimetres(m.radiusMillimetres));
    fields_.SetText(kStart, ShowNumber(m.startDegrees));
    fields_.SetText(kEnd, ShowNumber(m.endDegrees));
    fields_.SetChecked(kSpokes, m.spokes);
    fields_.SetChecked(kCentre, m.centreMark);
}

bool CircleDialogModel::Ok(Document& document) {
    CircleSettings& m = memory_.circle;
    m.radiusMillimetres = ReadMillimetres(fields_.GetText(kRadius));
    m.startDegrees = FoldFullTurnDegrees(ReadNumber(fields_.GetText(kStart)));
    m.endDegrees = FoldFullTurnDegrees(ReadNumber(fields_.GetText(kEnd)));
    m.spokes = fields_.IsChecked(kSpokes);
    m.centreMark = fields_.IsChecked(kCentre);
    AddGeneratedPath(document, BuildCircle(m));
    return true;
}

void SineDialogModel::Open() {
    const SineSettings& m = memory_.sine;
    fields_.SetText(kAmplitude, ShowMillimetres(m.amplitudeMillimetres));
    fields_.SetText(kStart, ShowNumber(m.startDegrees));
    fields_.SetText(kEnd, ShowNumber(m.endDegrees));
    fields_.SetChecked(kTickMarks, m.tickMarks);
    fields_.SetChecked(kAxes, m.axes);
}

bool SineDialogModel::Ok(Document& document) {
    SineSettings& m = memory_.sine;
    m.amplitudeMillimetres = ReadMillimetres(fields_.GetText(kAmplitude));
    m.startDegrees = ReadNumber(fields_.GetText(kStart));
    m.endDegrees = ReadNumber(fields_.GetText(kEnd));
    m.tickMarks = fields_.IsChecked(kTickMarks);
    m.axes = fields_.IsChecked(kAxes);
    if (m.startDegrees > m.endDegrees) std::swap(m.startDegrees, m.endDegrees);
    AddGeneratedPath(document, BuildSineCurve(m));
    return true;
}

void SpiralDialogModel::Open() {
    const SpiralMemory& m = memory_.spiral;
    increment_ = m.incrementMillimetres;
    factor_ = m.factor;
    shownLogarithmic_ = m.logarithmic;
    fields_.SetText(kMaxRadius, ShowMillimetres(m.maxRadiusMillimetres));
    fields_.SetText(kGrowth, m.logarithmic ? ShowNumber(factor_) : ShowMillimetres(increment_));
    fields_.SetChecked(kArchimedean, !m.logarithmic);
    fields_.SetChecked(kLogarithmic, m.logarithmic);
    fields_.Enable(kIdOk, Refusal().empty());
}

void SpiralDialogModel::OnCommand(int id, int code) {
    if (id == kArchimedean || id == kLogarithmic) {
        const bool logarithmic = fields_.IsChecked(kLogarithmic);
        if (logarithmic != shownLogarithmic_) {
            // Keep what was typed for the kind being left, show the value of the other kind.
            if (shownLogarithmic_) {
                factor_ = ReadNumber(fields_.GetText(kGrowth));
            } else {
                increment_ = ReadMillimetres(fields_.GetText(kGrowth));
            }
            shownLogarithmic_ = logarithmic;
            fields_.SetText(kGrowth,
                            logarithmic ? ShowNumber(factor_) : ShowMillimetres(increment_));
        }
    } else if (code != kEditChange || (id != kMaxRadius && id != kGrowth)) {
        return;
    }
    fields_.Enable(kIdOk, Refusal().empty());
}

SpiralSettings SpiralDialogModel::ReadControls() const {
    SpiralSettings settings;
    settings.maxRadiusMillimetres = ReadMillimetres(fields_.GetText(kMaxRadius));
    settings.logarithmic = fields_.IsChecked(kLogarithmic);
    settings.growth = settings.logarithmic ? ReadNumber(fields_.GetText(kGrowth))
                                           : ReadMillimetres(fields_.GetText(kGrowth));
    return settings;
}

std::string SpiralDialogModel::Refusal() const {
    const SpiralSettings settings = ReadControls();
    if (!AcceptableRadius(settings.maxRadiusMillimetres)) {
        return "the maximum radius must lie between 1 and 1000 mm";
    }
    const double turns = SpiralTurns(settings);
    if (turns < 0) {
        return settings.logarithmic ? "the growth factor per turn must be greater than 1"
                                    : "the growth per turn must be greater than 0 mm";
    }
    if (turns == 0) return "the spiral has no turn below its maximum radius";
    if (turns > kMaxSpiralTurns) return "the spiral would make more than 1000 turns";
    return {};
}

bool SpiralDialogModel::Ok(Document& document) {
    if (!Refusal().empty()) return false;
    const SpiralSettings settings = ReadControls();
    SpiralMemory& m = memory_.spiral;
    m.maxRadiusMillimetres = settings.maxRadiusMillimetres;
    m.logarithmic = settings.logarithmic;
    if (settings.logarithmic) {
        m.factor = settings.growth;
    } else {
        m.incrementMillimetres = settings.growth;
    }
    AddGeneratedPath(document, BuildSpiral(settings));
    return true;
}

} // namespace rhomba
