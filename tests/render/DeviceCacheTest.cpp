#include "support/RenderTest.h"

#include <numeric>

namespace rhomba::test {
namespace {

TEST(DashEntries, ThreeOneAtScaleTwentyAndNonDriftingSumsAtScreenScale) {
    std::uint32_t e[8] = {};
    ASSERT_EQ(BuildDashEntries({3, 1, 0, 0, 0, 0, 0, 0}, 2, 20.0, e), 2);
    EXPECT_EQ(e[0], 60u);
    EXPECT_EQ(e[1], 20u);

    // At screen scale the running sums follow the exact sums.
    const double scale = 1.763884097222222;
    ASSERT_EQ(BuildDashEntries({1, 1, 0, 0, 0, 0, 0, 0}, 2, scale, e), 2);
    EXPECT_EQ(e[0], 2u);
    EXPECT_EQ(e[0] + e[1], 4u);

    const DashDot pattern{1, 1, 1, 1, 1, 1, 1, 1};
    ASSERT_EQ(BuildDashEntries(pattern, 8, scale, e), 8);
    unsigned sum = 0;
    for (int i = 0; i < 8; ++i) {
        sum += e[i];
        EXPECT_EQ(sum, static_cast<unsigned>((i + 1) * scale + 0.5)) << i;
        EXPECT_GE(e[i], 1u);
    }
    // A tiny scale keeps every entry visible.
    ASSERT_EQ(BuildDashEntries({1, 2, 3, 4, 0, 0, 0, 0}, 4, 0.1, e), 4);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(e[i], 1u) << i;
}

class Helpers : public RenderTest {};

TEST_F(Helpers, ResetValuesForceTheNextObjects) {
    ResetDeviceCache();
    const DeviceCache& c = TheDeviceCache();
    EXPECT_EQ(c.penColor, 0xFFFFFFFFu);
    EXPECT_EQ(c.dashHigh, 0xFFFFFFFFu);
    EXPECT_EQ(c.fontFace, "Arial ");
    EXPECT_EQ(c.fontHeight, 87654321);
    SelectDevicePen(device, 0, 0, DashDot{}, 0);
    SelectDeviceFont(device, "Arial", 12, 0, false, false);
    SelectDeviceFont(device, "Arial", 12, 0, false, false);
    EXPECT_EQ(device.CountNamed("CreatePen"), 1u);
    EXPECT_EQ(device.CallsNamed("CreateFont"),
              (Calls{"CreateFont -240 0 0 0 400 0 0 0 0 0 0 2 2 'Arial' -> font2"}));
}

TEST_F(Helpers, FontFaceComparisonIsExactAndLongFacesAreCut) {
    ResetDeviceCache();
    SelectDeviceFont(device, "", 10, 0, true, true);
    SelectDeviceFont(device, "arial", 10, 0, true, true);
    const std::string longFace(40, 'x');
    SelectDeviceFont(device, longFace, 10, 0, true, true);
    const Calls fonts = device.CallsNamed("CreateFont");
    ASSERT_EQ(fonts.size(), 3u);
    EXPECT_NE(fonts[0].find("700 1 0 0 0 0 0 2 2 'Arial'"), std::string::npos);
    EXPECT_NE(fonts[1].find("'arial'"), std::string::npos);
    EXPECT_NE(fonts[2].find("'" + std::string(31, 'x') + "'"), std::string::npos);
    EXPECT_EQ(device.SelectedFont(), "font3");
    EXPECT_EQ(device.LiveObjects(), 1u);
}

TEST_F(Helpers, TextColourOnlyWhenItChangesNullPenOnlyWhenThePenCacheIsValid) {
    ResetDeviceCache();
    SetDeviceTextColor(device, 0x123456);
    SetDeviceTextColor(device, 0x123456);
    SetDeviceTextColor(device, 0);
    EXPECT_EQ(device.Calls(), (Calls{"SetTextColor 0x123456", "SetTextColor 0x000000"}));
    device.ClearCalls();
    SelectDeviceNullPen(device);
    EXPECT_TRUE(device.Calls().empty());
    SelectDevicePen(device, 0xFF, 1, DashDot{}, 0);
    SelectDeviceNullPen(device);
    SelectDeviceNullPen(device);
    EXPECT_EQ(device.CountNamed("SelectObject"), 2u);
    EXPECT_EQ(device.SelectedPen(), "NULL_PEN");
    EXPECT_EQ(device.LiveObjects(), 0u);
}

} // namespace
} // namespace rhomba::test
