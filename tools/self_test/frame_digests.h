// self_test/: SHA-256 of the frames of the self-test, computed from the frames that the tests'
// plain renderers draw, which repaint each frame completely and share no code with the clocks;
// tests/tools/test_self_test.cpp recomputes them.
#pragma once

namespace ClockTool {

inline constexpr char kDigitalFrameDigest[] =
    "c889ad5806145f0d9d36ca0eae114b342aeb0bd4cbc52fcf4199e413c8bbe20c";
inline constexpr char kAnalogFrameDigest[] =
    "06d6cf76e8b021e6bef7b34bbc3796a2655a2ff3dc4fb3680277139ccc2953f3";

} // namespace ClockTool
