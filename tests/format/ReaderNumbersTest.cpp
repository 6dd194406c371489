#include "format/NativeReader.h"
#include "model/Document.h"
#include "model/PathObject.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace rhomba {
namespace {

// The reader's shortcut for plain decimals must give the very double strtod gives.
TEST(ReaderNumbers, CoordinatesReadAsStrtodReadsThem) {
    std::mt19937_64 random(11);
    std::uniform_int_distribution<int> length(1, 18), point(0, 19), digit(0, 9), sign(0, 3);
    std::string text = "Rhomba Version 1.0\r\n";
    std::vector<std::string> numbers;
    for (int i = 0; i < 20000; ++i) {
        std::string number = sign(random) == 0 ? "-" : "";
        const int digits = length(random);
        const int dot = point(random);
        for (int d = 0; d < digits; ++d) {
            if (d == dot) number += '.';
            number += static_cast<char>('0' + digit(random));
        }
        numbers.push_back(number);
        text += "M\t" + number + "\t" + number + "e0\r\nL\t0\t0\r\nS\r\n";
    }
    Document document;
    ParseNative(document, text, false);
    Layer& layer = document.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const Point2 p = static_cast<PathObject*>(layer.ChildAt(i))->PointAt(0);
        const double expected = std::strtod(numbers[i].c_str(), nullptr);
        ASSERT_EQ(p.x, expected) << numbers[i];
        ASSERT_EQ(p.y, expected) << numbers[i] << "e0"; // the general parser's answer
    }
}

} // namespace
} // namespace rhomba
