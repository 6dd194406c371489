#pragma once

#include "shapes/SpiralShape.h"
#include "ui/dialogs/DialogModel.h"
#include "ui/resource.h"

#include <string>

namespace rhomba {

// The generators need no selection: each adds one new path about the origin to the current
// layer of the drawing.

// "Vieleck" (dialog 163). OK is enabled only for a radius of 1 to 1000 mm and 3 to
// kMaxPolygonCorners corners.
class PolygonDialogModel : public DialogModel {
public:
    static constexpr int kCorners = IDC_POLYGON_CORNERS;
    static constexpr int kRadius = IDC_POLYGON_RADIUS;
    static constexpr int kPiePieces = IDC_POLYGON_PIE;
    static constexpr int kSpokes = IDC_POLYGON_SPOKES;
    static constexpr int kOutline = IDC_POLYGON_OUTLINE;
    static constexpr int kStarts[4] = {IDC_POLYGON_TOP, IDC_POLYGON_RIGHT, IDC_POLYGON_BOTTOM,
                                         IDC_POLYGON_LEFT}; // top, right, bottom, left

    using DialogModel::DialogModel;
    void Open() override;
    void OnCommand(int id, int code) override;
    // Refuses (returns false, nothing added) while the fields hold unusable values.
    bool Ok(Document& document) override;

    // Why OK is disabled, or empty when it is not.
    std::string Refusal() const;
};

inline constexpr int kMaxPolygonCorners = 1000;

// "Kreis" (dialog 166).
class CircleDialogModel : public DialogModel {
public:
    static constexpr int kRadius = IDC_CIRCLE_RADIUS;
    static constexpr int kSpokes = IDC_CIRCLE_SPOKES;
    static constexpr int kCentre = IDC_CIRCLE_CENTRE;
    static constexpr int kStart = IDC_CIRCLE_START;
    static constexpr int kEnd = IDC_CIRCLE_END;

    using DialogModel::DialogModel;
    void Open() override;
    bool Ok(Document& document) override;
};

// "Sinus" (dialog 167).
class SineDialogModel : public DialogModel {
public:
    static constexpr int kStart = IDC_SINE_START;
    static constexpr int kEnd = IDC_SINE_END;
    static constexpr int kAmplitude = IDC_SINE_AMPLITUDE;
    static constexpr int kTickMarks = IDC_SINE_TICKS;
    static constexpr int kAxes = IDC_SINE_AXES;

    using DialogModel::DialogModel;
    void Open() override;
    bool Ok(Document& document) override;
};

// The spiral dialog (168): "max. Radius", "Zuwachs/U" (millimetres per turn for "archimedisch",
// a factor per turn for "logarithmisch"), and the two kinds. Switching the kind shows the growth
// value that belongs to it. OK is enabled only for a maximum radius of 1 to 1000 mm and a spiral
// of more than 0 and at most kMaxSpiralTurns turns.
class SpiralDialogModel : public DialogModel {
public:
    static constexpr int kMaxRadius = IDC_SPIRAL_MAX_RADIUS;
    static constexpr int kGrowth = IDC_SPIRAL_GROWTH;
    static constexpr int kArchimedean = IDC_SPIRAL_ARCHIMEDEAN;
    static constexpr int kLogarithmic = IDC_SPIRAL_LOGARITHMIC;
    static constexpr int kKinds[2] = {kArchimedean, kLogarithmic};

    using DialogModel::DialogModel;
    void Open() override;
    void OnCommand(int id, int code) override;
    bool Ok(Document& document) override;

    // The settings the fields describe now.
    SpiralSettings ReadControls() const;
    std::string Refusal() const;

private:
    bool shownLogarithmic_ = false;
    double increment_ = 0;
    double factor_ = 0;
};

} // namespace rhomba
