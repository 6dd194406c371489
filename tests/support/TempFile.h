#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace rhomba::test {

// A file of its own in the test temp folder, removed afterwards.
struct TempFile {
    std::string path;
    explicit TempFile(const std::string& name, const std::string& content = {}, bool create = true)
        : path((std::filesystem::path(testing::TempDir()) / name).string()) {
        if (create) std::ofstream(path, std::ios::binary) << content;
    }
    ~TempFile() { std::filesystem::remove(path); }
    std::string Read() const {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
};

// A path in a folder that does not exist.
inline std::string MissingFolderPath(const std::string& name) {
    return (std::filesystem::path(testing::TempDir()) / "gibt-es-nicht" / name).string();
}

} // namespace rhomba::test
