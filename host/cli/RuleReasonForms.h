#pragma once

#include "service/RuleReasonItem.h"
#include "values/ZOLParameter.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace trellis {

// RuleReasonForms: how reasons and options are written, for people and for programs.
class RuleReasonForms {
public:
    using Reasons = std::vector<RuleReasonItem>;
    using Parameters = std::vector<ZOLParameter>;

    // By names alone, one for each reason, as in: your choice "A"."B"; rule "R12".
    static std::vector<std::string> Short(const Reasons& reasons);
    // One reason after the other on lines of their own, so many columns in.
    static std::string Lines(const Reasons& reasons, int indent);
    static nlohmann::ordered_json Json(const Reasons& reasons);
    static nlohmann::ordered_json Json(const ZOLParameter& parameter);
    static nlohmann::ordered_json Json(const Parameters& parameters);
    // References with their signs, joined by commas.
    static std::string Text(const Parameters& parameters);
    // On the standard output.
    static void Print(const nlohmann::ordered_json& json);
};

} // namespace trellis
