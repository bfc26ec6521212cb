#include "calendar/persian_calendar.h"
