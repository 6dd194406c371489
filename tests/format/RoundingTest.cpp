#include "export/SvgWriter.h"
#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "format/Rounding.h"
#include "geometry/Length.h"
#include "geometry/NumberText.h"
#include "model/Document.h"
#include "render/DrawContext.h"
#include "render/RecordingDevice.h"
#include "shapes/SineCurve.h"
#include "ui/PropertyCommands.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace rhomba {
namespace {

// The plain route the writers' shortcut must match: the documented RoundToDecimals, then
// printf's "%g", except that no output holds "-0", "inf" or "nan".
std::string PlainRoute(double value, int decimals) {
    const double f = std::pow(10.0, decimals);
    double rounded = value >= 0 ? std::floor(value * f + 0.5) / f : std::ceil(value * f - 0.5) / f;
    if (!(std::fabs(value) < 4e9)) rounded = value; // no decimals left to round
    char text[64];
    std::snprintf(text, sizeof text, "%g", rounded);
    const std::string plain = text;
    return plain == "-0" || !std::isfinite(rounded) ? "0" : plain;
}

// Written by the shortcut, the text is the plain route's, and it reads back to a value that
// writes the same text again.
TEST(Rounding, WritesWhatThePlainRouteWritesAndReadsBackToItself) {
    const double cases[] = {0,   -0.0,     -0.00001, -0.00004, 0.00005, 999999.5, 99999.95,
                            1e6, 1234567,  -842.0001, 1e-7,    4.5e9,   1e300,    -1e300,
                            NAN, INFINITY, -INFINITY, 12.5,    -2.5,    2.834653369727658};
    const int fixed = 7 * static_cast<int>(std::size(cases));
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> exponent(-8, 10);
    for (int i = 0; i < 400000; ++i) {
        const int decimals = i % 7;
        double value = i < fixed ? cases[i / 7] : std::pow(10.0, exponent(random));
        // Every third value sits on a decimal grid, where the ties live; half are negative.
        if (i % 3 == 0 && i >= fixed) value = std::round(value * 1e4) / 1e4 + 5e-5;
        if (i % 2) value = -value;
        std::string text;
        AppendRounded(text, value, decimals);
        ASSERT_EQ(text, PlainRoute(value, decimals)) << value << " at " << decimals;
        std::size_t end = 0;
        std::string again;
        AppendRounded(again, ReadLeadingNumber(text, end), decimals);
        ASSERT_EQ(again, text) << value << " at " << decimals;
    }
}

// The reader's shortcut for plain decimals must give the very double strtod gives.
TEST(Rounding, ReaderReadsCoordinatesAsStrtodReadsThem) {
    std::mt19937_64 random(11);
    std::uniform_int_distribution<int> length(1, 18), point(0, 19), digit(0, 9), sign(0, 3);
    for (int i = 0; i < 20000; ++i) {
        std::string number = sign(random) == 0 ? "-" : "";
        const int digits = length(random), dot = point(random);
        for (int d = 0; d < digits; ++d) {
            number += std::string(d == dot ? "." : "") + static_cast<char>('0' + digit(random));
        }
        Document doc;
        ParseNative(doc, "M\t" + number + "\t" + number + "e0\nL 0 0\nS", false);
        const Point2 p = static_cast<PathObject*>(doc.CurrentLayer().ChildAt(0))->PointAt(0);
        const double expected = std::strtod(number.c_str(), nullptr);
        ASSERT_TRUE(p.x == expected && p.y == expected) << number; // shortcut, general parser
    }
}

// One rule for numbers beyond a double: typed or read, they count as 0; computed, they make a
// path that draws nothing, measures nothing and is left out of SVG and EMF.
TEST(Rounding, NumbersBeyondADoubleAreZeroOrLeaveNoTrace) {
    EXPECT_EQ(ParseLength("1e308 km"), 0);
    Document doc;
    auto square = std::make_unique<PathObject>();
    square->AddNode({0, 0}, node::kMoveTo);
    square->AddNode({10, 10}, node::kLineTo);
    doc.AddObject(std::move(square));
    ApplyCommand(doc, "SetPenWidth 1e400", false, nullptr);
    EXPECT_EQ(doc.Selection()[0]->GetPenWidth(), 0);
    auto* wave = doc.AddObject(BuildSineCurve({1e308, 0, 360, false, false}));

    Rect2 box;
    ASSERT_TRUE(doc.GetBounds(box, false));
    EXPECT_EQ(box, (Rect2{0, 10, 10, 0}));
    const std::string svg = BuildSvgDocument(doc);
    EXPECT_EQ(svg.find("<path"), svg.rfind("<path"));
    const std::string native = SaveNativeText(doc);
    for (const std::string& out : {svg, native}) {
        EXPECT_EQ(out.find("inf"), std::string::npos) << out;
        EXPECT_EQ(out.find("nan"), std::string::npos) << out;
    }
    RecordingDevice device;
    wave->DrawEdit(device, DrawContext{}, 0);
    wave->Render(device, Matrix2D{});
    EXPECT_EQ(device.Calls(), std::vector<std::string>{});
}

} // namespace
} // namespace rhomba
