#pragma once

#include "model/PathObject.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace rhomba {

// The coordinates page's text of a path: one node per line, "M", "L" or "B" (move, line, Bezier
// point) and x and y in millimetres with a decimal comma, " Z" after a node that closes its
// figure; lines end in CR LF. Example: "M 0 0\r\nL 35,278 0 Z\r\n". Only the nodes below limit
// are listed, even when that cuts a curve short.
std::string FormatPointList(const PathObject& path, std::size_t limit = SIZE_MAX);

// Reads such a text back. Commas count as decimal points; blanks, tabs and semicolons separate
// words; a line without a kind letter is a move when it starts the list and a line otherwise.
// Fails, leaving out untouched, on any word that is not understood, on Bezier points that do not
// come in threes after a node, and on fewer than two nodes.
bool ParsePointList(std::string_view text, NodeRun& out);

// Replaces the path's nodes by the parsed list; false and the path untouched when it does not
// parse.
bool ApplyPointList(PathObject& path, std::string_view text);

} // namespace rhomba
