#pragma once

#include <string>
#include <string_view>

namespace rhomba {

// How the core tells the user something or asks a yes/no question: a message box in the editor,
// stderr (and scripted answers) in rhomba-cli, a recorder in tests. Texts are Windows-1252 bytes.
class Reporter {
public:
    virtual ~Reporter() = default;
    // An information message, e.g. "Kein Object markiert!".
    virtual void Inform(std::string_view message) = 0;
    // A question answered with yes (true) or no (false).
    virtual bool Ask(std::string_view question) = 0;
};

// The message of every file that cannot be written.
inline void InformCannotWrite(Reporter& reporter, std::string_view path) {
    reporter.Inform(std::string(path) + " konnte nicht zum Schreiben ge\xF6" "ffnet werden.");
}

// The message of every allocation that failed, with the size it was for.
inline void InformOutOfMemory(Reporter& reporter, std::size_t bytes) {
    reporter.Inform("Nicht gen\xFCgend Speicher (" + std::to_string(bytes) + " Bytes).");
}

} // namespace rhomba
