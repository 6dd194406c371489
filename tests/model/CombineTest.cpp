#include "model/Combine.h"

#include "model/Document.h"
#include "model/PathObject.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

PathObject* AddSquare(Document& document, double x, ColorRef fill) {
    auto path = std::make_unique<PathObject>();
    path->AddNode({x, 0}, node::kMoveTo);
    path->AddNode({x + 10, 0}, node::kLineTo);
    path->AddNode({x + 10, 10}, node::kLineTo | node::kCloseFigure);
    path->SetFillColor(fill);
    return static_cast<PathObject*>(document.AddObject(std::move(path)));
}

TEST(Combine, FirstSelectedReceivesTheOthersInSelectionOrder) {
    Document document;
    PathObject* a = AddSquare(document, 0, 0x111111);
    PathObject* b = AddSquare(document, 20, 0x222222);
    PathObject* c = AddSquare(document, 40, 0x333333);
    document.ClearSelection();
    document.AddToSelection(b);
    document.AddToSelection(c);
    document.AddToSelection(a);
    ASSERT_EQ(CombineSelection(document), b);
    ASSERT_EQ(b->NodeCount(), 9u);
    EXPECT_EQ(b->PointAt(3).x, 40);
    EXPECT_EQ(b->PointAt(6).x, 0);
    EXPECT_EQ(document.Selection(), (std::vector<GraphicObject*>{b}));
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 1u);

    document.ClearSelection();
    document.AddToSelection(b);
    EXPECT_EQ(CombineSelection(document), nullptr);
}

TEST(Combine, SplitGivesOnePathPerFigureInPlace) {
    Document document;
    PathObject* below = AddSquare(document, -20, 0x111111);
    PathObject* combined = AddSquare(document, 0, 0x00FF00);
    combined->AddNode({20, 0}, node::kMoveTo);
    combined->AddNode({30, 0}, node::kLineTo);
    combined->AddNode({40, 0}, node::kMoveTo);
    combined->AddNode({50, 5}, node::kLineTo);
    combined->SetPenWidth(3);
    PathObject* above = AddSquare(document, 60, 0x333333);
    document.ClearSelection();
    document.AddToSelection(combined);

    ASSERT_EQ(SplitCombination(document), 3);
    const Layer& layer = document.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 5u);
    EXPECT_EQ(layer.ChildAt(0), below);
    EXPECT_EQ(layer.ChildAt(1), combined);
    EXPECT_EQ(layer.ChildAt(4), above);
    EXPECT_EQ(combined->NodeCount(), 3u);
    const auto* second = static_cast<const PathObject*>(layer.ChildAt(2));
    const auto* third = static_cast<const PathObject*>(layer.ChildAt(3));
    EXPECT_EQ(second->PointAt(0).x, 20);
    EXPECT_EQ(third->PointAt(1), (Point2{50, 5}));
    EXPECT_EQ(third->GetFillColor(), 0x00FF00u);
    EXPECT_EQ(third->GetPenWidth(), 3);
    EXPECT_NE(third->GetId(), 0u);
    EXPECT_EQ(document.Selection().size(), 3u);
    EXPECT_TRUE(third->IsSelected());

    // One figure left each: nothing to split.
    document.ClearSelection();
    document.AddToSelection(combined);
    EXPECT_EQ(SplitCombination(document), 0);
}

} // namespace
} // namespace rhomba
