#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"

#include <gtest/gtest.h>


namespace rhomba {
namespace {

// A leaf that counts how many of its kind are alive, to see who deletes what.
struct Counted : Hotspot {
    static inline int alive = 0;
    Counted() { ++alive; }
    ~Counted() override { --alive; }
};

std::unique_ptr<Hotspot> Spot(double x1, double y1, double x2, double y2) {
    auto spot = std::make_unique<Hotspot>();
    spot->SetRect(x1, y1, x2, y2);
    return spot;
}

TEST(Ownership, DeletingAGroupDeletesItsChildrenButDetachingDoesNot) {
    Counted::alive = 0;
    {
        Document doc;
        Layer& layer = doc.CurrentLayer();
        auto inner = std::make_unique<Group>();
        inner->InsertAt(std::make_unique<Counted>(), &doc, 0, 0);
        inner->InsertAt(std::make_unique<Counted>(), &doc, 0, 1);
        Group* group = static_cast<Group*>(layer.InsertAt(std::move(inner), &doc, 0, 0));
        GraphicObject* kept = group->ChildAt(0);
        EXPECT_EQ(Counted::alive, 2);

        std::unique_ptr<GraphicObject> detached = group->Detach(kept);
        ASSERT_EQ(detached.get(), kept);
        EXPECT_EQ(detached->GetParent(), nullptr);
        EXPECT_EQ(Counted::alive, 2);
        EXPECT_EQ(group->Detach(kept), nullptr); // no longer a child: nothing happens

        EXPECT_TRUE(doc.DeleteChild(group, false));
        EXPECT_EQ(Counted::alive, 1);
        EXPECT_EQ(layer.ChildCount(), 0u);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(Ownership, DeeplyNestedGroupsAreDestroyedWithoutRecursion) {
    Counted::alive = 0;
    {
        auto root = std::make_unique<Group>();
        Group* deepest = root.get();
        for (int i = 0; i < 200000; ++i) {
            deepest = static_cast<Group*>(
                deepest->InsertAt(std::make_unique<Group>(), nullptr, 0, 0));
            deepest->InsertAt(std::make_unique<Counted>(), nullptr, 0, 0);
        }
        EXPECT_EQ(Counted::alive, 200000);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(Ids, CounterStartsAfterTheDocumentAndNeverReuses) {
    Document doc;
    EXPECT_EQ(doc.GetId(), 1u);
    Layer& layer = doc.CurrentLayer();
    EXPECT_EQ(layer.GetId(), 2u);
    GraphicObject* a = doc.AddObject(Spot(0, 1, 1, 0));
    GraphicObject* b = doc.AddObject(Spot(0, 1, 1, 0));
    EXPECT_EQ(a->GetId(), 3u);
    EXPECT_EQ(b->GetId(), 4u);
    EXPECT_EQ(a->GetOwner(), &doc);
    EXPECT_EQ(a->GetParent(), &layer);
    // The newest object is the only selection.
    EXPECT_FALSE(a->IsSelected());
    EXPECT_EQ(doc.Selection(), std::vector<GraphicObject*>{b});

    doc.DeleteChild(b, false);
    EXPECT_EQ(doc.AddObject(Spot(0, 1, 1, 0))->GetId(), 5u);

    // A requested id is given as asked, and the counter moves beyond it.
    EXPECT_EQ(layer.InsertAt(Spot(0, 1, 1, 0), &doc, 40, 0)->GetId(), 40u);
    EXPECT_EQ(doc.AddObject(Spot(0, 1, 1, 0))->GetId(), 41u);

    // An object that has an id keeps it when it moves.
    std::unique_ptr<GraphicObject> moved = layer.Detach(a);
    EXPECT_EQ(layer.InsertAt(std::move(moved), &doc, 0, 0)->GetId(), 3u);
}

TEST(Ids, ResetStartsTheCountAgainAndUsesNewDocumentDefaults) {
    Document doc;
    EXPECT_EQ(doc.defaults.penWidth, 0.25);
    doc.AddObject(Spot(0, 1, 1, 0));
    std::string titled = "unset";
    doc.onTitleChange = [&](const std::string& name) { titled = name; };
    doc.SetFileName("a.rhomba");
    EXPECT_EQ(titled, "a.rhomba");

    doc.Reset();
    EXPECT_EQ(titled, "");
    EXPECT_EQ(doc.GetFileName(), "");
    EXPECT_EQ(doc.LayerCount(), 0u);
    EXPECT_EQ(doc.CurrentLayerIndex(), -1);
    EXPECT_TRUE(doc.Selection().empty());
    EXPECT_EQ(doc.defaults.penWidth, 1.0);
    EXPECT_EQ(doc.defaults.fillColor, 0xAAAAAAu);
    EXPECT_EQ(doc.LastId(), 1u);
    EXPECT_EQ(doc.CurrentLayer().GetId(), 2u);
    EXPECT_EQ(doc.CurrentLayerIndex(), 0);
}

TEST(Layers, FirstLayerLineNamesTheAutomaticLayer) {
    Document doc;
    doc.CurrentLayer();
    Layer& named = doc.NewLayer("Grundriss", "EVP");
    EXPECT_EQ(doc.LayerCount(), 1u);
    EXPECT_EQ(named.GetName(), "Grundriss");
    EXPECT_FALSE(named.IsHidden());

    doc.AddObject(Spot(0, 1, 1, 0));
    Layer& second = doc.NewLayer("Masse", "EvP");
    EXPECT_EQ(doc.LayerCount(), 2u);
    EXPECT_EQ(&doc.CurrentLayer(), &second);
    EXPECT_TRUE(second.IsHidden());
    EXPECT_EQ(doc.CurrentLayerIndex(), 1);

    // An empty current layer is renamed, not followed by another one.
    doc.NewLayer("Text", "EVP");
    EXPECT_EQ(doc.LayerCount(), 2u);
    EXPECT_EQ(second.GetName(), "Text");
    EXPECT_FALSE(second.IsHidden());

    doc.SetCurrentLayerIndex(7); // clamped to the last layer
    EXPECT_EQ(&doc.CurrentLayer(), &second);
}

TEST(Lookup, HiddenLayersOnlyWhenAskedLaterObjectsFirst) {
    Document doc;
    GraphicObject* spot = doc.AddObject(Spot(0, 1, 1, 0));
    spot->SetName("tuer");
    EXPECT_EQ(doc.FindByName("tuer", false), spot);
    EXPECT_EQ(doc.FindById(spot->GetId(), false), spot);
    doc.CurrentLayer().SetHidden(true);
    EXPECT_EQ(doc.FindByName("tuer", false), nullptr);
    EXPECT_EQ(doc.FindById(spot->GetId(), false), nullptr);
    EXPECT_EQ(doc.FindByName("tuer", true), spot);
    EXPECT_EQ(doc.FindById(spot->GetId(), true), spot);
    EXPECT_FALSE(doc.DeleteChild(spot, false));
    EXPECT_TRUE(doc.DeleteChild(spot, true));

    // Later objects win; containers can be found.
    doc.CurrentLayer().SetHidden(false);
    GraphicObject* first = doc.AddObject(Spot(0, 1, 1, 0));
    GraphicObject* second = doc.AddObject(Spot(0, 1, 1, 0));
    first->SetName("same");
    second->SetName("same");
    EXPECT_EQ(doc.FindByName("same", false), second);
    Layer& layer = doc.CurrentLayer();
    EXPECT_EQ(doc.FindById(layer.GetId(), false), &layer);
    EXPECT_EQ(doc.FindById(999, true), nullptr);
}

TEST(Selection, GroupsSelectTheirInsideAndTheListAddsRemovesToggles) {
    Document doc;
    auto group = std::make_unique<Group>();
    auto inner = std::make_unique<Group>();
    GraphicObject* deep = inner->InsertAt(Spot(0, 1, 1, 0), &doc, 0, 0);
    group->InsertAt(std::move(inner), &doc, 0, 0);
    GraphicObject* added = doc.AddObject(std::move(group));
    EXPECT_TRUE(deep->IsSelected());
    doc.ClearSelection();
    EXPECT_FALSE(deep->IsSelected());
    EXPECT_FALSE(added->IsSelected());

    GraphicObject* a = doc.AddObject(Spot(0, 1, 1, 0));
    GraphicObject* b = doc.AddObject(Spot(0, 1, 1, 0));
    doc.AddToSelection(a);
    doc.AddToSelection(a); // listed once
    ASSERT_EQ(doc.Selection().size(), 2u);
    EXPECT_EQ(doc.Selection()[1], a);
    doc.ToggleSelection(b);
    EXPECT_FALSE(b->IsSelected());
    EXPECT_EQ(doc.Selection().size(), 1u);
    doc.ToggleSelection(b);
    EXPECT_TRUE(b->IsSelected());
    doc.RemoveFromSelection(a);
    EXPECT_FALSE(a->IsSelected());
    EXPECT_EQ(doc.Selection(), std::vector<GraphicObject*>{b});
    doc.ChangeSelection({a, b}, SelectionChange::Toggle); // as a shift-drag toggles
    EXPECT_TRUE(a->IsSelected() && !b->IsSelected());
    EXPECT_EQ(doc.Selection(), std::vector<GraphicObject*>{a});
}

TEST(Selection, DeleteSelectionCopesWithAnObjectInsideASelectedGroup) {
    Counted::alive = 0;
    Document doc;
    auto group = std::make_unique<Group>();
    GraphicObject* inner = group->InsertAt(std::make_unique<Counted>(), &doc, 0, 0);
    GraphicObject* added = doc.AddObject(std::move(group));
    doc.AddObject(std::make_unique<Counted>());
    doc.ClearSelection();
    doc.AddToSelection(added);
    doc.AddToSelection(inner);
    doc.DeleteSelection();
    EXPECT_TRUE(doc.Selection().empty());
    EXPECT_EQ(Counted::alive, 1);
    EXPECT_EQ(doc.CurrentLayer().ChildCount(), 1u);

    // Selecting all one by one and deleting a whole layer's children.
    Layer& layer = doc.CurrentLayer();
    for (int i = 0; i < 1000; ++i) layer.InsertAt(std::make_unique<Hotspot>(), &doc, 0, i);
    for (std::size_t i = 0; i < layer.ChildCount(); ++i) doc.AddToSelection(layer.ChildAt(i));
    doc.DeleteSelection();
    EXPECT_EQ(layer.ChildCount(), 0u);
}

TEST(Bounds, GroupsMergeChildrenTheDocumentStartsEmptyTheSelectionCountsAlone) {
    Document doc;
    Rect2 box;
    EXPECT_FALSE(doc.GetBounds(box, false));
    EXPECT_EQ(box, (Rect2{987654321.9, -987654321.9, -987654321.9, 987654321.9}));

    doc.AddObject(Spot(0, 10, 5, 2));
    doc.AddObject(Spot(-3, 4, 1, -6));
    doc.AddObject(std::make_unique<Group>()); // measures nothing, changes nothing
    EXPECT_TRUE(doc.GetBounds(box, true));
    EXPECT_EQ(box, (Rect2{-3, 10, 5, -6}));

    // The selection's box covers the selection only.
    GraphicObject* a = doc.AddObject(Spot(0, 10, 5, 2));
    doc.AddObject(Spot(100, 200, 300, 100));
    doc.AddToSelection(doc.AddObject(Spot(-3, 4, 1, -6)));
    doc.AddToSelection(a);
    EXPECT_EQ(doc.SelectionBounds(), (Rect2{-3, 10, 5, -6}));
    EXPECT_EQ(doc.SelectionBounds().Centre(), (Point2{1, 2}));

    doc.ClearSelection();
    EXPECT_TRUE(doc.SelectionBounds().IsEmpty());
    EXPECT_EQ(doc.SelectionBounds().left, 987654321.1);
}

TEST(HitTesting, GroupsAnswerForThemselvesLayersForTheTopmostChild) {
    Document doc;
    auto group = std::make_unique<Group>();
    group->InsertAt(Spot(0, 10, 10, 0), &doc, 0, 0);
    GraphicObject* added = doc.AddObject(std::move(group));
    GraphicObject* loose = doc.AddObject(Spot(100, 110, 110, 100));

    EXPECT_EQ(doc.HitTest({0, 5}, 0.5), added);
    EXPECT_EQ(doc.HitTest({100, 105}, 0.5), loose);
    EXPECT_EQ(doc.HitTest({50, 50}, 0.5), nullptr);

    // The document divides the tolerance by the zoom (0.5 at start): 0.5 becomes 1.0.
    EXPECT_EQ(doc.HitTest({-0.9, 5}, 0.5), added);
    EXPECT_EQ(doc.HitTest({-1.1, 5}, 0.5), nullptr);

    static_cast<Group*>(added)->SetHidden(true);
    EXPECT_EQ(doc.HitTest({0, 5}, 0.5), nullptr);

    // The topmost child wins within a layer.
    GraphicObject* below = doc.AddObject(Spot(200, 210, 210, 200));
    GraphicObject* above = doc.AddObject(Spot(200, 210, 210, 200));
    EXPECT_EQ(doc.HitTest({200, 205}, 0.5), above);
    doc.DeleteChild(above, false);
    EXPECT_EQ(doc.HitTest({200, 205}, 0.5), below);
}

// Containers hand the matrix on to every child; empty groups count as nothing.
TEST(Containers, TransformReachesEveryChildAndEmptyGroupsCountNothing) {
    Document doc;
    auto group = std::make_unique<Group>();
    auto* spot = static_cast<Hotspot*>(group->InsertAt(Spot(0, 10, 10, 0), &doc, 0, 0));
    doc.AddObject(std::move(group));
    auto path = std::make_unique<PathObject>();
    path->AddNode({1, 2}, node::kMoveTo);
    path->AddNode({3, 4}, node::kLineTo);
    auto* line = static_cast<PathObject*>(doc.AddObject(std::move(path)));
    auto empty = std::make_unique<Group>();
    empty->InsertAt(std::make_unique<Group>(), &doc, 0, 0);
    doc.AddObject(std::move(empty));
    EXPECT_EQ(doc.CountObjects(), 2);

    doc.Transform(Matrix2D::Translation(5, -5));
    EXPECT_EQ(spot->GetRect(), (Rect2{5, 5, 15, -5}));
    EXPECT_EQ(line->PointAt(0), (Point2{6, -3}));
    EXPECT_EQ(line->PointAt(1), (Point2{8, -1}));
}

TEST(View, StartsAtHalfZoomWithTheCanvasScaleAndFlippedY) {
    Document doc;
    EXPECT_EQ(doc.view.zoom, 0.5);
    const double s = 0.5 * 1.763884097222222;
    EXPECT_EQ(doc.view.view, (Matrix2D{s, 0, 0, -s, 100, 800}));
    const Point2 back = doc.view.inverse.TransformPoint(doc.view.view.TransformPoint({30, 40}));
    EXPECT_NEAR(back.x, 30, 1e-12);
    EXPECT_NEAR(back.y, 40, 1e-12);
}

} // namespace
} // namespace rhomba
