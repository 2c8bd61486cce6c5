#include "rules/readers/DimacsReader.h"

#include "rules/readers/DictionaryNames.h"
#include "rules/readers/DirectiveForm.h"
#include "rules/readers/ModelProblems.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <map>
#include <optional>
#include <utility>

namespace trellis {

namespace {

constexpr int HeaderExpected = 60730;
constexpr int SecondHeader = 60731;
constexpr int NumberExpected = 60732;
constexpr int UnknownVariable = 60733;
constexpr int EmptyClause = 60734;
constexpr int OpenClause = 60735;
constexpr int OtherCount = 60736;
constexpr int SecondName = 60737;
constexpr int TooManyVariables = 60738;
constexpr int NoVariables = 60739;

constexpr int MostVariables = 100'000;
constexpr std::string_view Blanks = " \t\r\f\v";
constexpr const char* CategoryName = "cnf";

// The next word of the line, which is taken off; empty at its end.
std::string_view TakeWord(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(Blanks), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(Blanks));
    line.remove_prefix(word.size());
    return word;
}

std::string_view Stripped(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    return text.substr(0, text.find_last_not_of(Blanks) + 1); // npos + 1 is 0
}

std::optional<int> NumberOf(std::string_view word) {
    int number = 0;
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (fault != std::errc() || end != word.data() + word.size())
        return {};
    return number;
}

// One text on its way to a model.
class Reading {
public:
    ModelReading Read(std::string_view text);

private:
    struct Clause {
        int line = 0;
        std::size_t end = 0; // of its literals
    };

    void ReadLine(std::string_view line);
    void ReadName(std::string_view comment);
    void ReadHeader(std::string_view line);
    void ReadLiteral(std::string_view word);
    void CloseClause();
    void CheckEnd();
    void NameOptions(ModelCategory& category);
    VariabilityModel MakeModel();
    std::vector<RuleTerm> TermsOf(std::size_t begin, std::size_t end, const ModelCategory& category);

