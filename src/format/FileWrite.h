#pragma once

#include <string>
#include <string_view>

namespace rhomba {

class Reporter;

// Makes text the whole content of the file at path without ever losing the old content: the
// bytes go to a new temporary file beside the target (a name of its own, never a user's file),
// are flushed to the disk and checked, and the temporary file is then renamed over the target.
// A symbolic link is followed: the file it points to is replaced, the link stays. A file that is
// replaced keeps its permissions.
// Note: where no temporary file can be made beside the target (a folder without write access),
// the target itself is written, created or truncated, and failing that written over from its
// start as the program always did; the text then goes in one call, and a short write counts as
// a failure.
// On failure the reporter hears "%s konnte nicht zum Schreiben geöffnet werden." or the
// write-error message, and the result is false.
bool WriteFileSafely(const std::string& path, std::string_view text, Reporter& reporter);

} // namespace rhomba
