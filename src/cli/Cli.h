#pragma once

#include "model/Reporter.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace rhomba {
class Document;
} // namespace rhomba

namespace rhomba::cli {

// Messages and questions on a stream (stderr in the tool), in UTF-8 (TerminalText). Every
// question is answered yes and shown with its answer; the paste step scripts other answers.
class StreamReporter : public Reporter {
public:
    explicit StreamReporter(std::ostream& stream) : stream_(stream) {}
    void Inform(std::string_view message) override;
    bool Ask(std::string_view question) override;

private:
    std::ostream& stream_;
};

// A message for the terminal: the program's Windows-1252 texts become UTF-8, while the file
// names and words they quote, which arrive from the command line in UTF-8 already, stay as
// they are (a well-formed UTF-8 sequence is kept, every other byte read as Windows-1252).
std::string TerminalText(std::string_view message);

// Exit codes of the tool.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;

// The whole tool: args are the arguments after the program name.
int Run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// One line per object, the document first at depth 0, two blanks per level:
// "<kind> #<id> <description>", then ' "<name>"', " hidden", " selected" where they apply; in
// UTF-8 like the messages.
void WriteInfo(Document& document, std::ostream& out);

// Writes SVG when path ends in ".svg" (any case), .emf on Windows as a metafile, otherwise
// native text. Reports a failure.
bool SaveByExtension(Document& document, const std::string& path, Reporter& reporter);

} // namespace rhomba::cli
