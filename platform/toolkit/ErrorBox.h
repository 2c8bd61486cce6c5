#pragma once

class ZOLDialog;
class ZOLGYRError;

namespace trellis {

// Shows an error in a box over the window of `over`, which may be null, gone or going. 1 for the answer yes;
// a notice answers 1 too when it is acknowledged. An error that was shown already, or none, shows nothing and
// answers 0.
int ShowError(ZOLDialog* over, const ZOLGYRError& error, bool isQuestion);

} // namespace trellis
