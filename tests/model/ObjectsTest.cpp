#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
#include "model/TextObject.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

std::string Describe(const GraphicObject& object) {
    std::string text;
    object.Describe(text);
    return text;
}

std::unique_ptr<PathObject> Line(Point2 a, Point2 b) {
    auto path = std::make_unique<PathObject>();
    path->AddNode(a, node::kMoveTo);
    path->AddNode(b, node::kLineTo);
    return path;
}

TEST(GraphicObjects, DefaultsOfEachKind) {
    PathObject path;
    EXPECT_EQ(path.GetKind(), ObjectKind::Path);
    EXPECT_EQ(path.GetId(), 0u);
    EXPECT_EQ(path.GetOwner(), nullptr);
    EXPECT_TRUE(path.HasStroke());
    EXPECT_EQ(path.GetStrokeColor(), 0x000000u);
    EXPECT_TRUE(path.HasFill());
    EXPECT_EQ(path.GetFillColor(), 0xAAAAAAu);
    EXPECT_EQ(path.GetPenWidth(), 0.25);
    EXPECT_EQ(path.GetDashDotRaw(), 0u);

    TextObject text;
    EXPECT_EQ(text.GetKind(), ObjectKind::Text);
    EXPECT_FALSE(text.HasStroke());
    EXPECT_EQ(text.GetStrokeColor(), 0u);
    EXPECT_TRUE(text.HasFill());
    EXPECT_EQ(text.GetFillColor(), 0u);
    EXPECT_EQ(text.GetFont(), "Arial");
    EXPECT_EQ(text.GetSize(), 12.0);
    EXPECT_EQ(text.GetTextTransform(), Matrix2D::Identity());

    GraphicObject base;
    EXPECT_EQ(base.GetKind(), ObjectKind::Graphic);
    EXPECT_EQ(base.CountObjects(), 1);
    Rect2 untouched{1, 2, 3, 4};
    EXPECT_FALSE(base.GetBounds(untouched, true));
    EXPECT_EQ(untouched, (Rect2{1, 2, 3, 4}));
}

TEST(GraphicObjects, DescribeTexts) {
    GraphicObject base;
    EXPECT_EQ(Describe(base), "Grafikdaten");
    auto path = Line({0, 0}, {1, 1});
    EXPECT_EQ(Describe(*path), "Pfad mit 2 Knoten");
    TextObject text;
    text.SetText("Hallo");
    EXPECT_EQ(Describe(text), "Text mit 5 Zeichen");
    Hotspot spot;
    spot.SetName("start");
    EXPECT_EQ(Describe(spot), "Hotspot (start)");
    Group group;
    group.InsertAt(Line({0, 0}, {1, 1}), nullptr, 0, 0);
    EXPECT_EQ(Describe(group), "Gruppe mit 1 Objekten");
    Layer layer;
    EXPECT_EQ(Describe(layer), "Gruppe mit 0 Objekten");
}

TEST(GraphicObjects, StyleWordsKeepColourAndSwitchApart) {
    PathObject path;
    path.SetStrokeColor(0xFF123456); // bits above 24 are not a colour
    EXPECT_EQ(path.GetStrokeColor(), 0x123456u);
    EXPECT_TRUE(path.HasStroke());
    path.SetStroke(false);
    EXPECT_EQ(path.GetStrokeColor(), 0x123456u);
    EXPECT_EQ(path.GetStrokeWord(), 0x123456u);
    path.SetFill(false);
    path.SetFillColor(0x00FF00);
    EXPECT_FALSE(path.HasFill());
    EXPECT_EQ(path.GetFillWord(), 0x00FF00u);
}

TEST(GraphicObjects, DashCountStopsAtTheFirstIncompletePair) {
    EXPECT_EQ(CountDashEntries({3, 0, 5, 5, 5, 5, 5, 5}), 0);
    EXPECT_EQ(CountDashEntries({0, 3, 5, 5, 5, 5, 5, 5}), 0);
    EXPECT_EQ(CountDashEntries({3, 2, 0, 0, 0, 0, 0, 0}), 2);
    EXPECT_EQ(CountDashEntries({3, 2, 1, 0, 9, 9, 9, 9}), 2);
    EXPECT_EQ(CountDashEntries({3, 2, 1, 1, 4, 0, 0, 0}), 4);
    EXPECT_EQ(CountDashEntries({3, 2, 1, 1, 4, 4, 7, 0}), 6);
    EXPECT_EQ(CountDashEntries({3, 2, 1, 1, 4, 4, 7, 7}), 8);
}

