#include "cli/Cli.h"

#include "cli/Step.h"
#include "export/SvgWriter.h"
#include "format/NativeReader.h"
#include "model/Document.h"
#include "model/Windows1252.h"
#ifdef _WIN32
#include "win32/EmfFileWriter.h"
#endif

#include <algorithm>
#include <cctype>
#include <ostream>

namespace rhomba::cli {

std::string TerminalText(std::string_view message) {
    std::string out;
    out.reserve(message.size());
    for (std::size_t i = 0; i < message.size();) {
        const auto lead = static_cast<unsigned char>(message[i]);
        // The length of a well-formed UTF-8 sequence starting here, 0 when there is none.
        const std::size_t length = lead >= 0xC2 && lead <= 0xDF ? 2
                                 : lead >= 0xE0 && lead <= 0xEF ? 3
                                 : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                                : 0;
        bool sequence = length != 0 && i + length <= message.size();
        for (std::size_t k = 1; sequence && k < length; ++k) {
            sequence = (static_cast<unsigned char>(message[i + k]) & 0xC0) == 0x80;
        }
        if (sequence) {
            out.append(message.substr(i, length));
            i += length;
        } else {
            AppendCp1252AsUtf8(out, message[i++]);
        }
    }
    return out;
}

void StreamReporter::Inform(std::string_view message) { stream_ << TerminalText(message) << '\n'; }

bool StreamReporter::Ask(std::string_view question) {
    stream_ << TerminalText(question) << " -> ja\n";
    return true;
}

namespace {

constexpr const char* kUsage =
    "usage: rhomba-cli convert IN OUT\n"
    "       rhomba-cli info IN\n"
    "       rhomba-cli apply IN|- OUT STEP...\n"
    "OUT ending in .svg is written as SVG, .rhomba as a native drawing.\n"
#ifdef _WIN32
    "OUT ending in .emf is written as an enhanced metafile.\n"
#endif
    "Each STEP is a keyword followed by its words; quote a word that holds blanks:\n"
    "  rhomba-cli apply in.rhomba out.svg select all iso links rotate 90 ccw\n"
    "  rhomba-cli apply in.rhomba out.rhomba select name Rahmen move 2,5 '-3 mm'\n"
    "The steps:\n";

int Usage(std::ostream& err) {
    err << kUsage;
    for (const Step& step : AllSteps()) err << "  " << step.usage << '\n';
    return kExitUsage;
}

std::string Lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

bool EndsWith(const std::string& text, std::string_view suffix) {
    return text.size() >= suffix.size() &&
           Lower(text.substr(text.size() - suffix.size())) == suffix;
}

const Step* FindStep(std::string_view keyword) {
    for (const Step& step : AllSteps()) {
        if (step.keyword == keyword) return &step;
    }
    return nullptr;
}

// One step as read from the command line: the step, its words, and how it was typed.
struct PlannedStep {
    const Step* step;
    std::vector<std::string> words;
    std::string typed;
};

// Reads the steps from args: a keyword of its own takes the words its grammar asks for; an
// argument that starts with a keyword and a blank is a whole step. False (after telling err)
// at the first argument that is neither.
bool PlanSteps(StepWords args, std::vector<PlannedStep>& plan, std::ostream& err) {
    for (std::size_t i = 0; i < args.size();) {
        const std::string& argument = args[i++];
        if (const Step* step = FindStep(argument)) {
            const StepWords next = args.subspan(i);
            const std::size_t count = std::min(step->takes(next), next.size());
            PlannedStep planned{step, {next.begin(), next.begin() + count}, argument};
            for (const std::string& word : planned.words) planned.typed += " " + word;
            plan.push_back(std::move(planned));
            i += count;
            continue;
        }
        const std::size_t blank = argument.find(' ');
        const Step* step =
            blank == std::string::npos ? nullptr : FindStep(argument.substr(0, blank));
        if (step == nullptr) {
            err << "rhomba-cli: unknown step '" << argument << "'\n";
            return false;
        }
        plan.push_back({step, step->split(std::string_view(argument).substr(blank + 1)), argument});
    }
    return true;
}

int Convert(const std::string& in, const std::string& out, std::ostream& err) {
    bool known = EndsWith(out, ".svg") || EndsWith(out, ".rhomba");
#ifdef _WIN32
    known = known || EndsWith(out, ".emf");
#endif
    if (!known) {
        err << "rhomba-cli: " << out << ": the output must end in .svg or .rhomba\n";
        return Usage(err);
    }
    StreamReporter reporter(err);
    Document document;
    if (!LoadNativeFile(document, in, reporter)) return kExitFailed;
    return SaveByExtension(document, out, reporter) ? kExitOk : kExitFailed;
}

int Info(const std::string& in, std::ostream& out, std::ostream& err) {
    StreamReporter reporter(err);
    Document document;
    if (!LoadNativeFile(document, in, reporter)) return kExitFailed;
    WriteInfo(document, out);
    return kExitOk;
}

int Apply(const std::vector<std::string>& args, std::ostream& err) {
    // Every step is read before anything is loaded, so a typo costs no work.
    std::vector<PlannedStep> plan;
    if (!PlanSteps(StepWords(args).subspan(2), plan, err)) return Usage(err);
    StreamReporter reporter(err);
    Document document;
    if (args[0] == "-") {
        document.Reset();
    } else if (!LoadNativeFile(document, args[0], reporter)) {
        return kExitFailed;
    }
    StepContext context{document, reporter};
    for (const PlannedStep& planned : plan) {
        if (!planned.step->run(context, planned.words)) {
            err << "rhomba-cli: step '" << planned.typed << "' not usable; expected: "
                << planned.step->usage << '\n';
            return kExitUsage;
        }
    }
    const bool saved = SaveByExtension(document, args[1], reporter);
    return saved && !context.writeFailed ? kExitOk : kExitFailed;
}

} // namespace

bool SaveByExtension(Document& document, const std::string& path, Reporter& reporter) {
    if (EndsWith(path, ".svg")) return ExportSvgFile(document, path, reporter);
#ifdef _WIN32
    if (EndsWith(path, ".emf")) return ExportEmfFile(document, path, reporter);
#endif
    return SaveNativeFile(document, path, reporter);
}

void WriteInfo(Document& document, std::ostream& out) {
    struct Item {
        GraphicObject* object;
        int depth;
    };
    std::vector<Item> work{{&document, 0}};
    std::string text;
    while (!work.empty()) {
        const Item item = work.back();
        work.pop_back();
        GraphicObject& object = *item.object;
        object.Describe(text);
        std::string line = std::string(static_cast<std::size_t>(item.depth) * 2, ' ') +
                           std::to_string(static_cast<int>(object.GetKind())) + " #" +
                           std::to_string(object.GetId()) + ' ' + text;
        if (!object.GetName().empty()) line += " \"" + object.GetName() + '"';
        if (object.IsHidden()) line += " hidden";
        if (object.IsSelected()) line += " selected";
        out << TerminalText(line) << '\n';
        if (IsContainer(object)) {
            const Group& group = static_cast<const Group&>(object);
            for (std::size_t i = group.ChildCount(); i-- > 0;) {
                if (GraphicObject* child = group.ChildAt(i))
                    work.push_back({child, item.depth + 1});
            }
        }
    }
}

int Run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    if (args.empty()) return Usage(err);
    const std::string& command = args[0];
    const std::vector<std::string> rest(args.begin() + 1, args.end());
    if (command == "convert" && rest.size() == 2) return Convert(rest[0], rest[1], err);
    if (command == "info" && rest.size() == 1) return Info(rest[0], out, err);
    if (command == "apply" && rest.size() >= 2) return Apply(rest, err);
    return Usage(err);
}

} // namespace rhomba::cli
