#pragma once

#include "values/TrellisApi.h"

class ZOLDialog;
class ZOLGYRError;

// ZOLGYRDlgError: the one way in which an error reaches the user.
class TRELLIS_API ZOLGYRDlgError {
public:
    // Shows the whole message of an error in a box and waits for the answer (see ZOLDlgNotify).
    //   father    the box stands over its window; null, gone or going means the top window
    //   question  1: buttons Yes and No, the result is 1 for yes, 2 for no, 0 when the window was closed;
    //             0: one button, the result is 1
    // An error with a code of 0 or below shows nothing and answers 0. The carrier stays as it is.
    static int Display(ZOLDialog* father, const ZOLGYRError& error, int question = 0);
};
