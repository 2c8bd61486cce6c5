#include "cli/CommandLine.h"
#include "navigator/NavigatorCommand.h"

int main(int argc, char** argv) {
    return trellis::CommandLine::Run(argc, argv, trellis::RunNavigator);
}
