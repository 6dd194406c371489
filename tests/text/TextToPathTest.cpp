#include "text/TextToPath.h"

#include "model/Document.h"
#include "model/TextObject.h"
#include "support/BoxGlyphs.h"

#include <gtest/gtest.h>

#include <string>

namespace rhomba {
namespace {

class TextToPathTest : public test::BoxGlyphTest {
protected:
    TextObject* AddText(const std::string& content) {
        auto text = std::make_unique<TextObject>();
        text->SetText(content);
        return static_cast<TextObject*>(document.AddObject(std::move(text)));
    }
    PathObject* AddPath() {
        auto path = std::make_unique<PathObject>();
        path->AddNode({0, 0}, node::kMoveTo);
        path->AddNode({1, 1}, node::kLineTo);
        return static_cast<PathObject*>(document.AddObject(std::move(path)));
    }

    Document document;
};

TEST_F(TextToPathTest, PathTakesTheTextsPlaceAndStyle) {
    PathObject* below = AddPath();
    TextObject* text = AddText("AA");
    PathObject* above = AddPath();
    text->SetName("label");
    text->SetStroke(true);
    text->SetStrokeColor(0x123456);
    text->SetFillColor(0x00FF00);
    text->SetPenWidth(0.7);
    text->SetDashDot({3, 2, 0, 0, 0, 0, 0, 0});
    text->SetTextPosition(10, 20);
    text->SetSelected(true); // an outline node selected by the text stays unselected on the path
    document.ClearSelection();
    document.AddToSelection(text);
    text->RefreshOutline();
    const std::vector<Point2> outline = text->Outline().Points();

    EXPECT_EQ(ConvertSelectedTextsToPaths(document), 1);

    Layer& layer = document.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 3u);
    EXPECT_EQ(layer.ChildAt(0), below);
    EXPECT_EQ(layer.ChildAt(2), above);
    GraphicObject* made = layer.ChildAt(1);
    ASSERT_EQ(made->GetKind(), ObjectKind::Path);
    const auto& path = static_cast<const PathObject&>(*made);
    EXPECT_EQ(path.Points(), outline);
    EXPECT_EQ(path.NodeCount(), 8u);
    EXPECT_EQ(path.TypeAt(0), node::kMoveTo);
    EXPECT_EQ(path.GetName(), "label");
    EXPECT_TRUE(path.HasStroke());
    EXPECT_EQ(path.GetStrokeColor(), 0x123456u);
    EXPECT_EQ(path.GetFillColor(), 0x00FF00u);
    EXPECT_TRUE(path.HasFill());
    EXPECT_DOUBLE_EQ(path.GetPenWidth(), 0.7);
    EXPECT_EQ(path.GetDashCount(), 2);
    EXPECT_NE(path.GetId(), 0u);
    EXPECT_EQ(path.GetParent(), &layer);
    ASSERT_EQ(document.Selection().size(), 1u);
    EXPECT_EQ(document.Selection()[0], made);
    EXPECT_TRUE(made->IsSelected());
}

TEST_F(TextToPathTest, SeveralTextsInSelectionOrderOthersLeftAlone) {
    auto group = std::make_unique<Group>();
    Group* inner = static_cast<Group*>(document.AddObject(std::move(group)));
    auto nested = std::make_unique<TextObject>();
    nested->SetText("A");
    inner->InsertAt(std::move(nested), &document, 0, 0);
    TextObject* nestedText = static_cast<TextObject*>(inner->ChildAt(0));
    TextObject* first = AddText("A");
    PathObject* path = AddPath();
    TextObject* blank = AddText("  ");

    document.ClearSelection();
    document.AddToSelection(first);
    document.AddToSelection(path);
    document.AddToSelection(nestedText);
    document.AddToSelection(blank);
    EXPECT_EQ(ConvertSelectedTextsToPaths(document), 2);

    const auto& selection = document.Selection();
    ASSERT_EQ(selection.size(), 4u);
    EXPECT_EQ(selection[0]->GetKind(), ObjectKind::Path);
    EXPECT_EQ(selection[0]->GetParent(), &document.CurrentLayer());
    EXPECT_EQ(selection[1], path);
    EXPECT_EQ(selection[2], inner->ChildAt(0));
    EXPECT_EQ(inner->ChildAt(0)->GetKind(), ObjectKind::Path);
    EXPECT_EQ(selection[3], blank); // nothing to draw: stays a text
    EXPECT_EQ(document.CurrentLayer().IndexOf(selection[0]), 1);
}

TEST_F(TextToPathTest, WithoutGlyphsTheTextStays) {
    InstallGlyphSource(nullptr);
    TextObject* text = AddText("A");
    EXPECT_EQ(ConvertSelectedTextsToPaths(document), 0);
    EXPECT_EQ(document.CurrentLayer().ChildAt(0), text);
    EXPECT_EQ(document.Selection().size(), 1u);
}

} // namespace
} // namespace rhomba
