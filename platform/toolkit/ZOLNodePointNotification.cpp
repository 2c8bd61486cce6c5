#include "toolkit/ZOLNodePointNotification.h"

ZOLNodePointNotification::~ZOLNodePointNotification() = default;
