#include "cli/CommandLine.h"

int main(int argc, char** argv) {
    return trellis::CommandLine::Run(argc, argv);
}
