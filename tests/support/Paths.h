#pragma once

#include "model/Document.h"
#include "model/PathObject.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

namespace rhomba::test {

// A path of the given nodes.
inline std::unique_ptr<PathObject> NodePath(std::initializer_list<std::pair<Point2, int>> nodes) {
    auto path = std::make_unique<PathObject>();
    for (const auto& [p, t] : nodes) path->AddNode(p, static_cast<NodeType>(t));
    return path;
}

// A move and lines through the points; the last one closes the figure when asked.
inline std::unique_ptr<PathObject> Polyline(const std::vector<Point2>& points, bool closed = false) {
    auto path = std::make_unique<PathObject>();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const int close = closed && i + 1 == points.size() ? node::kCloseFigure : 0;
        path->AddNode(points[i], static_cast<NodeType>((i == 0 ? node::kMoveTo : node::kLineTo) | close));
    }
    return path;
}

// An axis-aligned square with its lower left corner at (x, y).
inline std::unique_ptr<PathObject> Square(double x, double y, double side, bool closed = true) {
    return Polyline({{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}}, closed);
}

// Adds the object to the current layer (selected alone) and hands back its typed pointer.
template <typename T>
T* Add(Document& document, std::unique_ptr<T> object) {
    return static_cast<T*>(document.AddObject(std::move(object)));
}

inline void ExpectNear(Point2 actual, Point2 expected, double tolerance = 1e-9) {
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
}

inline void ExpectPoints(const PathObject& path, const std::vector<Point2>& expected, double tolerance) {
    ASSERT_EQ(path.NodeCount(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(path.PointAt(i).x, expected[i].x, tolerance) << "point " << i;
        EXPECT_NEAR(path.PointAt(i).y, expected[i].y, tolerance) << "point " << i;
    }
}

} // namespace rhomba::test
