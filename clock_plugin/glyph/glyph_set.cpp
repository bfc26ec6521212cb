#include "glyph/glyph_set.h"
