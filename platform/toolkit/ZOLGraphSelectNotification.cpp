#include "toolkit/ZOLGraphSelectNotification.h"

ZOLGraphSelectNotification::~ZOLGraphSelectNotification() = default;
