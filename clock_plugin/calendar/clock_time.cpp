#include "calendar/clock_time.h"
