#include "cli/RuleReasonForms.h"

#include "cli/TextWrap.h"

#include <fmt/format.h>

#include <iostream>

namespace trellis {

namespace {

// Words of the kinds, in their order, for programs.
constexpr const char* KindWords[] = {
    "choice", "rule", "package", "matrix", "exclusive category", "mandatory category"};

const char* KindWord(const RuleReasonItem& reason) {
    return KindWords[static_cast<std::size_t>(reason.kind)];
}

std::string ShortLine(const RuleReasonItem& reason) {
    return reason.name.IsEmpty() ? reason.Line().Bytes()
                                 : fmt::format("{} \"{}\"", KindWord(reason), reason.name.Bytes());
}

} // namespace

std::vector<std::string> RuleReasonForms::Short(const Reasons& reasons) {
    std::vector<std::string> names;
    for (const RuleReasonItem& reason : reasons)
        names.push_back(ShortLine(reason) + (&reason == &reasons.back() ? "" : ";"));
    return names;
}

std::string RuleReasonForms::Lines(const Reasons& reasons, int indent) {
    std::string lines;
    for (const RuleReasonItem& reason : reasons)
        lines += TextWrap::Wrapped(reason.Line().Bytes(), indent, indent + 4);
    return lines;
}

nlohmann::ordered_json RuleReasonForms::Json(const Reasons& reasons) {
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const RuleReasonItem& reason : reasons)
        json.push_back(
            {{"kind", KindWord(reason)}, {"name", reason.name.Bytes()}, {"text", reason.text.Bytes()}});
    return json;
}

nlohmann::ordered_json RuleReasonForms::Json(const ZOLParameter& parameter) {
    nlohmann::ordered_json json = {{"category", parameter.GetCategory().Bytes()},
                                   {"option", parameter.GetOption().Bytes()}};
    if (parameter.IsNot())
        json["rejected"] = true;
    return json;
}

nlohmann::ordered_json RuleReasonForms::Json(const Parameters& parameters) {
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const ZOLParameter& parameter : parameters)
        json.push_back(Json(parameter));
    return json;
}

std::string RuleReasonForms::Text(const Parameters& parameters) {
    std::string text;
    for (const ZOLParameter& parameter : parameters)
        text += (text.empty() ? "" : ", ") + parameter.GetParameterString(1).Bytes();
    return text;
}

void RuleReasonForms::Print(const nlohmann::ordered_json& json) {
    std::cout << json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
}

} // namespace trellis
