#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#if !defined(_WIN32)
#include <unistd.h>
#endif

namespace rhomba {

namespace {

bool WriteAll(std::FILE* file, const std::string& text) {
    return std::fwrite(text.data(), 1, text.size(), file) == text.size() && std::fflush(file) == 0;
}

// Makes the bytes durable before the rename publishes them, so that a crash cannot leave the
// new name pointing at an empty file.
void Sync(std::FILE* file) {
#if !defined(_WIN32)
    ::fsync(::fileno(file));
#else
    (void)file;
#endif
}

} // namespace

bool SaveNativeFile(Document& document, const std::string& path) {
    const std::string text = SaveNativeText(document);

    const std::string temporary = path + ".rhomba-tmp";
    if (std::FILE* file = std::fopen(temporary.c_str(), "wb")) {
        const bool written = WriteAll(file, text);
        if (written) Sync(file);
        const bool closed = std::fclose(file) == 0;
        std::error_code error;
        if (!written || !closed) {
            // The old drawing stays untouched when the disk fills up.
            std::filesystem::remove(temporary, error);
            return false;
        }
        // Note: rename replaces an existing target in one step on POSIX, and on Windows the
        // standard library does it with MoveFileExW and MOVEFILE_REPLACE_EXISTING.
        std::filesystem::rename(temporary, path, error);
        if (!error) {
            document.SetFileName(path);
            return true;
        }
        std::filesystem::remove(temporary, error);
    }

    // No temporary file beside the target (a folder without write access, say): write the
    // target itself, and failing that, over an existing one from its start.
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) file = std::fopen(path.c_str(), "r+b");
    if (file == nullptr) return false;
    const bool written = WriteAll(file, text);
    const bool closed = std::fclose(file) == 0;
    if (!written || !closed) return false;
    document.SetFileName(path);
    return true;
}

} // namespace rhomba
