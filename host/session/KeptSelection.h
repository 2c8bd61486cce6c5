#pragma once

#include "service/ZOLIQrdConfigItem.h"
#include "values/ZOLParameter.h"

#include <optional>
#include <string>
#include <vector>

namespace trellis {

// KeptSelection: what a person chose and rejected, as it is kept in a file between the window in which options are
// chosen and the command line. What the rules made of it is not kept: it is found anew.
//
// The file is JSON:
//   "trellis selection": 1, "product": its name, for people,
//   "choices": [{"category", "option", "rejected": true or false}, ...] in the order in which they were made,
//   "ignored categories": [names]
struct KeptSelection {
    std::string product;
    std::vector<ZOLParameter> choices;
    ZOLListValZOLUnicodeString ignoredCategories;

    // As WholeFile writes, with its error.
    bool Write(const std::string& file, ZOLGYRError& error) const;
    // Nothing, and 60634 (file) when it cannot be read, 60635 (file, what is wrong) when it holds no selection.
    static std::optional<KeptSelection> Read(const std::string& file, ZOLGYRError& error);

    // Gives the choices that the dictionaries know the exclusivity of their categories, and takes the others out.
    std::vector<ZOLParameter> TakeOutUnknown(const ZOLListValZOLIQrdConfigItem_var& dictionaries);
};

} // namespace trellis
