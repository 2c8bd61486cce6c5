#include "toolkit/ZOLWindowEnterNotification.h"

ZOLWindowEnterNotification::~ZOLWindowEnterNotification() = default;
