#include "toolkit/ZOLNodeContextNotification.h"

ZOLNodeContextNotification::~ZOLNodeContextNotification() = default;
