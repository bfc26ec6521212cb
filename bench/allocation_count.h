// Counts the allocations of the process, where the C library lets itself be asked.
#pragma once

/// Allocations since the process began; 0 where they cannot be counted.
long long AllocationCount();