TEST(GraphicObjects, CopyStyleFromTakesNameAndStyleButNotGeometry) {
    PathObject from;
    from.SetName("Rahmen");
    from.SetStrokeColor(0x0000FF);
    from.SetStroke(false);
    from.SetPenWidth(3.5);
    from.SetDashDot({4, 1, 0, 0, 0, 0, 0, 0});
    from.SetFillColor(0x00FF00);
    from.SetFill(false);
    from.AddNode({1, 1}, node::kMoveTo);

    TextObject to;
    to.CopyStyleFrom(from);
    EXPECT_EQ(to.GetName(), "Rahmen");
    EXPECT_EQ(to.GetStrokeColor(), 0x0000FFu);
    EXPECT_FALSE(to.HasStroke());
    EXPECT_EQ(to.GetPenWidth(), 3.5);
    EXPECT_EQ(to.GetDashCount(), 2);
    EXPECT_EQ(to.GetFillColor(), 0x00FF00u);
    EXPECT_FALSE(to.HasFill());
    // The text's outline carries the style.
    EXPECT_EQ(to.Outline().GetPenWidth(), 3.5);
}

TEST(PathObjectTest, SplitOffCutsFromTheSecondFigureAndCopiesTheStyle) {
    PathObject path;
    path.SetPenWidth(2);
    path.SetFillColor(0x123456);
    path.SetDashDot({2, 1, 0, 0, 0, 0, 0, 0});
    path.AddNode({0, 0}, node::kMoveTo);
    path.AddNode({1, 0}, node::kLineTo | node::kCloseFigure);
    path.AddNode({5, 5}, node::kMoveTo);
    path.AddNode({6, 5}, node::kLineTo);
    path.AddNode({7, 7}, node::kMoveTo);
    path.SetName("kept");

    auto rest = path.SplitOff();
    ASSERT_NE(rest, nullptr);
    auto& second = static_cast<PathObject&>(*rest);
    EXPECT_EQ(path.NodeCount(), 2u);
    ASSERT_EQ(second.NodeCount(), 3u);
    EXPECT_EQ(second.PointAt(0), (Point2{5, 5}));
    EXPECT_EQ(second.TypeAt(2), node::kMoveTo);
    EXPECT_EQ(second.GetPenWidth(), 2);
    EXPECT_EQ(second.GetFillColor(), 0x123456u);
    EXPECT_EQ(second.GetDashCount(), 2);
    EXPECT_EQ(second.GetName(), "");

    PathObject single;
    single.AddNode({0, 0}, node::kMoveTo);
    single.AddNode({1, 0}, node::kLineTo);
    EXPECT_EQ(single.SplitOff(), nullptr);
    EXPECT_EQ(single.NodeCount(), 2u);
}

TEST(PathObjectTest, NodeRunsCutInsertAndReverseTogether) {
    PathObject path;
    for (int i = 0; i < 5; ++i) path.AddNode({double(i), 0}, i == 0 ? node::kMoveTo : node::kLineTo);
    NodeRun run = path.CutNodes(1, 2);
    EXPECT_EQ(path.NodeCount(), 3u);
    ASSERT_EQ(run.points.size(), 2u);
    PathObject::Reverse(run);
    EXPECT_EQ(run.points[0], (Point2{2, 0}));
    path.InsertNodes(99, run); // past the end appends
    EXPECT_EQ(path.PointAt(3), (Point2{2, 0}));
    EXPECT_EQ(path.PointAt(4), (Point2{1, 0}));
    EXPECT_EQ(path.Points().size(), path.Types().size());
    // A cut beyond the end is clamped rather than overrunning.
    EXPECT_EQ(path.CutNodes(4, 10).points.size(), 1u);

    PathObject other;
    other.AddNode({9, 9}, node::kMoveTo);
    EXPECT_TRUE(other.AppendFrom(path));
    EXPECT_EQ(other.NodeCount(), 5u);
    TextObject text;
    EXPECT_FALSE(other.AppendFrom(text));
}

