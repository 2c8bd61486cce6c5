#include "rules/engine/RealModel.h"

#include "rules/readers/UvlReader.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <system_error>
#include <utility>

namespace trellis {

namespace {

// Gives every option its number.
class Numbering {
public:
    explicit Numbering(const VariabilityModel& source) {
        for (const ModelCategory& category : source.categories) {
            _model.categories.push_back({category.name, {}, category.isExclusive, category.isMandatory});
            for (const ModelOption& option : category.options) {
                _model.categories.back().options.push_back(_model.optionCount);
                _numbers[option.name] = _model.optionCount++;
            }
        }
        for (const ModelRule& rule : source.rules)
            _model.directives.push_back({FormulaOf(rule.term.condition), FormulaOf(rule.term.consequence)});
    }

    RuleModel Take() { return std::move(_model); }

private:
    RuleFormula FormulaOf(const RuleTerm& term) const {
        static const std::map<RuleTerm::Kind, RuleFormula::Kind> kinds = {
            {RuleTerm::Kind::Reference, RuleFormula::Kind::Option},
            {RuleTerm::Kind::Not, RuleFormula::Kind::Not},
            {RuleTerm::Kind::And, RuleFormula::Kind::And},
            {RuleTerm::Kind::Or, RuleFormula::Kind::Or}};
        RuleFormula formula{kinds.at(term.kind), -1, {}};
        if (term.kind == RuleTerm::Kind::Reference)
            formula.option = _numbers.at(term.reference.option);
        for (const RuleTerm& part : term.parts)
            formula.parts.push_back(FormulaOf(part));
        return formula;
    }

    RuleModel _model;
    std::map<std::string, int> _numbers;
};

} // namespace

std::vector<std::filesystem::path> RealModelFiles() {
    const char* data = std::getenv("TRELLIS_DATA");
    const std::filesystem::path folder = data ? data : TRELLIS_SOURCE_DIR "/../shared/data";
    std::vector<std::filesystem::path> files;
    std::error_code missing;
    for (const auto& entry : std::filesystem::directory_iterator(folder / "models", missing))
        if (entry.path().string().ends_with(".uvl.xz"))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string RealModelText(const std::filesystem::path& file) {
    std::string text;
    FILE* pipe = popen(("xz -dc '" + file.string() + "'").c_str(), "r");
    if (!pipe)
        return text;
    std::array<char, 65536> piece{};
    while (const std::size_t read = std::fread(piece.data(), 1, piece.size(), pipe))
        text.append(piece.data(), read);
    pclose(pipe);
    return text;
}

std::optional<RuleModel> ReadRealModel(const std::filesystem::path& file) {
    const ModelReading reading = UvlReader::Read(RealModelText(file));
    if (!reading.problems.empty() || reading.model.categories.empty())
        return std::nullopt;
    return Numbering(reading.model).Take();
}

} // namespace trellis
