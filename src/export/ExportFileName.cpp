#include "export/ExportFileName.h"

#include <cctype>

namespace rhomba {

namespace {

bool EqualsNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(a[i])) !=
            std::tolower(static_cast<unsigned char>(b[i]))) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string ProposeExportFileName(const std::string& documentFileName, std::string_view extension) {
    if (documentFileName.empty()) return "Grafik." + std::string(extension);
    std::string name = documentFileName;
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos) return name;
    const std::string_view own = std::string_view(name).substr(dot);
    if (EqualsNoCase(own, ".rhomba") || EqualsNoCase(own, ".iso") || EqualsNoCase(own, ".pad")) {
        name.resize(dot + 1);
        name += extension;
    }
    return name;
}

std::string CompleteExportFileName(const std::string& typedName, std::string_view extension) {
    const std::size_t slash = typedName.find_last_of("\\/");
    const std::size_t start = slash == std::string::npos ? 0 : slash + 1;
    if (typedName.find('.', start) != std::string::npos) return typedName;
    return typedName + "." + std::string(extension);
}

} // namespace rhomba
