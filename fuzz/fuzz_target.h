// What a fuzz target is: one function called with made-up bytes. A fault is a crash, a leak, too
// much time or memory, or a broken expectation.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" {
int LLVMFuzzerInitialize(int *argumentCount, char ***arguments);
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
}

namespace Fuzz {

/// Ends the process, as any other fault does, where the condition does not hold.
void Expect(bool condition, const char *what);

/// A directory of the process's own, with a trailing separator: in memory, or where
/// CLOCK_FUZZ_SCRATCH says.
QString Directory();

/// Removes the files in it.
void EmptyDirectory();

} // namespace Fuzz