TEST(TextObjectTest, SettersEmptyTheCacheOnlyWhenTheValueChanges) {
    TextObject text;
    auto fresh = [&] { text.SetCache("built"); };
    auto stale = [&] { return text.GetCache().empty(); };

    fresh();
    text.SetTextFont("Arial");
    text.SetTextSize(12);
    text.SetTextPosition(0, 0);
    text.SetText("");
    text.SetBold(false);
    text.SetItalic(false);
    text.SetTextTransform(1, 0, 0, 1);
    EXPECT_FALSE(stale());

    fresh(); text.SetTextFont("Courier New"); EXPECT_TRUE(stale());
    fresh(); text.SetTextSize(14); EXPECT_TRUE(stale());
    fresh(); text.SetTextPosition(0, 1); EXPECT_TRUE(stale());
    fresh(); text.SetText("x"); EXPECT_TRUE(stale());
    fresh(); text.SetBold(true); EXPECT_TRUE(stale());
    fresh(); text.SetItalic(true); EXPECT_TRUE(stale());
    fresh(); text.SetTextTransform(2, 0, 0, 1); EXPECT_TRUE(stale());
    EXPECT_TRUE(text.IsBold());
    EXPECT_TRUE(text.IsItalic());
}

TEST(TextObjectTest, TransformMapsOriginAndComposesLinearPart) {
    TextObject text;
    text.SetTextPosition(10, 0);
    text.SetTextTransform(2, 0, 0, 1); // glyphs stretched in x
    text.Transform(Multiply(Matrix2D::Rotation(90), Matrix2D::Translation(5, 5)));
    const Point2 origin = text.GetPosition();
    EXPECT_NEAR(origin.x, 5, 1e-12);
    EXPECT_NEAR(origin.y, 15, 1e-12);
    // First the text's own stretch, then the rotation: a glyph x step (1, 0) becomes (0, 2).
    const Point2 step = text.GetTextTransform().TransformPoint({1, 0});
    EXPECT_NEAR(step.x, 0, 1e-12);
    EXPECT_NEAR(step.y, 2, 1e-12);
    EXPECT_EQ(text.GetTextTransform().e, 0);
}

TEST(TextObjectTest, SelectionAndAttachReachTheOutline) {
    Document doc;
    auto owned = std::make_unique<TextObject>();
    TextObject* text = owned.get();
    doc.CurrentLayer().InsertAt(std::move(owned), &doc, 0, 0);
    EXPECT_NE(text->GetId(), 0u);
    EXPECT_NE(text->Outline().GetId(), 0u);
    EXPECT_NE(text->Outline().GetId(), text->GetId());
    text->SetSelected(true);
    EXPECT_TRUE(text->Outline().IsSelected());
    TextObject more;
    more.SetText("lo");
    text->SetText("Hal");
    EXPECT_TRUE(text->AppendFrom(more));
    EXPECT_EQ(text->GetText(), "Hallo");
}

TEST(HotspotTest, HitsNearTheEdgesAndKeepsTheCornersNormalised) {
    Hotspot spot;
    spot.SetRect(20, 0, 0, 10);
    // Top, right, bottom and left hit; the inside and the far outside do not.
    for (const Point2 p : {Point2{10, 10.5}, Point2{20.5, 5}, Point2{10, -1}, Point2{-0.9, 5}}) {
        EXPECT_EQ(spot.HitTest(p, 1), &spot) << p.x << " " << p.y;
    }
    EXPECT_EQ(spot.HitTest({10, 5}, 1), nullptr);
    EXPECT_EQ(spot.HitTest({30, 30}, 1), nullptr);
    Rect2 box;
    EXPECT_TRUE(spot.GetBounds(box, true));
    EXPECT_EQ(box, (Rect2{0, 10, 20, 0}));
    spot.Transform(Matrix2D::Scaling(-1, 1)); // a mirror swaps the x values
    EXPECT_EQ(spot.GetRect(), (Rect2{-20, 10, 0, 0}));
}

} // namespace
} // namespace rhomba
