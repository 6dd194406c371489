#pragma once

#include "cli/Cli.h"
#include "format/NativeReader.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "support/TempFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace rhomba::cli {

// Runs the tool in-process; Apply also reads back what it wrote.
class CliHarness : public ::testing::Test {
protected:
    static std::string Temp(const std::string& name) {
        return (test::TestFolder() / name).string();
    }
    static std::string Read(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static void Write(const std::string& path, const std::string& text) {
        std::ofstream(path, std::ios::binary) << text;
    }
    int Run(std::vector<std::string> args) {
        std::ostringstream outStream, errStream;
        const int code = cli::Run(args, outStream, errStream);
        out = outStream.str();
        err = errStream.str();
        return code;
    }
    // "apply" from input (a native text, or "-" for a new drawing) into out.rhomba, which is
    // then parsed into result.
    int Apply(const std::string& input, std::vector<std::string> steps) {
        std::string in = "-";
        if (input != "-") Write(in = Temp("in.rhomba"), input);
        std::filesystem::remove(Temp("out.rhomba"));
        steps.insert(steps.begin(), {"apply", in, Temp("out.rhomba")});
        const int code = Run(steps);
        result.Reset();
        ParseNative(result, Read(Temp("out.rhomba")), false);
        return code;
    }
    PathObject& PathAt(std::size_t layer, std::size_t index) {
        return static_cast<PathObject&>(*result.LayerAt(layer).ChildAt(index));
    }

    std::string out, err;
    Document result;
};

} // namespace rhomba::cli
