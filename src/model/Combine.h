#pragma once

namespace rhomba {

class Document;
class PathObject;

// "Kombinieren": the first selected path receives the figures of the other selected paths, in
// selection order; those are deleted from the drawing and the selection. Returns the combined
// path, or null when fewer than two paths are selected (then nothing changes).
// Note: objects of other kinds in the selection are left alone.
PathObject* CombineSelection(Document& document);

// "Kombination aufloesen": the one selected path with several figures becomes one path per
// figure with its style; they take its place in the drawing order and become the selection.
// Returns the number of paths made, 0 when the selection does not qualify.
int SplitCombination(Document& document);

} // namespace rhomba
