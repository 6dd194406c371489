#include "model/Document.h"
#include "model/Hotspot.h"

#include <gtest/gtest.h>

#include <vector>

namespace rhomba {
namespace {

// A layer of hotspots named a, b, c, ... with some of them selected in the given order.
class ArrangeTest : public ::testing::Test {
protected:
    void Build(const std::string& names, const std::string& selected) {
        for (char name : names) {
            auto spot = std::make_unique<Hotspot>();
            spot->SetName(std::string(1, name));
            doc.CurrentLayer().InsertAt(std::move(spot), &doc, 0, doc.CurrentLayer().ChildCount());
        }
        for (char name : selected) doc.AddToSelection(doc.FindByName(std::string(1, name), true));
    }

    std::string Order() {
        std::string order;
        Layer& layer = doc.CurrentLayer();
        for (std::size_t i = 0; i < layer.ChildCount(); ++i) order += layer.ChildAt(i)->GetName();
        return order;
    }

    Document doc;
};

TEST_F(ArrangeTest, StepsMoveTheSelectionWithoutSwappingSelectedNeighbours) {
    const struct {
        const char* names;
        const char* selected;
        std::vector<int> steps;
        const char* order;
    } cases[] = {
        {"abcde", "d", {-1}, "abdce"},              // one back swaps with an unselected predecessor
        {"abcde", "d", {-1, -1, -1, -1}, "dabce"},  // already first: nothing
        {"abcde", "cd", {-1}, "acdbe"},             // a block moves without swapping its members
        {"abcde", "bc", {1}, "adbce"},              // forward walks from the selection's last
        {"abc", "c", {1}, "abc"},                   // the top object stays on top
        {"abc", "ab", {1}, "cab"},
        {"abc", "ab", {1, 1}, "cab"},               // adjacent selected objects never pass
        {"abcdef", "ce", {-111}, "ceabdf"},         // to the back keeps the block order
        {"abcdef", "ce", {-111, -111}, "ceabdf"},
        {"abcdef", "bd", {111}, "acefbd"},          // to the front keeps the block order
        {"abcdef", "bd", {111, 111}, "acefbd"},
        {"abc", "b", {2}, "abc"},                   // unknown steps do nothing
    };
    for (const auto& c : cases) {
        doc.Reset();
        Build(c.names, c.selected);
        for (int step : c.steps) doc.Arrange(step);
        EXPECT_EQ(Order(), c.order) << c.names << " " << c.selected << " " << c.steps.size();
    }
}

TEST_F(ArrangeTest, ObjectsStayInTheirOwnParents) {
    Build("ab", "");
    auto group = std::make_unique<Group>();
    auto x = std::make_unique<Hotspot>();
    x->SetName("x");
    auto y = std::make_unique<Hotspot>();
    y->SetName("y");
    group->InsertAt(std::move(x), &doc, 0, 0);
    GraphicObject* yy = group->InsertAt(std::move(y), &doc, 0, 1);
    group->SetName("g");
    auto* g = static_cast<Group*>(
        doc.CurrentLayer().InsertAt(std::move(group), &doc, 0, 1)); // a g b
    doc.AddToSelection(yy);
    doc.Arrange(-111);
    EXPECT_EQ(Order(), "agb");
    EXPECT_EQ(g->ChildAt(0), yy);
}

TEST_F(ArrangeTest, GroupingMovesTheSelectionIntoANewGroupOnTop) {
    Build("abcd", "db");
    const std::uint32_t idB = doc.FindByName("b", true)->GetId();
    Group* group = doc.GroupSelection();
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(Order(), "ac");  // the group itself has no name
    EXPECT_EQ(doc.CurrentLayer().ChildAt(2), group);
    ASSERT_EQ(group->ChildCount(), 2u);
    EXPECT_EQ(group->ChildAt(0)->GetName(), "d"); // selection order
    EXPECT_EQ(group->ChildAt(1)->GetId(), idB);   // ids are kept
    EXPECT_EQ(group->ChildAt(1)->GetParent(), group);
    EXPECT_EQ(doc.Selection(), std::vector<GraphicObject*>{group});
    EXPECT_TRUE(group->ChildAt(0)->IsSelected());

    doc.ClearSelection();
    EXPECT_EQ(doc.GroupSelection(), nullptr); // nothing selected: nothing happens
    EXPECT_EQ(Order(), "ac");
}

TEST_F(ArrangeTest, UngroupingAppendsTheChildrenSelected) {
    Build("abcd", "bc");
    doc.GroupSelection();
    doc.CurrentLayer().MoveChild(2, 0); // the group to the back: g a d
    ASSERT_TRUE(doc.UngroupSelection());
    EXPECT_EQ(Order(), "adbc");
    ASSERT_EQ(doc.Selection().size(), 2u);
    EXPECT_EQ(doc.Selection()[0]->GetName(), "b");
    EXPECT_TRUE(doc.Selection()[1]->IsSelected());

    EXPECT_FALSE(doc.UngroupSelection()); // two objects selected
    doc.ClearSelection();
    doc.AddToSelection(doc.FindByName("a", true));
    EXPECT_FALSE(doc.UngroupSelection()); // not a group
}

} // namespace
} // namespace rhomba
