#include "toolkit/ZOLGraphContextNotification.h"

ZOLGraphContextNotification::~ZOLGraphContextNotification() = default;
