#include "cli/Cli.h"

#include "cli/Step.h"
#include "export/SvgWriter.h"
#include "format/NativeReader.h"
#include "model/Document.h"
#ifdef _WIN32
#include "win32/EmfFileWriter.h"
#endif

#include <cctype>
#include <ostream>

namespace rhomba::cli {

void StreamReporter::Inform(std::string_view message) { stream_ << message << '\n'; }

bool StreamReporter::Ask(std::string_view question) {
    stream_ << question << " -> ja\n";
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
    "Each STEP is one argument, a keyword and its words:\n";

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
    return text.size() >= suffix.size() && Lower(text.substr(text.size() - suffix.size())) == suffix;
}

const Step* FindStep(std::string_view argument, std::string_view& rest) {
    const std::size_t blank = argument.find(' ');
    const std::string_view keyword = argument.substr(0, blank);
    rest = blank == std::string_view::npos ? std::string_view{} : argument.substr(blank + 1);
    for (const Step& step : AllSteps()) {
        if (step.keyword == keyword) return &step;
    }
    return nullptr;
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
    // Every step is checked before anything is loaded, so a typo costs no work.
    for (std::size_t i = 2; i < args.size(); ++i) {
        std::string_view rest;
        if (FindStep(args[i], rest) == nullptr) {
            err << "rhomba-cli: unknown step '" << args[i] << "'\n";
            return Usage(err);
        }
    }
    StreamReporter reporter(err);
    Document document;
    if (args[0] == "-") {
        document.Reset();
    } else if (!LoadNativeFile(document, args[0], reporter)) {
        return kExitFailed;
    }
    StepContext context{document, reporter};
    for (std::size_t i = 2; i < args.size(); ++i) {
        std::string_view rest;
        const Step* step = FindStep(args[i], rest);
        if (!step->run(context, rest)) {
            err << "rhomba-cli: step '" << args[i] << "' not usable; expected: " << step->usage
                << '\n';
            return kExitUsage;
        }
    }
    return SaveByExtension(document, args[1], reporter) ? kExitOk : kExitFailed;
}

} // namespace

bool SaveByExtension(Document& document, const std::string& path, Reporter& reporter) {
    if (EndsWith(path, ".svg")) return ExportSvgFile(document, path, reporter);
#ifdef _WIN32
    if (EndsWith(path, ".emf")) return ExportEmfFile(document, path, reporter);
#endif
    if (SaveNativeFile(document, path)) return true;
    InformCannotWrite(reporter, path);
    return false;
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
        out << std::string(static_cast<std::size_t>(item.depth) * 2, ' ')
            << static_cast<int>(object.GetKind()) << " #" << object.GetId() << ' ' << text;
        if (!object.GetName().empty()) out << " \"" << object.GetName() << '"';
        if (object.IsHidden()) out << " hidden";
        if (object.IsSelected()) out << " selected";
        out << '\n';
        if (IsContainer(object)) {
            const Group& group = static_cast<const Group&>(object);
            for (std::size_t i = group.ChildCount(); i-- > 0;) {
                if (GraphicObject* child = group.ChildAt(i)) work.push_back({child, item.depth + 1});
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
