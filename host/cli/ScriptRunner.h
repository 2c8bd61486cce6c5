#pragma once

#include "cli/ScriptParser.h"
#include "cli/ScriptVerb.h"
#include "session/ExitCode.h"
#include "toolkit/ZOLUserDriver.h"

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace trellis {

// ScriptRunner: plays a script of verbs, one per line, as a user would act. The transcript goes to `output`: each
// line behind "> ", then what the verb wrote, then the messages that came up.
class ScriptRunner {
public:
    ScriptRunner(std::vector<ScriptVerb> verbs, std::ostream& output);

    // Plays lines that were parsed. Nothing is played when a line names no verb or has too few or too many words
    // (60621, the line and the reason): WrongUse. The script ends at the first verb that is refused (60622).
    // FoundProblem when a verb was refused, an error came up that no "expect" named or a question was asked without an
    // answer (60623, line and number), or answers are left over (60624); otherwise Fine.
    ExitCode Run(const std::vector<ScriptLine>& lines, std::vector<ZOLGYRError>& problems);

private:
    struct Shown {
        ZOLUserDriver::Message message;
        bool isExpected = false;
    };

    const ScriptVerb* VerbOf(const ScriptLine& line, std::vector<ZOLGYRError>& problems) const;
    // False when the script ends here.
    bool Play(const ScriptLine& line, std::vector<ZOLGYRError>& problems);
    void CollectMessages();
    void Expect(const Words& words);
    void CloseLine(std::vector<ZOLGYRError>& problems);

    std::map<std::string, ScriptVerb> _verbs;
    std::ostream& _output;
    std::vector<Shown> _shown; // by the last verb that was no "expect", in line _line
    int _line = 0;
};

} // namespace trellis
