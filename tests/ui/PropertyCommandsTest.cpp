#include "ui/PropertyCommands.h"

#include "model/Hotspot.h"
#include "model/TextObject.h"
#include "support/Paths.h"

namespace rhomba::test {
namespace {

// With descend, the style commands reach the selected objects inside selected groups; without,
// the group itself gets them and ignores them. A given group takes the place of the selection.
TEST(PropertyCommands, StyleCommandsReachSelectedObjectsInsideSelectedGroups) {
    Document doc;
    auto group = std::make_unique<Group>();
    GraphicObject* inner = group->InsertAt(Polyline({{0, 0}, {1, 1}}), &doc, 0, 0);
    auto* grouped = static_cast<Group*>(doc.AddObject(std::move(group)));
    GraphicObject* loose = Add(doc, Polyline({{0, 0}, {1, 1}}));
    GraphicObject* untouched = Add(doc, Polyline({{0, 0}, {1, 1}}));
    doc.ChangeSelection({grouped, loose}, SelectionChange::Replace);

    ApplyCommand(doc, "SetPenWidth 0.5", true, nullptr);
    ApplyCommand(doc, "SetStrokeColor 19aB3f\r\nSetFillColor 0000FF\nSetFill 0", true, nullptr);
    ApplyCommand(doc, "SetDashDot 3 1 300 2 -4 0 0 0", true, nullptr);
    for (GraphicObject* object : {inner, loose}) {
        EXPECT_EQ(object->GetPenWidth(), 0.5);
        EXPECT_EQ(object->GetStrokeColor(), 0x3FAB19u);
        EXPECT_EQ(object->GetFillColor(), 0xFF0000u);
        EXPECT_FALSE(object->HasFill());
        DashDot dash{};
        object->GetDashDot(dash);
        EXPECT_EQ(dash, (DashDot{3, 1, 255, 2, 0, 0, 0, 0}));
    }
    EXPECT_EQ(untouched->GetPenWidth(), PathObject::kDefaultPenWidth);
    ApplyCommand(doc, "SetPenWidth 2", false, nullptr);
    EXPECT_EQ(inner->GetPenWidth(), 0.5);
    EXPECT_EQ(loose->GetPenWidth(), 2);
    ApplyCommand(doc, "SetStroke 0", true, grouped);
    EXPECT_FALSE(inner->HasStroke());
    EXPECT_TRUE(loose->HasStroke());
}

TEST(PropertyCommands, TextCommandsAndNamesAndBadNumbers) {
    Document doc;
    auto* text = Add(doc, std::make_unique<TextObject>());
    ApplyCommand(doc, "SetText  zwei Blanks vorn", true, nullptr);
    ApplyCommand(doc, "SetTextSize 14.5\nSetTextFont Times New Roman\nSetTextStyle 3", true, nullptr);
    ApplyCommand(doc, "SetTextPosition 10 -20\nSetName a_b_c\nSetPenWidth abc", true, nullptr);
    EXPECT_EQ(text->GetText(), " zwei Blanks vorn");
    EXPECT_EQ(text->GetSize(), 14.5);
    EXPECT_EQ(text->GetFont(), "Times New Roman");
    EXPECT_TRUE(text->IsBold() && text->IsItalic());
    EXPECT_EQ(text->GetPosition().y, -20);
    EXPECT_EQ(text->GetName(), "a_b_c");
    EXPECT_EQ(text->GetPenWidth(), 0); // not a number reads as 0
    ApplyCommand(doc, "SetTextStyle 2\nUnbekannt 5\n", true, nullptr);
    EXPECT_FALSE(text->IsBold());
    EXPECT_TRUE(text->IsItalic());
}

} // namespace
} // namespace rhomba::test
