#pragma once

#include <string>
#include <string_view>

namespace rhomba {

// The name an export proposes, extension given without its dot ("svg", "emf"): the document's
// file name with ".rhomba", ".iso" or ".pad" turned into that extension (any other extension
// stays), "Grafik.<extension>" when the document has no name.
std::string ProposeExportFileName(const std::string& documentFileName, std::string_view extension);
// A typed name without an extension after its last path separator gets ".<extension>".
std::string CompleteExportFileName(const std::string& typedName, std::string_view extension);

} // namespace rhomba
