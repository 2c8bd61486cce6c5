#include "service/ZOLConfigRule.h"

ZOLConfigRule::~ZOLConfigRule() = default;
