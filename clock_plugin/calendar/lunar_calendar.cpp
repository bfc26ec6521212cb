#include "calendar/lunar_calendar.h"