    ModelProblems _problems;
    int _line = 0;
    bool _hasHeader = false;
    std::optional<int> _variables; // nothing without a good header
    int _promised = 0;             // clauses
    struct Name {
        int line = 0;
        std::string_view text;
    };
    std::map<int, Name> _names; // by variable
    std::vector<int> _literals; // of all clauses
    std::vector<Clause> _clauses;
};

ModelReading Reading::Read(std::string_view text) {
    text = _problems.CheckText(text);
    if (!_problems.IsEmpty())
        return {{}, _problems.Take()};
    while (!text.empty() && !_problems.IsFull()) {
        ++_line;
        const std::size_t end = std::min(text.find('\n'), text.size());
        ReadLine(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    CheckEnd();
    if (!_problems.IsEmpty())
        return {{}, _problems.Take()};
    return {MakeModel(), {}};
}

void Reading::ReadLine(std::string_view line) {
    std::string_view rest = line;
    std::string_view word = TakeWord(rest);
    if (word == "c") {
        ReadName(rest);
        return;
    }
    if (word == "p") {
        ReadHeader(rest);
        return;
    }
    for (; !word.empty(); word = TakeWord(rest))
        ReadLiteral(word);
}

// Any other comment is passed over.
void Reading::ReadName(std::string_view comment) {
    const std::optional<int> variable = NumberOf(TakeWord(comment));
    const std::string_view name = Stripped(comment);
    if (!variable || *variable <= 0 || name.empty())
        return;
    const auto [known, isNew] = _names.emplace(*variable, Name{_line, name});
    if (!isNew)
        _problems.Note(_line, SecondName, {std::to_string(*variable), std::to_string(known->second.line)});
}

void Reading::ReadHeader(std::string_view line) {
    if (_hasHeader) {
        _problems.Note(_line, SecondHeader);
        return;
    }
    _hasHeader = true;
    const bool isForm = TakeWord(line) == "cnf";
    _variables = NumberOf(TakeWord(line));
    const std::optional<int> clauses = NumberOf(TakeWord(line));
    if (!isForm || _variables.value_or(-1) < 0 || clauses.value_or(-1) < 0 || !TakeWord(line).empty()) {
        _problems.Note(_line, HeaderExpected);
        _variables.reset();
        return;
    }
    _promised = *clauses;
    if (_variables == 0)
        _problems.Note(_line, NoVariables);
    if (*_variables > MostVariables)
        _problems.Note(_line, TooManyVariables, {std::to_string(*_variables), std::to_string(MostVariables)});
}

void Reading::ReadLiteral(std::string_view word) {
    const std::optional<int> literal = NumberOf(word);
    if (!_hasHeader) {
        _problems.Note(_line, HeaderExpected);
        _hasHeader = true; // told once
    } else if (!literal) {
        _problems.Note(_line, NumberExpected, {std::string(word)});
    } else if (*literal == 0) {
        CloseClause();
    } else if (_variables && (*literal < -*_variables || *literal > *_variables)) {
        _problems.Note(_line, UnknownVariable, {std::string(word), std::to_string(*_variables)});
    } else {
        _literals.push_back(*literal);
    }
}

void Reading::CloseClause() {
    const std::size_t begin = _clauses.empty() ? 0 : _clauses.back().end;
    if (begin == _literals.size())
        _problems.Note(_line, EmptyClause);
    _clauses.push_back({_line, _literals.size()});
}

void Reading::CheckEnd() {
    if (!_hasHeader)
        _problems.Note(0, HeaderExpected);
    if (!_problems.IsEmpty())
        return;
    if (!_literals.empty() && (_clauses.empty() || _clauses.back().end < _literals.size()))
        _problems.Note(_line, OpenClause);
    else if (_clauses.size() != static_cast<std::size_t>(_promised))
        _problems.Note(0, OtherCount, {std::to_string(_promised), std::to_string(_clauses.size())});
}

VariabilityModel Reading::MakeModel() {
    VariabilityModel model;
    ModelCategory& category = model.categories.emplace_back();
    category.name = CategoryName;
    NameOptions(category);
    DictionaryNames names;
    model.rules.reserve(_clauses.size());
    std::size_t begin = 0;
    for (const Clause& clause : _clauses) {
        std::vector<RuleTerm> terms = TermsOf(begin, clause.end, category);
        begin = clause.end;
        if (!terms.empty())
            model.rules.push_back({names.Allot(std::string(CategoryName) + " " + std::to_string(clause.line)),
                                   clause.line, Disjunction(std::move(terms))});
    }
    return model;
}

// Names of the file come before numbers, and those that fit before those that must be shortened.
void Reading::NameOptions(ModelCategory& category) {
    DictionaryNames names;
    category.options.resize(static_cast<std::size_t>(*_variables));
    for (const bool isShort : {true, false})
        for (const auto& [variable, name] : _names) {
            if (variable > _variables || DictionaryNames::IsShort(name.text) != isShort)
                continue;
            ModelOption& option = category.options[static_cast<std::size_t>(variable) - 1];
            option.name = names.Allot(name.text);
            if (option.name != name.text)
                option.description = name.text;
        }
    for (std::size_t place = 0; place < category.options.size(); ++place)
        if (category.options[place].name.empty())
            category.options[place].name = names.Allot(std::to_string(place + 1));
}

// The literals of a clause, each once; none when the clause always holds.
std::vector<RuleTerm> Reading::TermsOf(std::size_t begin, std::size_t end, const ModelCategory& category) {
    const auto place = [this](std::size_t at) { return _literals.begin() + static_cast<std::ptrdiff_t>(at); };
    std::vector<int> literals(place(begin), place(end));
    const auto byVariable = [](int a, int b) {
        return std::pair(std::abs(a), a) < std::pair(std::abs(b), b);
    };
    std::ranges::sort(literals, byVariable);
    literals.erase(std::ranges::unique(literals).begin(), literals.end());
    if (std::ranges::adjacent_find(literals, [](int a, int b) { return a == -b; }) != literals.end())
        return {};
    std::vector<RuleTerm> terms;
    terms.reserve(literals.size());
    for (const int literal : literals) {
        const std::string& option = category.options[static_cast<std::size_t>(std::abs(literal)) - 1].name;
        RuleTerm term = RuleTerm::Of({category.name, option});
        terms.push_back(literal > 0 ? std::move(term) : Negation(std::move(term)));
    }
    return terms;
}

} // namespace

ModelReading DimacsReader::Read(std::string_view text) {
    return Reading().Read(text);
}

} // namespace trellis
