#pragma once

#include "toolkit/ZOLShownMessage.h"

#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class ZOLDialog;

namespace trellis {

// QuestionDesk: where every message box waits for its answer: in the loop of the view, or, without one, at
// the answers that a driver has laid ready. It keeps a record of what was shown.
class QuestionDesk {
public:
    using Asker = std::function<int(const ZOLShownMessage&)>;

    static QuestionDesk& Instance();

    // Waits; `box` is shown already. The answer is one of the offered buttons, or 0.
    int Ask(const ZOLDialog& box, const ZOLDialog* over, const ZOLShownMessage& message);

    // For the driver. An empty list of answers drops those that lie ready.
    void LayReady(const std::vector<int>& answers);
    void SetAsker(Asker asker) { _asker = std::move(asker); }
    // What was shown since the last call, the latest thousand at most.
    std::vector<ZOLShownMessage> TakeMessages();
    int CountReady() const { return static_cast<int>(_ready.size()); }
    // An exception that left the asker, once: callbacks lie between the asker and the verb that raised the
    // question, so it waits here until that verb ends.
    std::exception_ptr TakePendingException() { return std::exchange(_pendingException, nullptr); }

private:
    // Without a view: the answer, or -1 when nobody gives one.
    int FindAnswer(const ZOLShownMessage& message);
    int AskTheAsker(const ZOLShownMessage& message);

    std::deque<int> _ready;
    Asker _asker;
    std::deque<std::shared_ptr<ZOLShownMessage>> _shown;
    std::exception_ptr _pendingException;
};

} // namespace trellis
