// What a fuzz target is: a function that takes any bytes, plays or reads them, and tells when a law
// is broken. What it throws ends the target, so it catches what may be thrown and nothing else.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tumbledeep {

/// Ends the target, which makes the input a finding, unless the law holds.
inline void Hold(bool holds, const char* law) {
    if (holds) return;
    std::fprintf(stderr, "broken law: %s\n", law);
    std::abort();
}

/// The target's body, which each target defines.
void Fuzz(std::string_view bytes);

} // namespace tumbledeep

// The name by which libFuzzer calls it.
extern "C" [[gnu::used]] inline int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                                           std::size_t size) {
    tumbledeep::Fuzz({reinterpret_cast<const char*>(data), size});
    return 0;
}
