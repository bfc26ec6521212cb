// SHA-256 of the frames of the self-test. They are of the frames that the tests' plain renderers
// draw, which fill and paint a whole frame each time and are no part of the clocks;
// tests/tools/test_self_test.cpp draws them again.
#pragma once

namespace ClockTool {

inline constexpr char kDigitalFrameDigest[] =
    "c889ad5806145f0d9d36ca0eae114b342aeb0bd4cbc52fcf4199e413c8bbe20c";
inline constexpr char kAnalogFrameDigest[] =
    "06d6cf76e8b021e6bef7b34bbc3796a2655a2ff3dc4fb3680277139ccc2953f3";

} // namespace ClockTool
