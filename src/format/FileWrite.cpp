#include "format/FileWrite.h"

#include "model/Reporter.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <new>
#include <random>

#include <fcntl.h>
#include <sys/stat.h>

#if defined(_WIN32)
#include <io.h>

// Declared here rather than taken from <windows.h>, which only the Win32 shell includes.
extern "C" __declspec(dllimport) int __stdcall MoveFileExA(const char* existing,
                                                           const char* replacement,
                                                           unsigned long flags);
#else
#include <csignal>
#include <unistd.h>
#endif

namespace rhomba {

namespace {

#if defined(_WIN32)
constexpr int kCreateNew = _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY;
constexpr int kCreateOrTruncate = _O_WRONLY | _O_CREAT | _O_TRUNC | _O_BINARY;
constexpr int kWriteOver = _O_WRONLY | _O_BINARY;
int Open(const std::string& path, int flags) { return ::_open(path.c_str(), flags, _S_IREAD | _S_IWRITE); }
long Write(int file, const char* data, std::size_t size) {
    return ::_write(file, data, static_cast<unsigned>(size));
}
int Close(int file) { return ::_close(file); }
int Sync(int file) { return ::_commit(file); }
#else
constexpr int kCreateNew = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
constexpr int kCreateOrTruncate = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
constexpr int kWriteOver = O_WRONLY | O_CLOEXEC;
int Open(const std::string& path, int flags) { return ::open(path.c_str(), flags, 0666); }
long Write(int file, const char* data, std::size_t size) { return ::write(file, data, size); }
int Close(int file) { return ::close(file); }
int Sync(int file) { return ::fsync(file); }
#endif

// Past a file-size limit the system would end the program with a signal; while writing, the
// limit shows as a failed write instead.
class FileSizeSignalIgnored {
#if defined(_WIN32)
public:
    FileSizeSignalIgnored() {} // nothing to ignore there; user-provided so it counts as used
};
#else
public:
    FileSizeSignalIgnored() { old_ = std::signal(SIGXFSZ, SIG_IGN); }
    ~FileSizeSignalIgnored() { std::signal(SIGXFSZ, old_); }

private:
    void (*old_)(int);
};
#endif

void InformWriteError(Reporter& reporter, std::string_view path) {
    reporter.Inform("Beim Schreiben von " + std::string(path) + " ist ein Fehler aufgetreten.");
}

// The file a chain of symbolic links ends at (path itself when it is none); it need not exist.
std::string FollowLinks(const std::string& path) {
    namespace fs = std::filesystem;
    fs::path at(path);
    std::error_code error;
    for (int hops = 0; hops < 40 && fs::is_symlink(fs::symlink_status(at, error)); ++hops) {
        const fs::path link = fs::read_symlink(at, error);
        if (error) break;
        at = link.is_absolute() ? link : at.parent_path() / link;
    }
    return at.string();
}

bool WriteAll(int file, std::string_view text) {
    while (!text.empty()) {
        const long written = Write(file, text.data(), text.size());
        if (written <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// A new file beside target under a name nobody uses; -1 when the folder takes none.
int CreateTemporary(const std::string& target, std::string& name) {
    static std::mt19937 random(static_cast<unsigned>(
        std::chrono::steady_clock::now().time_since_epoch().count()));
    for (int attempt = 0; attempt < 100; ++attempt) {
        char suffix[16];
        std::snprintf(suffix, sizeof suffix, ".%08x~", static_cast<unsigned>(random()));
        name = target + suffix;
        const int file = Open(name, kCreateNew);
        if (file >= 0 || errno != EEXIST) return file;
    }
    return -1;
}

// The replaced file's permissions, which the temporary file takes over.
void CopyPermissions([[maybe_unused]] const std::string& from, [[maybe_unused]] int to) {
#if !defined(_WIN32)
    struct stat status {};
    if (::stat(from.c_str(), &status) == 0) ::fchmod(to, status.st_mode & 07777);
#endif
}

// Puts from in the place of to in one step. Names are Windows-1252 bytes, which the ANSI call
// takes as they are.
bool Replace(const std::string& from, const std::string& to) {
#if defined(_WIN32)
    constexpr unsigned long kReplaceExisting = 0x1;
    constexpr unsigned long kWriteThrough = 0x8;
    return MoveFileExA(from.c_str(), to.c_str(), kReplaceExisting | kWriteThrough) != 0;
#else
    return std::rename(from.c_str(), to.c_str()) == 0;
#endif
}

bool WriteDirectly(const std::string& path, const std::string& target, std::string_view text,
                   Reporter& reporter) {
    int file = Open(target, kCreateOrTruncate);
    if (file < 0) file = Open(target, kWriteOver);
    if (file < 0) {
        InformCannotWrite(reporter, path);
        return false;
    }
    const bool written = text.empty() || Write(file, text.data(), text.size()) ==
                                             static_cast<long>(text.size());
    if (Close(file) != 0 || !written) {
        InformWriteError(reporter, path);
        return false;
    }
    return true;
}

// Note: a temporary file is removed before anything is allocated for a message, so that no
// failure can leave it behind.
bool WriteFile(const std::string& path, std::string_view text, Reporter& reporter) {
    const FileSizeSignalIgnored quiet;
    const std::string target = FollowLinks(path);
    // A device or a pipe is written to as it is; only a file can be replaced by another.
    std::error_code error;
    const auto type = std::filesystem::status(target, error).type();
    const bool replaceable =
        type == std::filesystem::file_type::regular || type == std::filesystem::file_type::not_found;
    std::string temporary;
    const int file = replaceable ? CreateTemporary(target, temporary) : -1;
    if (file < 0) return WriteDirectly(path, target, text, reporter);

    CopyPermissions(target, file);
    // The bytes are on the disk before the rename publishes them, so that a crash cannot leave
    // the name pointing at an empty file.
    const bool written = WriteAll(file, text) && Sync(file) == 0;
    if (Close(file) != 0 || !written) {
        std::remove(temporary.c_str());
        InformWriteError(reporter, path);
        return false;
    }
    if (!Replace(temporary, target)) {
        std::remove(temporary.c_str());
        InformCannotWrite(reporter, path);
        return false;
    }
    return true;
}

} // namespace

bool WriteFileSafely(const std::string& path, std::string_view text, Reporter& reporter) {
    try {
        return WriteFile(path, text, reporter);
    } catch (const std::bad_alloc&) {
        InformOutOfMemory(reporter, text.size());
        return false;
    }
}

} // namespace rhomba
