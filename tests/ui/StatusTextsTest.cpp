#include "ui/StatusTexts.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

// Two decimals rounded half away from zero, decimal commas, millimetres from points.
TEST(StatusTexts, CursorFieldsInGermanNumberStyle) {
    EXPECT_EQ(CursorPointsText(12.345, -0.005), "pt: 12,35  -0,01");
    EXPECT_EQ(CursorPointsText(0.004, 1e6), "pt: 0,00  1000000,00");
    EXPECT_EQ(CursorMillimetresText(28.34653369727658, -2.834653369727658), "mm: 10,00  -1,00");
}

} // namespace
} // namespace rhomba
