#pragma once

#include "store/ConfigurationRows.h"
#include "values/ZOLQRDCfgEffectivity.h"

namespace trellis {

// The term that a stored effectivity stands for, without its attributes.
//   options  those of a package in order, which are rows of their own; no other kind looks at them
ZOLQRDCfgEffectivity TermOfRow(const EffectivityRow& row, const ZOLListValZOLUnicodeString& options);

} // namespace trellis
