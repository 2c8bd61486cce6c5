#pragma once

#include <optional>
#include <vector>

class ZOLDialog;

namespace trellis {

// OpenQuestions: the boxes and dialogs that wait for an answer now, the innermost last, and what each keeps
// from answering: the window it stands over and the owners of that window, and every question opened before
// it. All are known by number, since a window may die under a question.
class OpenQuestions {
public:
    static OpenQuestions& Instance();

    // One question, open while this lives.
    class Scope {
    public:
        // `over` may be null.
        Scope(const ZOLDialog& box, const ZOLDialog* over);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

        bool IsAnswered() const;
        // 0 as long as nobody answered.
        int GetAnswer() const;

    private:
        long _box;
    };

    // Whether an open question, or a modal window that is shown, keeps a user from acting on that dialog.
    bool Blocks(const ZOLDialog& dialog) const;
    // Answers a box; the first answer counts. False when that dialog is no open question.
    bool Answer(const ZOLDialog& box, int answer);

private:
    struct Question {
        long box = 0;
        std::vector<long> disabled;
        std::optional<int> answer;
    };

    const Question* Find(long box) const;

    std::vector<Question> _questions;
};

} // namespace trellis
