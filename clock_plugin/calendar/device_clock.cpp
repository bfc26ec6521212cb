#include "calendar/device_clock.h"
