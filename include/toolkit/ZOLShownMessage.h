#pragma once

#include "values/ZOLUnicodeString.h"

#include <vector>

// ZOLShownMessage: one message box that was shown, as the user saw it, and what became of it.
struct ZOLShownMessage {
    int code = 0;          // number of the message; 0 for boxes without one
    bool isNotice = false; // a success or a notice rather than an error or a question
    ZOLUnicodeString title;
    ZOLUnicodeString text;
    bool isQuestion = false;
    std::vector<int> buttons; // answers that the box offers: 1, 2, 3
    int answer = 0;           // 0: the window was closed
    bool wasExpected = true;  // a question that got no answer by a user, a script or a test was not
};
