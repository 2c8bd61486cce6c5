#include "cli/ScriptRunner.h"

#include "toolkit/CallbackScope.h"
#include "values/ZOLGYRError.h"

#include <algorithm>
#include <charconv>

namespace trellis {

namespace {

constexpr int LineNotUnderstood = 60621;
constexpr int VerbRefused = 60622;
constexpr int UnexpectedMessage = 60623;
constexpr int UnusedAnswers = 60624;
const char* const ExpectVerb = "expect";

ZOLGYRError Problem(int code, std::initializer_list<ZOLUnicodeString> parameters) {
    ZOLGYRError error;
    error.Set(code, 0, parameters);
    return error;
}

int MessageNumber(const std::string& word) {
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size())
        throw ScriptRefusal('"' + word + "\" is no number of a message");
    return number;
}

void PrintMessage(const ZOLUserDriver::Message& message, std::ostream& output) {
    output << message.title.Bytes() << ' ' << message.code << ": " << message.text.Bytes();
    if (message.isQuestion)
        output << "  -> " << message.answer << (message.wasExpected ? "" : " (nobody had an answer)");
    output << '\n';
}

} // namespace

ScriptRunner::ScriptRunner(std::vector<ScriptVerb> verbs, std::ostream& output) : _output(output) {
    for (ScriptVerb& verb : verbs)
        _verbs.emplace(verb.name, std::move(verb));
    _verbs.emplace(ExpectVerb, ScriptVerb{ExpectVerb, "NUMBER...|nothing", 1, ScriptVerb::Many,
                                          [this](const Words& words, std::ostream&) { Expect(words); }});
}

const ScriptVerb* ScriptRunner::VerbOf(const ScriptLine& line, std::vector<ZOLGYRError>& problems) const {
    const std::string number = std::to_string(line.number);
    const auto found = _verbs.find(line.words.front());
    if (found == _verbs.end()) {
        problems.push_back(Problem(LineNotUnderstood, {number, "there is no verb " + line.words.front()}));
        return nullptr;
    }
    const ScriptVerb& verb = found->second;
    const std::size_t words = line.words.size() - 1;
    if (words >= verb.fewest && words <= verb.most)
        return &verb;
    problems.push_back(
        Problem(LineNotUnderstood, {number, std::string("usage: ") + verb.name + ' ' + verb.arguments}));
    return nullptr;
}

ExitCode ScriptRunner::Run(const std::vector<ScriptLine>& lines, std::vector<ZOLGYRError>& problems) {
    const std::size_t before = problems.size();
    for (const ScriptLine& line : lines)
        VerbOf(line, problems);
    if (problems.size() != before)
        return ExitCode::WrongUse;

    for (const ScriptLine& line : lines)
        if (!Play(line, problems))
            break;
    CloseLine(problems);
    if (const int unused = ZOLUserDriver::PendingAnswers(); unused > 0)
        problems.push_back(Problem(UnusedAnswers, {std::to_string(unused)}));
    ZOLUserDriver::Answer({});
    return problems.size() == before ? ExitCode::Fine : ExitCode::FoundProblem;
}

bool ScriptRunner::Play(const ScriptLine& line, std::vector<ZOLGYRError>& problems) {
    const bool isExpect = line.words.front() == ExpectVerb;
    if (!isExpect)
        CloseLine(problems);
    _output << "> " << line.text << '\n';
    if (!isExpect)
        _line = line.number;
    try {
        VerbOf(line, problems)->run(Words(line.words.begin() + 1, line.words.end()), _output);
    } catch (const ZOLUserDriver::Refused& refused) {
        problems.push_back(Problem(VerbRefused, {std::to_string(line.number), refused.what()}));
    } catch (const ScriptRefusal& refused) {
        problems.push_back(Problem(VerbRefused, {std::to_string(line.number), refused.what()}));
    }
    CollectMessages();
    return problems.empty() || problems.back().GetCode() != VerbRefused;
}

void ScriptRunner::CollectMessages() {
    CallbackScope::FreeGivenUp();
    for (const ZOLUserDriver::Message& message : ZOLUserDriver::TakeMessages()) {
        PrintMessage(message, _output);
        _shown.push_back(Shown{message, false});
    }
}

void ScriptRunner::Expect(const Words& words) {
    if (words.front() == "nothing") {
        if (!_shown.empty())
            throw ScriptRefusal("messages came up");
        return;
    }
    for (const std::string& word : words) {
        const int number = MessageNumber(word);
        const auto match = std::find_if(_shown.begin(), _shown.end(), [number](const Shown& shown) {
            return !shown.isExpected && shown.message.code == number;
        });
        if (match == _shown.end())
            throw ScriptRefusal("no message " + word + " came up");
        match->isExpected = true;
    }
}

// What came up in the line before and was not expected: an error, or a question without an answer.
void ScriptRunner::CloseLine(std::vector<ZOLGYRError>& problems) {
    for (const Shown& shown : _shown) {
        const auto& message = shown.message;
        const bool isProblem = message.isQuestion ? !message.wasExpected : !message.isNotice;
        if (isProblem && !shown.isExpected)
            problems.push_back(
                Problem(UnexpectedMessage, {std::to_string(_line), std::to_string(message.code)}));
    }
    _shown.clear();
}

} // namespace trellis
