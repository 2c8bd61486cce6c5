#include "toolkit/ZOLNodeExtSelectNotification.h"

ZOLNodeExtSelectNotification::~ZOLNodeExtSelectNotification() = default;
