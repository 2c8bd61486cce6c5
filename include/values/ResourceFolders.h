#pragma once

#include "values/TrellisApi.h"

#include <string>
#include <vector>

namespace trellis {

// ResourceFolders: where texts and icons lie. A file is looked for in the site's folder (resources/ below it), then
// in the folder of the language, then in that of English; which language is the setting "LANGUAGE". The root is
// TRELLIS_RESOURCES in the environment, else share/trellis/resources beside the folder of the program.
class TRELLIS_API ResourceFolders {
public:
    static std::string Root();
    // The folders that exist, in the order of the search; one that comes or goes is seen within a second.
    static std::vector<std::string> Search();
    // The files of that name, in the order of the search. Names with a folder in them are not looked for.
    static std::vector<std::string> FindAll(const std::string& fileName);
};

} // namespace trellis
