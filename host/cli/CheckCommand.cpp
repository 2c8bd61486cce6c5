#include "cli/Commands.h"

#include "cli/ProductDictionary.h"
#include "cli/RuleReasonForms.h"
#include "cli/TextWrap.h"
#include "service/ZOLRuleHandler.h"
#include "session/MessageOutput.h"

#include <fmt/format.h>

#include <iostream>
#include <memory>

namespace trellis {

namespace {

using Findings = std::vector<RuleFinding>;

// What a finding says, in the order of the kinds: for people, with the subject put in, and for programs.
struct KindText {
    const char* line;
    const char* word;
};

constexpr KindText KindTexts[] = {
    {"binds nothing: {}", "left out"},
    {"the rules contradict each other, so nothing can be chosen{}", "contradiction"},
    {"can never be chosen: {}", "never chosen"},
    {"is always chosen: {}", "always chosen"},
    {"says nothing new: {}", "says nothing"}};

const KindText& TextOf(const RuleFinding& finding) {
    return KindTexts[static_cast<std::size_t>(finding.kind)];
}

void PrintText(const Findings& findings) {
    for (const RuleFinding& finding : findings) {
        std::cout << TextWrap::Wrapped(
            fmt::format(fmt::runtime(TextOf(finding).line), finding.subject.Bytes()), 0, 4);
        if (!finding.verdict.IsEmpty())
            std::cout << TextWrap::Wrapped(finding.verdict.Bytes(), 2, 4);
        std::cout << RuleReasonForms::Lines(finding.reasons, 2);
    }
    std::cout << (findings.empty() ? "nothing is wrong\n" : fmt::format("findings: {}\n", findings.size()));
}

void PrintJson(const Findings& findings) {
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const RuleFinding& finding : findings)
        json.push_back({{"kind", TextOf(finding).word},
                        {"subject", finding.subject.Bytes()},
                        {"verdict", finding.verdict.Bytes()},
                        {"reasons", RuleReasonForms::Json(finding.reasons)}});
    RuleReasonForms::Print(json);
}

ExitCode CheckRules(HostSession& session, const std::string& product) {
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    ZOLGYRError error;
    const ProductDictionary found = ProductDictionary::OfWord(product, error);
    if (error.GetCode() != 0) {
        MessageOutput::Print(error);
        return ExitCode::WrongUse;
    }
    const Findings findings = ZOLRuleHandler(found.dictionary).CheckRules();
    session.Options().json ? PrintJson(findings) : PrintText(findings);
    return findings.empty() ? ExitCode::Fine : ExitCode::FoundProblem;
}

} // namespace

void DeclareCheckCommand(CLI::App& program, Job& job) {
    const auto product = std::make_shared<std::string>();
    CLI::App& command = *program.add_subcommand("check", "look for what is wrong or needless about rules");
    command.add_option("--product", *product, "number, id or name of the configurable part, or: corporate")
        ->type_name("PART")
        ->required();
    command.callback(
        [&job, product] { job = [product](HostSession& session) { return CheckRules(session, *product); }; });
}

} // namespace trellis
