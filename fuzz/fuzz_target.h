// fuzz/: the interface of a fuzz target: one function, called with any bytes. A fault is a crash, a
// leak, too much time or memory, or a failed Expect().
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" {
int LLVMFuzzerInitialize(int *argumentCount, char ***arguments);
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
}

namespace Fuzz {

/// Aborts the process if the condition is false.
void Expect(bool condition, const char *what);

/// The path of the process's own directory, with a trailing separator: in memory, or where
/// CLOCK_FUZZ_SCRATCH says.
QString Directory();

/// Removes the files in it.
void EmptyDirectory();

} // namespace Fuzz
