#include "model/PathFigures.h"

#include "model/PathObject.h"

namespace rhomba {

bool StartsFigure(const PathObject& path, std::size_t index) {
    return index == 0 || node::IsMoveTo(path.TypeAt(index));
}

std::size_t CountSelectedNodes(const PathObject& path) {
    std::size_t count = 0;
    for (NodeType t : path.Types()) count += node::IsSelected(t) ? 1 : 0;
    return count;
}

long NextSelectedNode(const PathObject& path, std::size_t from) {
    for (std::size_t i = from; i < path.NodeCount(); ++i) {
        if (node::IsSelected(path.TypeAt(i))) return static_cast<long>(i);
    }
    return -1;
}

FigureRange FigureOf(const PathObject& path, std::size_t index) {
    FigureRange range{index, index};
    while (!StartsFigure(path, range.first)) --range.first;
    while (range.last + 1 < path.NodeCount() && !StartsFigure(path, range.last + 1)) ++range.last;
    return range;
}

bool IsOpenEndNode(const PathObject& path, std::size_t index) {
    if (index >= path.NodeCount()) return false;
    const FigureRange figure = FigureOf(path, index);
    if (figure.last != figure.first && (path.TypeAt(figure.last) & node::kCloseFigure) != 0) return false;
    return index == figure.first || index == figure.last;
}

std::size_t CountFigures(const PathObject& path) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < path.NodeCount(); ++i) count += StartsFigure(path, i) ? 1 : 0;
    return count;
}
} // namespace rhomba
