#include "model/Document.h"
#include "model/Hotspot.h"

#include <gtest/gtest.h>

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

TEST_F(ArrangeTest, OneBackSwapsWithAnUnselectedPredecessor) {
    Build("abcde", "d");
    doc.Arrange(-1);
    EXPECT_EQ(Order(), "abdce");
    doc.Arrange(-1);
    doc.Arrange(-1);
    doc.Arrange(-1); // already first: nothing
    EXPECT_EQ(Order(), "dabce");
}

TEST_F(ArrangeTest, OneBackMovesABlockWithoutSwappingItsMembers) {
    Build("abcde", "cd");
    doc.Arrange(-1);
    EXPECT_EQ(Order(), "acdbe");
}

TEST_F(ArrangeTest, OneForwardWalksTheSelectionFromItsLastElement) {
    Build("abcde", "bc");
    doc.Arrange(1);
    EXPECT_EQ(Order(), "adbce");
    Build("", "");
}

TEST_F(ArrangeTest, OneForwardOnTheTopObjectDoesNothing) {
    Build("abc", "c");
    doc.Arrange(1);
    EXPECT_EQ(Order(), "abc");
}

TEST_F(ArrangeTest, AdjacentSelectedObjectsNeverPassEachOther) {
    Build("abc", "ab");
    doc.Arrange(1);
    EXPECT_EQ(Order(), "cab");
    doc.Arrange(1);
    EXPECT_EQ(Order(), "cab");
}

TEST_F(ArrangeTest, ToTheBackKeepsTheBlockOrder) {
    Build("abcdef", "ce");
    doc.Arrange(-111);
    EXPECT_EQ(Order(), "ceabdf");
    doc.Arrange(-111); // already at the back
    EXPECT_EQ(Order(), "ceabdf");
}

TEST_F(ArrangeTest, ToTheFrontKeepsTheBlockOrder) {
    Build("abcdef", "bd");
    doc.Arrange(111);
    EXPECT_EQ(Order(), "acefbd");
    doc.Arrange(111);
    EXPECT_EQ(Order(), "acefbd");
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

TEST_F(ArrangeTest, UnknownStepsDoNothing) {
    Build("abc", "b");
    doc.Arrange(2);
    EXPECT_EQ(Order(), "abc");
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
}

TEST_F(ArrangeTest, UngroupingAppendsTheChildrenSelected) {
    Build("abcd", "bc");
    Group* group = doc.GroupSelection();
    doc.CurrentLayer().MoveChild(2, 0); // the group to the back: g a d
    ASSERT_TRUE(doc.UngroupSelection());
    EXPECT_EQ(Order(), "adbc");
    ASSERT_EQ(doc.Selection().size(), 2u);
    EXPECT_EQ(doc.Selection()[0]->GetName(), "b");
    EXPECT_TRUE(doc.Selection()[1]->IsSelected());
    (void)group;

    EXPECT_FALSE(doc.UngroupSelection()); // two objects selected
    doc.ClearSelection();
    doc.AddToSelection(doc.FindByName("a", true));
    EXPECT_FALSE(doc.UngroupSelection()); // not a group
}

TEST_F(ArrangeTest, GroupingNothingDoesNothing) {
    Build("ab", "");
    EXPECT_EQ(doc.GroupSelection(), nullptr);
    EXPECT_EQ(Order(), "ab");
}

} // namespace
} // namespace rhomba
