#include "site/ZOLIQrdPESite.h"

#include <utility>

ZOLIQrdPESite::ZOLIQrdPESite(ZOLUnicodeString name) : _name(std::move(name)) {}
