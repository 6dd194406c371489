#include "cli/Cli.h"

#include <iostream>

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    return rhomba::cli::Run(args, std::cout, std::cerr);
}
