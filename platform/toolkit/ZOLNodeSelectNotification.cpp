#include "toolkit/ZOLNodeSelectNotification.h"

ZOLNodeSelectNotification::~ZOLNodeSelectNotification() = default;
