#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace rhomba::test {

// A folder of this test run's own, so that runs from several checkouts at once never share a
// file; removed when the run ends.
inline const std::filesystem::path& TestFolder() {
    struct Folder {
        std::filesystem::path path;
        Folder()
            : path(std::filesystem::path(testing::TempDir()) /
                   ("rhomba-" + std::to_string(std::random_device{}()))) {
            std::filesystem::create_directories(path);
        }
        ~Folder() {
            std::error_code ignored;
            std::filesystem::remove_all(path, ignored);
        }
    };
    static const Folder folder;
    return folder.path;
}

// A file of its own in the test temp folder, removed afterwards.
struct TempFile {
    std::string path;
    explicit TempFile(const std::string& name, const std::string& content = {}, bool create = true)
        : path((TestFolder() / name).string()) {
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
    return (TestFolder() / "gibt-es-nicht" / name).string();
}

} // namespace rhomba::test
