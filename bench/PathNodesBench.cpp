// Speed of the node operations on large paths. Prints one line per operation with its time.
#include "model/PathGeometry.h"
#include "model/PathNodes.h"
#include "model/PathReduction.h"
#include "model/PathObject.h"
#include "model/PathSegments.h"

#include <chrono>
#include <cmath>
#include <cstdio>

using namespace rhomba;

namespace {

constexpr std::size_t kNodes = 100000;

// A zigzag polyline in figures of 1000 nodes, every node selected where selectEvery divides it.
void Polyline(PathObject& path, std::size_t selectEvery) {
    path.ClearNodes();
    path.ReserveNodes(kNodes);
    for (std::size_t i = 0; i < kNodes; ++i) {
        NodeType t = i % 1000 == 0 ? node::kMoveTo : node::kLineTo;
        if (selectEvery != 0 && i % selectEvery == 0) t |= node::kSelected;
        path.AddNode({static_cast<double>(i % 1000), static_cast<double>(i / 1000 * 10 + i % 2)},
                     t);
    }
}

// Smooth curves, sampled every 0.7 points along x, all selected.
void SmoothPolyline(PathObject& path) {
    path.ClearNodes();
    path.ReserveNodes(kNodes);
    for (std::size_t i = 0; i < kNodes; ++i) {
        const double x = static_cast<double>(i) * 0.7;
        const double y = 80 * std::sin(x / 90) + 25 * std::cos(x / 23);
        path.AddNode({x, y}, static_cast<NodeType>((i == 0 ? node::kMoveTo : node::kLineTo) |
                                                   node::kSelected));
    }
}

template <typename F> double Seconds(F f) {
    const auto start = std::chrono::steady_clock::now();
    f();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main() {
    PathObject path;

    Polyline(path, 10);
    double t = Seconds([&] { SplitAtSelectedNodes(path); });
    std::printf("Trennen, 100000 nodes, every tenth selected: %.4f s (%zu nodes after)\n", t,
                path.NodeCount());

    Polyline(path, 0);
    t = Seconds([&] { JoinWithLine(path, 999, kNodes - 1); });
    std::printf("Verbinden mit Linie, 100000 nodes, end to end: %.4f s\n", t);
    Polyline(path, 0);
    t = Seconds([&] { JoinAtIntersection(path, 0, kNodes - 1000); });
    std::printf("Verbinden an Schnittpunkt, 100000 nodes, start to start: %.4f s\n", t);

    Polyline(path, 2);
    t = Seconds([&] { DeleteSelectedNodes(path); });
    std::printf("Loeschen of half of 100000 nodes: %.4f s (%zu nodes after)\n", t,
                path.NodeCount());

    Polyline(path, 0);
    t = Seconds([&] { AddNodeAt(path, {500.5, 500.5}, 10); });
    std::printf("Hinzufuegen, 100000 nodes: %.4f s\n", t);

    SmoothPolyline(path);
    PathObject original;
    original.AppendFrom(path);
    t = Seconds([&] { ReduceSelectedNodes(path); });
    double worst = 0;
    for (std::size_t i = 0; i < original.NodeCount(); i += 7) {
        worst = std::max(worst, DistanceToPath(path, original.PointAt(i)));
    }
    std::printf("Automatisch reduzieren, 100000-node smooth polyline: %.4f s (%zu nodes after, "
                "largest deviation %.4f pt at sampled nodes)\n",
                t, path.NodeCount(), worst);

    PathObject circle;
    for (int k = 0; k < 1000; ++k) {
        const double a = 6.283185307179586 * k / 1000;
        circle.AddNode({100 * std::cos(a), 100 * std::sin(a)},
                       static_cast<NodeType>((k == 0     ? node::kMoveTo
                                              : k == 999 ? node::kLineTo | node::kCloseFigure
                                                         : node::kLineTo) |
                                             node::kSelected));
    }
    PathObject circleBefore;
    circleBefore.AppendFrom(circle);
    t = Seconds([&] { ReduceSelectedNodes(circle); });
    worst = 0;
    SegmentCursor cursor(circleBefore.Points(), circleBefore.Types());
    PathSegment s;
    while (cursor.Next(s)) {
        if (s.kind == SegmentKind::Move) continue;
        for (int k = 0; k <= 16; ++k) {
            worst =
                std::max(worst, DistanceToPath(circle, s.start + (s.End() - s.start) * (k / 16.0)));
        }
    }
    std::printf(
        "Automatisch reduzieren, circle r=100 pt of 1000 line nodes: %.4f s, %zu nodes after, "
        "largest deviation %.4f pt\n",
        t, circle.NodeCount(), worst);
    return 0;
}
