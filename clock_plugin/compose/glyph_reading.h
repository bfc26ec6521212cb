// compose/: the former name of picture_file.h, for callers that are being moved.
#pragma once

#include "compose/picture_file.h"
