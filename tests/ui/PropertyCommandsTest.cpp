#include "ui/PropertyCommands.h"

#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
#include "model/TextObject.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

std::unique_ptr<PathObject> Line() {
    auto path = std::make_unique<PathObject>();
    path->AddNode({0, 0}, node::kMoveTo);
    path->AddNode({1, 1}, node::kLineTo);
    return path;
}

TEST(PropertyCommands, StyleCommandsReachSelectedObjectsInsideSelectedGroups) {
    Document doc;
    auto group = std::make_unique<Group>();
    GraphicObject* inner = group->InsertAt(Line(), &doc, 0, 0);
    GraphicObject* grouped = doc.AddObject(std::move(group));
    GraphicObject* loose = doc.AddObject(Line());
    GraphicObject* untouched = doc.AddObject(Line());
    doc.ClearSelection();
    doc.AddToSelection(grouped);
    doc.AddToSelection(loose);

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
    // Without descend the group itself gets the line, which a group ignores.
    ApplyCommand(doc, "SetPenWidth 2", false, nullptr);
    EXPECT_EQ(inner->GetPenWidth(), 0.5);
    EXPECT_EQ(loose->GetPenWidth(), 2);
}

TEST(PropertyCommands, GivenGroupTakesThePlaceOfTheSelection) {
    Document doc;
    auto group = std::make_unique<Group>();
    GraphicObject* inner = group->InsertAt(Line(), &doc, 0, 0);
    Group* target = static_cast<Group*>(doc.AddObject(std::move(group)));
    GraphicObject* selected = doc.AddObject(Line());
    ApplyCommand(doc, "SetStroke 0", true, target);
    EXPECT_FALSE(inner->HasStroke());
    EXPECT_TRUE(selected->HasStroke());
}

TEST(PropertyCommands, TextCommandsAndNamesAndBadNumbers) {
    Document doc;
    auto* text = static_cast<TextObject*>(doc.AddObject(std::make_unique<TextObject>()));
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
} // namespace rhomba
