#include "cli/CommandLine.h"
#include "gallery/GalleryCommand.h"
#include "navigator/NavigatorCommand.h"

int main(int argc, char** argv) {
    return trellis::CommandLine::Run(argc, argv,
                                     {.navigator = trellis::RunNavigator,
                                      .gallery = trellis::RunGallery,
                                      .describeGallery = trellis::DescribeGallery});
}
