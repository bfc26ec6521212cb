// Memory that runs out, as a test chooses: requests of at least so many bytes fail. Qt answers
// those for the pixels of an image by a null image; smaller ones, on which Qt gives up, always
// succeed.
#pragma once

#include <QtGlobal>

namespace FailingMemory {

/// Whether the program's allocations can be made to fail: not under a sanitizer, which has its own.
bool Available();

/// From now on the nth request (0: the first) of at least this many bytes fails, and with it, if so
/// asked, all later ones.
void Fail(std::size_t leastBytes, int nth, bool allLater);
/// All succeed again. Returns how many such requests there were since.
int Stop();

} // namespace FailingMemory
