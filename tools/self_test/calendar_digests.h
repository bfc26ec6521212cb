// SHA-256 of the calendars' texts. Made by scripts/make_self_test_digests.py.
#pragma once

namespace ClockTool {

/// "1900-02-01 1$02" and a newline for every day that has a lunar date.
inline constexpr char kLunarDigest[] =
    "6c380d4840c43f3cb4e12933845fbc40aa00ac4812e62f57281238bd534cc5cf";

/// "1993-03-21 1372-1-1" and a newline for every day up to the year below.
inline constexpr char kPersianDigest[] =
    "622d247762e6befbfca1969e30126ca026035a22173f21c1253008582e7e8ce3";

/// The leap years of the same years, a line each.
inline constexpr char kPersianLeapDigest[] =
    "19eb60dcd60fb56e8cb2c9a3f611408d21074700f348f6b4af576fd5ad85db99";

/// The first year that the texts leave out.
inline constexpr int kPersianEnd = 1440;

} // namespace ClockTool
