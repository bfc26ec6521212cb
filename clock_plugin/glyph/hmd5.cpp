#include "glyph/hmd5.h"
