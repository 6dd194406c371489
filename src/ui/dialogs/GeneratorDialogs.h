#pragma once

#include "shapes/SpiralShape.h"
#include "ui/dialogs/DialogModel.h"

#include <string>

namespace rhomba {

// The generators need no selection: each adds one new path about the origin to the current
// layer of the drawing.

// "Vieleck" (dialog 163). OK is enabled only for a radius of 1 to 1000 mm and 3 to
// kMaxPolygonCorners corners.
class PolygonDialogModel : public DialogModel {
public:
    static constexpr int kCorners = 1054;
    static constexpr int kRadius = 1055;
    static constexpr int kPiePieces = 1057;
    static constexpr int kSpokes = 1060;
    static constexpr int kOutline = 1058;
    static constexpr int kStarts[4] = {1056, 1062, 1063, 1064}; // top, right, bottom, left

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
    static constexpr int kRadius = 1070;
    static constexpr int kSpokes = 1071;
    static constexpr int kCentre = 1072;
    static constexpr int kStart = 1073;
    static constexpr int kEnd = 1074;

    using DialogModel::DialogModel;
    void Open() override;
    bool Ok(Document& document) override;
};

// "Sinus" (dialog 167).
class SineDialogModel : public DialogModel {
public:
    static constexpr int kStart = 1075;
    static constexpr int kEnd = 1076;
    static constexpr int kAmplitude = 1077;
    static constexpr int kTickMarks = 1078;
    static constexpr int kAxes = 1079;

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
    static constexpr int kMaxRadius = 1080;
    static constexpr int kGrowth = 1081;
    static constexpr int kArchimedean = 1082;
    static constexpr int kLogarithmic = 1083;
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
