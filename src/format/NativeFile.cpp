#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"

#include <cstdio>

#if defined(_WIN32)
#include <io.h>

// Declared here rather than taken from <windows.h>, which only the Win32 shell includes.
extern "C" __declspec(dllimport) int __stdcall MoveFileExA(const char* existing,
                                                           const char* replacement,
                                                           unsigned long flags);
#else
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
#if defined(_WIN32)
    ::_commit(::_fileno(file));
#else
    ::fsync(::fileno(file));
#endif
}

// Puts from in the place of to in one step. Names are Windows-1252 bytes, which the ANSI call
// takes as they are.
bool ReplaceFile(const std::string& from, const std::string& to) {
#if defined(_WIN32)
    constexpr unsigned long kReplaceExisting = 0x1;
    constexpr unsigned long kWriteThrough = 0x8;
    return MoveFileExA(from.c_str(), to.c_str(), kReplaceExisting | kWriteThrough) != 0;
#else
    return std::rename(from.c_str(), to.c_str()) == 0;
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
        if (!written || !closed) {
            // The old drawing stays untouched when the disk fills up.
            std::remove(temporary.c_str());
            return false;
        }
        if (ReplaceFile(temporary, path)) {
            document.SetFileName(path);
            return true;
        }
        std::remove(temporary.c_str());
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
