#pragma once

class ZOLDMInstance;

namespace trellis {

// Asks an instance for the right to a function, as every operation does before it begins. 0 when it may go on, else
// the number of the error to report. Where the function has a privilege limit, a user of that privilege goes on in
// spite of a refusal.
int RefusedRight(const ZOLDMInstance& instance, const char* function);

} // namespace trellis
