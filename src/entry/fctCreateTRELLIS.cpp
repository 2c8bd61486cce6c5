#include "entry/ZOLDictionary.h"
#include "entry/ZOLQRDCfgInterfacesInt.h"

extern "C" TRELLIS_API ZOLIQRDCfgInterfaces* fctCreateTRELLIS();

ZOLIQRDCfgInterfaces* fctCreateTRELLIS() {
    return new ZOLQRDCfgInterfacesInt;
}

namespace {

// Loading the library makes the module known.
const ZOLDictionary static_command_ZOLQRDCfgInterfacesInt(TrellisModuleName,
                                                          reinterpret_cast<void*>(&fctCreateTRELLIS));

} // namespace
