// The dialog models on in-memory fields: what each dialog shows when it opens, how typed text is
// read, clamped and coupled, and what OK does to the drawing and to the next opening.
#include "geometry/Isometric.h"
#include "model/Document.h"
#include "support/Paths.h"
#include "ui/dialogs/AffineDialogs.h"
#include "ui/dialogs/FieldDialog.h"
#include "ui/dialogs/GeneratorDialogs.h"
#include "ui/dialogs/IsoSpaceDialogs.h"

#include <cmath>
#include <limits>

namespace rhomba::test {
namespace {

// A typed text; for a check box or radio button "+" checks it and "-" clears it.
using Steps = std::vector<std::pair<int, std::string>>;

template <typename Model>
void Play(FieldDialog<Model>& d, const Steps& steps) {
    for (const auto& [id, text] : steps) {
        if (text == "+" || text == "-") d.Check(id, text == "+");
        else d.Type(id, text);
    }
}

// The fields joined by '|': an edit field's text, a button as "x" (checked) or "-".
std::string Shown(const DialogFields& fields, const std::vector<int>& ids) {
    std::string shown;
    for (int id : ids) {
        const std::string text = fields.GetText(id);
        shown += (shown.empty() ? "" : "|") +
                 (text.empty() ? std::string(fields.IsChecked(id) ? "x" : "-") : text);
    }
    return shown;
}

struct OkCase {
    std::string (*run)(const std::vector<int>&, const Steps&, Document&, std::string&);
    std::vector<int> ids;
    Steps steps;
    std::size_t nodes; // of the last object after OK; 0 for none
    Point2 second;     // its second point; not looked at when not a number
    std::string opened, reopened;
};

// Opens the dialog on fresh memory and a selected 10 x 10 square at the origin, plays the steps,
// presses OK and opens it again; returns what the first opening showed.
template <typename Model>
std::string Opened(const std::vector<int>& ids, const Steps& steps, Document& document,
                std::string& reopened) {
    DialogMemory memory;
    Add(document, Square(0, 0, 10));
    FieldDialog<Model> d(memory);
    const std::string opened = Shown(d.fields, ids);
    Play(d, steps);
    Document empty; // nothing selected: OK closes the dialog all the same
    EXPECT_EQ(d.model.Ok(empty), d.model.Ok(document));
    reopened = Shown(FieldDialog<Model>(memory).fields, ids);
    return opened;
}

TEST(DialogModels, OpenTypeOkAndOpenAgain) {
    using R = RotateDialogModel;
    using St = StretchDialogModel;
    using Sh = ShearDialogModel;
    using M = MoveDialogModel;
    using Cy = CylinderDialogModel;
    using Pl = PlaneDialogModel;
    using Po = PolygonDialogModel;
    using Ci = CircleDialogModel;
    using Si = SineDialogModel;
    using Sp = SpiralDialogModel;
    const double none = std::numeric_limits<double>::quiet_NaN(), mm = kPointsPerMillimetre;
    const double tan80 = std::tan(80 / kDegreesPerRadian), tan30 = std::tan(30 / kDegreesPerRadian);
    const std::vector<int> rotate{R::kAngle, R::kCounterClockwise}, stretch{St::kX, St::kY, St::kBothAxes},
        shear{Sh::kXDegrees, Sh::kYDegrees, Sh::kXPercent, Sh::kYPercent}, move{M::kX, M::kY},
        plane{Pl::kFirstAngle, Pl::kSecondAngle, Pl::kForeshorten, Pl::kPlanes[kPlaneXZ], Pl::kFirstAxes[kAxisZ]},
        polygon{Po::kCorners, Po::kRadius, Po::kPiePieces, Po::kOutline, Po::kStarts[kCornerRight]};
    const OkCase cases[] = {
        {Opened<R>, rotate, {{R::kAngle, "-90"}}, 4, {10, 10}, "30|-", "270|-"},
        // A full turn returns before the direction is read.
        {Opened<R>, rotate, {{R::kAngle, "360"}, {R::kCounterClockwise, "+"}}, 4, {10, 0}, "", "0|-"},
        {Opened<R>, rotate, {{R::kAngle, "-12,345"}, {R::kCounterClockwise, "+"}}, 4, {none}, "", "347,66|x"},
        // OK turns 0 % into 1 % and keeps mirrors; the next opening shows at least 1.
        {Opened<St>, stretch, {{St::kBothAxes, "-"}, {St::kX, "0"}, {St::kY, "50"}}, 4, {5.05, 2.5},
         "100|100|x", "1|50|-"},
        {Opened<St>, stretch, {{St::kBothAxes, "-"}, {St::kX, "-100"}, {St::kY, "100"}}, 4, {0, 0}, "",
         "1|100|-"},
        {Opened<St>, stretch, {{St::kBothAxes, "-"}, {St::kX, "-0,0001"}, {St::kY, "5000"}}, 4,
         {4.95, -45}, "", "1|1000|-"},
        {Opened<Sh>, shear, {{Sh::kXDegrees, "89"}, {Sh::kYDegrees, "abc"}}, 4, {10 - 5 * tan80, 0},
         "0|0|0|0", "80|0|567,128|0"},
        {Opened<Sh>, shear, {{Sh::kYDegrees, "30"}}, 4, {10, 5 * tan30}, "", "0|30|0|57,735"},
        {Opened<Sh>, shear, {{Sh::kXDegrees, "1"}}, 4, {10 - 5 * std::tan(1 / kDegreesPerRadian), 0}, "",
         "1|0|1,74551|0"},
        // A unit is not read, and the distance is remembered unclamped.
        {Opened<M>, move, {{M::kX, "1 cm"}, {M::kY, "-0,125"}}, 4, {10 + mm, -0.125 * mm}, "0 mm|0 mm",
         "1 mm|-0,13 mm"},
        {Opened<M>, move, {{M::kX, "1234,567"}, {M::kY, "2000"}}, 4, {10 + 1234.567 * mm, 2000 * mm}, "",
         "1000 mm|1000 mm"},
        // Remembered unfolded, folded on opening; the plane dialog owns the foreshorten flag.
        {Opened<Cy>, {Cy::kAngle, Cy::kForeshorten}, {{Cy::kAngle, "120"}, {Cy::kForeshorten, "+"}}, 4,
         {none}, "0|-", "-60|-"},
        {Opened<Pl>, plane,
         {{Pl::kPlanes[kPlaneXY], "-"}, {Pl::kPlanes[kPlaneXZ], "+"}, {Pl::kFirstAxes[kAxisX], "-"},
          {Pl::kFirstAxes[kAxisZ], "+"}, {Pl::kFirstAngle, "370"}, {Pl::kSecondAngle, "-0,005"},
          {Pl::kForeshorten, "+"}},
         4, {none}, "0|0|-|-|-", "10|-0,005|x|x|x"},
        {Opened<Po>, polygon,
         {{Po::kCorners, "3"}, {Po::kPiePieces, "+"}, {Po::kStarts[kCornerTop], "-"},
          {Po::kStarts[kCornerRight], "+"}},
         12, {10 * mm, 0}, "5|10 mm|-|x|-", "3|10 mm|x|x|x"},
        {Opened<Po>, polygon, {{Po::kRadius, "0,5"}}, 4, {10, 0}, "", "5|10 mm|-|x|-"}, // refused
        {Opened<Ci>, {Ci::kRadius, Ci::kStart, Ci::kEnd, Ci::kCentre},
         {{Ci::kRadius, "1 cm"}, {Ci::kStart, "-30"}, {Ci::kEnd, "450"}, {Ci::kCentre, "+"}},
         1 + 3 + 3 + 4, {none}, "10 mm|0|0|-", "10 mm|330|90|x"},
        // The angles are swapped into order; the amplitude is a length: the x axis ends at 400.
        {Opened<Si>, {Si::kAmplitude, Si::kStart, Si::kEnd, Si::kAxes},
         {{Si::kAmplitude, "2,5 cm"}, {Si::kStart, "400"}, {Si::kEnd, "10"}}, 20,
         {400 / kDegreesPerRadian * 25 * mm, 0},
         "20 mm|0|360|x", "25 mm|10|400|x"},
        {Opened<Sp>, {Sp::kMaxRadius, Sp::kGrowth, Sp::kLogarithmic},
         {{Sp::kGrowth, "1 cm"}, {Sp::kMaxRadius, "3 cm"}}, 1 + 12 * 3, {none}, "50 mm|5 mm|-",
         "30 mm|10 mm|-"},
    };
    for (const OkCase& c : cases) {
        Document document;
        std::string reopened;
        const std::string opened = c.run(c.ids, c.steps, document, reopened);
        const std::string label = c.steps.front().second;
        EXPECT_TRUE(c.opened.empty() || opened == c.opened) << label << ": " << opened;
        EXPECT_EQ(reopened, c.reopened) << label;
        const Layer& layer = document.CurrentLayer();
        const auto& last = static_cast<const PathObject&>(*layer.ChildAt(layer.ChildCount() - 1));
        ASSERT_EQ(last.NodeCount(), c.nodes) << label;
        if (!std::isnan(c.second.x)) ExpectNear(last.PointAt(1), c.second);
    }
}

// Each typed text, and what a coupled field shows after it; a null text clicks the button.
struct Coupling {
    int typed;
    const char* text;
    int partner;
    const char* shown;
};

template <typename Model>
void ExpectCouplings(DialogMemory memory, std::initializer_list<Coupling> steps) {
    FieldDialog<Model> d(memory);
    for (const Coupling& s : steps) {
        if (s.text) d.Type(s.typed, s.text);
        else d.Check(s.typed, !d.fields.IsChecked(s.typed));
        EXPECT_EQ(d.fields.GetText(s.partner), s.shown) << (s.text ? s.text : "click");
    }
}

TEST(DialogModels, CoupledFieldsFollowTyping) {
    using St = StretchDialogModel;
    DialogMemory memory;
    memory.stretch = {-100, 5000, true};
    // Clamped into [1, 1000] on opening (nothing typed, id 0); the opening writes are not copied.
    // Then the typed value goes into the partner, clamped to +-1000, unless it is 0.001 or less,
    // or the box is cleared.
    ExpectCouplings<St>(memory, {{0, "", St::kX, "1"},
                                 {0, "", St::kY, "1000"},
                                 {St::kX, "12,5", St::kY, "12,5"},
                                 {St::kY, "-2000", St::kX, "-1000"},
                                 {St::kX, "0,001", St::kY, "-2000"},
                                 {St::kX, "0,0011", St::kY, "0,0011"},
                                 {St::kBothAxes, nullptr, St::kY, "0,0011"},
                                 {St::kX, "50", St::kY, "0,0011"}});
    using Sh = ShearDialogModel;
    // The partner's write does not come back to rewrite the typed text.
    ExpectCouplings<Sh>({}, {{Sh::kXDegrees, "45", Sh::kXPercent, "100"},
                             {Sh::kXDegrees, "45", Sh::kXDegrees, "45"},
                             {Sh::kYPercent, "100", Sh::kYDegrees, "45"},
                             {Sh::kYPercent, "100", Sh::kYPercent, "100"}});
    using Cy = CylinderDialogModel;
    ExpectCouplings<Cy>({}, {{Cy::kAngle, "400", Cy::kAngle, "360"},
                             {Cy::kAngle, "-360,5", Cy::kAngle, "-360"},
                             {Cy::kAngle, "-12,5", Cy::kAngle, "-12,5"}});
}

// OK is enabled for a polygon radius between 1 and 1000 mm and 3 or more corners, and for a
// spiral that grows and turns at most 1000 times below its radius.
template <typename Model, int First, int Second>
bool OkEnabled(const char* first, const char* second) {
    DialogMemory memory;
    FieldDialog<Model> d(memory);
    d.Type(First, first);
    d.Type(Second, second);
    Document document;
    EXPECT_EQ(d.model.Ok(document), d.fields.IsEnabled(kIdOk)) << first << ' ' << second;
    return d.fields.IsEnabled(kIdOk);
}

TEST(DialogModels, OkEnabledOnlyForUsableShapes) {
    using Po = PolygonDialogModel;
    using Sp = SpiralDialogModel;
    const auto polygon = OkEnabled<Po, Po::kCorners, Po::kRadius>;
    const auto spiral = OkEnabled<Sp, Sp::kMaxRadius, Sp::kGrowth>;
    const struct {
        bool (*enabled)(const char*, const char*);
        const char* first;
        const char* second;
        bool expected;
    } cases[] = {
        {polygon, "5", "0,5", false},  {polygon, "5", "1200", false}, {polygon, "5", "abc", false},
        {polygon, "5", "101 cm", false}, {polygon, "5", "1", true},    {polygon, "5", "1000", true},
        {polygon, "5", "0,1 m", true},  {polygon, "2", "10", false},   {polygon, "3", "10", true},
        {polygon, "1000000", "10", false}, {polygon, "1000", "10", true}, {spiral, "50", "0", false}, {spiral, "50", "0,01 mm", false},
        {spiral, "50", "1 cm", true},   {spiral, "2 m", "1 cm", false}, {spiral, "3 cm", "1 cm", true},
        {spiral, "1000", "1", true}, // a thousand turns
    };
    for (const auto& c : cases) EXPECT_EQ(c.enabled(c.first, c.second), c.expected) << c.second;
}

TEST(DialogModels, SpiralGrowthFieldShowsTheValueOfEachKind) {
    using Sp = SpiralDialogModel;
    DialogMemory memory;
    FieldDialog<Sp> d(memory);
    d.Type(Sp::kGrowth, "2,5 mm");
    d.Click(Sp::kKinds, 2, 1);
    EXPECT_EQ(d.fields.GetText(Sp::kGrowth), "1,5");
    d.Type(Sp::kGrowth, "1");
    EXPECT_FALSE(d.fields.IsEnabled(kIdOk)); // a factor of 1 does not grow
    d.Click(Sp::kKinds, 2, 0);
    EXPECT_EQ(d.fields.GetText(Sp::kGrowth), "2,5 mm");
    d.Click(Sp::kKinds, 2, 1);
    EXPECT_EQ(d.fields.GetText(Sp::kGrowth), "1");
}

TEST(DialogModels, CylinderFoldsItsMemoryAndTakesThePlaneFlag) {
    DialogMemory memory;
    memory.cylinder.phase = 120 / kDegreesPerRadian;
    memory.plane.foreshorten = true;
    FieldDialog<CylinderDialogModel> d(memory);
    EXPECT_NEAR(memory.cylinder.phase, -60 / kDegreesPerRadian, 1e-15);
    EXPECT_TRUE(d.fields.IsChecked(CylinderDialogModel::kForeshorten));
    Document document;
    PathObject* line = Add(document, Polyline({{0, 0}, {100, 0}}));
    d.model.Ok(document);
    EXPECT_TRUE(memory.plane.foreshorten);
    EXPECT_NE(line->PointAt(1), (Point2{100, 0}));
}

TEST(DialogModels, PlaneAxesDifferAndEveryChangeRedrawsThePreview) {
    using Pl = PlaneDialogModel;
    DialogMemory memory;
    FieldDialog<Pl> d(memory);
    auto enabled = [&d] {
        std::string out;
        for (int id : Pl::kSecondAxes) out += d.fields.IsEnabled(id) ? d.fields.IsChecked(id) ? 'x' : 'o' : '-';
        return out;
    };
    EXPECT_EQ(enabled(), "-xo");
    const int opened = d.fields.invalidations[Pl::kPreview];
    EXPECT_GE(opened, 1);
    d.Click(Pl::kFirstAxes, 3, kAxisZ);
    EXPECT_EQ(enabled(), "ox-");
    // Choosing the second axis as first moves the second one to a free axis.
    d.Click(Pl::kFirstAxes, 3, kAxisY);
    EXPECT_EQ(enabled(), "x-o");
    d.Click(Pl::kFirstAxes, 3, kAxisX);
    EXPECT_EQ(enabled(), "-xo");
    d.Type(Pl::kFirstAngle, "15");
    d.Click(Pl::kPlanes, 4, kPlaneZX);
    d.Check(Pl::kForeshorten, true);
    d.model.OnCommand(Pl::kPreview, kButtonClicked); // its own paint asks for nothing
    EXPECT_EQ(d.fields.invalidations[Pl::kPreview], opened + 6);

    // OK turns as the rotation itself does with the values shown.
    Document document, direct;
    PathObject* path = Add(document, Polyline({{0, 0}, {40, 20}}));
    PathObject* expected = Add(direct, Polyline({{0, 0}, {40, 20}}));
    d.model.Ok(document);
    RotateSelectionInPlane(direct, {{}, kPlaneZX, kAxisX, 15, kAxisY, 0, true});
    EXPECT_EQ(path->Points(), expected->Points());
    EXPECT_EQ(ReducePlaneAngle(-370), -10);
}

} // namespace
} // namespace rhomba::test
