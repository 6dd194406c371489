#pragma once

#include <cstddef>

namespace rhomba {

class PathObject;

// Queries on a path's figures and selected nodes that the node menu and the tools read.

// True for the first node and every move.
bool StartsFigure(const PathObject& path, std::size_t index);
// Nodes whose selection bit is set, control points included.
std::size_t CountSelectedNodes(const PathObject& path);
// The first selected node at or after from, or -1.
long NextSelectedNode(const PathObject& path, std::size_t from);
// The first and last node of the figure that holds index.
struct FigureRange {
    std::size_t first = 0;
    std::size_t last = 0;
};
FigureRange FigureOf(const PathObject& path, std::size_t index);
// True for the first or last node of an open figure.
bool IsOpenEndNode(const PathObject& path, std::size_t index);
std::size_t CountFigures(const PathObject& path);

} // namespace rhomba
