#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/TextObject.h"

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

namespace rhomba {
namespace {

TEST(TextStorage, EqualLooksAreHeldOnceAndForgottenWithTheirLastText) {
    const std::size_t before = SharedLook::HeldCount();
    {
        TextObject first, second;
        for (TextObject* text : {&first, &second}) text->SetTextFont("Storage Sans");
        EXPECT_EQ(SharedLook::HeldCount(), before + 1);
        EXPECT_EQ(&first.GetFont(), &second.GetFont());
        second.SetTextSize(-0.0); // apart from 0, which reads the same with ==
        first.SetTextSize(0.0);
        second.SetTextSize(0.0);
        EXPECT_EQ(SharedLook::HeldCount(), before + 2);
    }
    EXPECT_EQ(SharedLook::HeldCount(), before);
}

TEST(TextStorage, ShortAndLongTextsComeBackFromTheNativeFileUnchanged) {
    const std::string texts[] = {"Text 1234567", "fifteen letter!", "sixteen letters!",
                                 std::string(70'000, 'x') + "\xE4"};
    for (const std::string& text : texts) {
        Document written;
        auto owned = std::make_unique<TextObject>();
        owned->SetText(text);
        written.CurrentLayer().InsertAt(std::move(owned), &written, 0, 0);
        const std::string file = SaveNativeText(written);
        Document read;
        ASSERT_TRUE(ParseNative(read, file, false));
        const auto& back = static_cast<const TextObject&>(*read.CurrentLayer().ChildAt(0));
        EXPECT_EQ(back.GetText(), text);
        EXPECT_EQ(SaveNativeText(read), file);
    }
}

TEST(TextStorage, ASetterChangesItsOwnTextAndOutlineOnly) {
    const std::function<void(TextObject&)> setters[] = {
        [](TextObject& t) { t.SetTextFont("Courier New"); },
        [](TextObject& t) { t.SetBold(true); },
        [](TextObject& t) { t.SetTextTransform(0, 1, -1, 0); },
        [](TextObject& t) { t.SetStroke(true); },
        [](TextObject& t) { t.SetFillColor(0x00FF00); },
        [](TextObject& t) { t.SetPenWidth(3); },
        [](TextObject& t) { t.SetDashDot({4, 1, 0, 0, 0, 0, 0, 0}); },
    };
    const auto paint = [](const GraphicObject& object) {
        return std::tuple(object.HasStroke(), object.GetFillColor(), object.GetPenWidth(),
                          object.GetDashCount());
    };
    for (const auto& set : setters) {
        TextObject untouched, changed;
        changed.Outline(); // an outline built before the change takes the new paint
        set(changed);
        EXPECT_EQ(paint(changed.Outline()), paint(changed));
        EXPECT_EQ(paint(untouched), std::tuple(false, 0u, 0.25, 0));
        EXPECT_EQ(std::tuple(untouched.GetFont(), untouched.IsBold(), untouched.GetTextTransform()),
                  std::tuple(std::string("Arial"), false, Matrix2D{}));
    }
}

} // namespace
} // namespace rhomba
