#pragma once

#include <cstddef>

namespace rhomba {

class PathObject;

// "Automatisch reduzieren": refits the runs of selected nodes; returns the number of nodes saved.
std::size_t ReduceSelectedNodes(PathObject& path);

} // namespace rhomba
