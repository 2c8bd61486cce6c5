#pragma once

// What became of something that a user tried on a widget. Only Done changes or sends anything.
enum class ZOLUserResult {
    Done,
    Insensitive,    // the widget, or a holder of it, is greyed
    Hidden,         // it is not on the screen, or is being given up
    ReadOnly,       // the text cannot be edited
    BehindQuestion, // an open question or modal window keeps its window from answering
    NotThere,       // no such row, line, page, button, item or text
    Refused,        // the verify function of the editor, or its limit, did not let the text in
};
