#pragma once

#include "rules/engine/RuleModel.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace trellis {

// The files of real products' models, sorted: those called *.uvl.xz in the folder models of TRELLIS_DATA, or of
// ../shared/data beside the checkout. None where that folder is missing.
std::vector<std::filesystem::path> RealModelFiles();

// What such a file says; empty where it cannot be read.
std::string RealModelText(const std::filesystem::path& file);

// The model in such a file, with its names left behind; nothing where it cannot be read.
std::optional<RuleModel> ReadRealModel(const std::filesystem::path& file);

} // namespace trellis
