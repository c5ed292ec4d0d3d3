#include "cli/cli.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    return lodge::runCli(std::vector<std::string>(argv, argv + argc), std::cout, std::cerr);
}
