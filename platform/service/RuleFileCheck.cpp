#include "service/RuleFileCheck.h"

#include "rules/language/NameSuggestion.h"
#include "rules/language/RuleParser.h"
#include "rules/language/RuleWriter.h"
#include "service/ItemEditor.h"
#include "service/RuleRowEditor.h"
#include "service/ZOLQRDCfgBase.h"

#include <algorithm>
#include <map>

namespace trellis {

namespace {

constexpr int StandsAlready = 60743;
constexpr int CellsMissing = 60748;
constexpr int RuleTooLong = 60740;

using Kind = RuleFileRule::Kind;

ReferenceCheck ReferencesOf(const ZOLListValZOLIQrdCategory_var& categories) {
    ZOLListPtrZOLParameter parameters;
    for (const ZOLIQrdCategory_var& category : categories) {
        ZOLListValZOLIQrdEffectivity_var options;
        category->GetOptions(options);
        for (const ZOLIQrdEffectivity_var& option : options)
            parameters.Append(new ZOLParameter(category->GetName(), option->GetOption(), 0));
    }
    ReferenceCheck check(parameters);
    ZOLDeleteElements(parameters);
    return check;
}

// What the grammar has against a text; number 0 when nothing.
RuleFault GrammarFault(const RuleFileRule& rule) {
    RuleParser parser(rule.text.text);
    if (rule.kind == Kind::Directive)
        parser.Directive();
    else if (rule.kind == Kind::Package)
        parser.Package();
    else
        parser.Row();
    return parser.GetFault();
}

} // namespace

RuleFileCheck::RuleFileCheck(RuleFile& file, const ZOLListValZOLIQrdCategory_var& categories)
    : _file(file), _references(ReferencesOf(categories)) {
    for (const ZOLIQrdCategory_var& category : categories)
        _categories.push_back(category->GetName());
}

void RuleFileCheck::Run() {
    CheckNames();
    for (const RuleFileRule& rule : _file.rules)
        CheckRule(rule);
    for (const RuleFileMatrix& matrix : _file.matrices) {
        CheckColumns(matrix);
        for (const RuleFileRule& row : matrix.rows)
            row.cells.empty() ? CheckRule(row) : CheckCells(matrix, row);
    }
}

void RuleFileCheck::CheckNames() {
    std::map<std::pair<Kind, std::string>, int> lines; // a matrix counts as of the kind of its rows
    const auto take = [&](Kind kind, const std::string& name, int line) {
        const auto [other, isNew] = lines.try_emplace({kind, name}, line);
        if (!isNew && !name.empty())
            _file.Note(line, StandsAlready, {name, std::to_string(other->second)});
    };
    for (const RuleFileRule& rule : _file.rules)
        take(rule.kind, rule.name, rule.line);
    for (const RuleFileMatrix& matrix : _file.matrices) {
        take(Kind::Row, matrix.name, matrix.line);
        ZOLGYRError badName;
        if (!IsDictionaryName(matrix.name, badName))
            _file.Note(matrix.line, badName.GetCode(), {matrix.name});
    }
}

void RuleFileCheck::CheckRule(const RuleFileRule& rule) {
    ZOLGYRError badName;
    if (!IsRuleName(rule.name, badName))
        _file.Note(rule.line, badName.GetCode(), {rule.name});
    const int length = ZOLUnicodeString(rule.text.text).GetLengthInChar();
    const int longest = ZOLQRDCfgBase::GetMaxLengthForRule();
    if (length > longest)
        return _file.Note(rule.line, RuleTooLong, {std::to_string(length), std::to_string(longest)});
    RuleFault fault = GrammarFault(rule);
    if (fault.number == 0)
        fault = _references.FindFault(rule.text.text);
    Note(rule.line, rule.source, rule.text, fault);
}

void RuleFileCheck::CheckColumns(const RuleFileMatrix& matrix) {
    for (std::size_t i = 0; i < matrix.columns.size(); ++i) {
        const ZOLUnicodeString name = matrix.columns[i].text;
        const auto isSame = [&](const RuleFileText& column) { return name == column.text; };
        RuleFault fault;
        if (std::ranges::find(_categories, name) == _categories.end()) {
            fault = {RuleFault::UnknownCategory, 0, {name}};
            if (const ZOLUnicodeString nearest = NameSuggestion::Nearest(name, _categories);
                !nearest.IsEmpty())
                fault.texts.push_back(nearest);
        } else if (std::ranges::any_of(matrix.columns.begin(), matrix.columns.begin() + static_cast<long>(i),
                                       isSame)) {
            fault = {RuleFault::ColumnTwice, 0, {name}};
        }
        Note(matrix.line, matrix.source, matrix.columns[i], fault);
    }
}

void RuleFileCheck::CheckCells(const RuleFileMatrix& matrix, const RuleFileRule& row) {
    if (row.cells.size() != matrix.columns.size())
        return _file.Note(row.line, CellsMissing,
                          {std::to_string(row.cells.size()), std::to_string(matrix.columns.size())});
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const std::string& category = matrix.columns[i].text;
        // An unknown category was told where the columns stand.
        if (row.cells[i].text.empty() || std::ranges::find(_categories, category) == _categories.end())
            continue;
        const auto reference = RuleWriter::Reference({category, row.cells[i].text});
        Note(row.line, row.source, row.cells[i], _references.FindFault(reference));
    }
}

void RuleFileCheck::Note(int line, const std::string& source, const RuleFileText& part,
                         const RuleFault& fault) {
    if (fault.number == 0)
        return;
    const std::size_t place = RuleFile::PlaceInLine(source, part, fault.offset);
    const ZOLUnicodeString before(std::string_view(source).substr(0, place));
    std::vector<std::string> parameters = {std::to_string(before.GetLengthInChar() + 1)};
    for (const ZOLUnicodeString& text : fault.texts)
        parameters.push_back(text.Bytes());
    _file.Note(line, fault.number, parameters);
}

} // namespace trellis
