#include "format/FileWrite.h"
#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/Reporter.h"

#include <algorithm>
#include <cstdio>
#include <new>

#include <sys/stat.h>

#if defined(_WIN32) && !defined(S_ISREG)
#define S_ISREG(mode) (((mode) & _S_IFMT) == _S_IFREG)
#endif

namespace rhomba {

namespace {

// The status of an open file, with a 64-bit length on both systems.
#if defined(_WIN32)
using FileStatus = struct _stat64;
int FileStatusOf(std::FILE* file, FileStatus* status) { return ::_fstat64(_fileno(file), status); }
#else
using FileStatus = struct stat;
int FileStatusOf(std::FILE* file, FileStatus* status) { return ::fstat(fileno(file), status); }
#endif

void InformCannotRead(Reporter& reporter, const std::string& path) {
    reporter.Inform("Die Datei '" + path + "' konnte nicht zum Lesen ge\xF6" "ffnet werden.");
}

} // namespace

bool ReadWholeFile(const std::string& path, std::string& bytes, Reporter& reporter) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    // A folder or a device has no length to read (a device such as /dev/zero would never end),
    // so only a plain file is read.
    FileStatus status{};
    if (file == nullptr || FileStatusOf(file, &status) != 0 || !S_ISREG(status.st_mode)) {
        if (file != nullptr) std::fclose(file);
        InformCannotRead(reporter, path);
        return false;
    }
    const auto length = static_cast<std::uint64_t>(status.st_size);
    bool room = length < std::string().max_size();
    try {
        if (room) bytes.resize(static_cast<std::size_t>(length));
    } catch (const std::bad_alloc&) {
        room = false;
    }
    if (!room) {
        std::fclose(file);
        InformOutOfMemory(reporter, static_cast<std::size_t>(length));
        return false;
    }
    // A file that shrank meanwhile gives what it still holds.
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
    std::fclose(file);
    return true;
}

bool LoadNativeFile(Document& document, const std::string& path, Reporter& reporter) {
    std::string bytes;
    try {
        if (!ReadWholeFile(path, bytes, reporter)) return false;
        if (bytes.size() < 21) {
            reporter.Inform("'" + path + "' ist keine Rhomba-Datei.");
            return false;
        }
        // The text ends at its first 0 byte, as it always has.
        const std::string_view text(bytes.data(), std::min(bytes.find('\0'), bytes.size()));
        if (!StartsWithProductWord(text)) {
            document.Reset();
            reporter.Inform("Es ist keine Rhomba-Datei.\r\n\r\nAnfang: " +
                            std::string(text.substr(0, 100)) + " ...");
            return false;
        }
        // Read beside the open drawing, which is replaced only once the new one is complete.
        Document loaded;
        loaded.Reset();
        std::string name = path;
        if (ParseNative(loaded, text, false)) {
            document.TakeDrawing(loaded);
            document.SetFileName(std::move(name));
            return true;
        }
    } catch (const std::bad_alloc&) {
    }
    InformOutOfMemory(reporter, bytes.size());
    return false;
}

bool SaveNativeFile(Document& document, const std::string& path, Reporter& reporter) {
    NativeWriter writer;
    try {
        document.SaveNative(writer, true);
    } catch (const std::bad_alloc&) {
        InformOutOfMemory(reporter, writer.Text().size());
        return false;
    }
    if (!WriteFileSafely(path, writer.Text(), reporter)) return false;
    document.SetFileName(path);
    return true;
}

} // namespace rhomba
