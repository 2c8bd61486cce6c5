#pragma once

#include "service/ZOLIQrdEffectivity.h"

namespace trellis {

// A term in one line: its options or flag, then its limits, each bound with the milestone that it comes from. Open
// ends are told by words.
ZOLUnicodeString EffectivityText(const ZOLQRDCfgEffectivity& term);

} // namespace trellis
