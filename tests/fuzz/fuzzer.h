// What libFuzzer calls, and what it gives.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" {

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);
size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t most, unsigned seed);
size_t LLVMFuzzerCustomCrossOver(const uint8_t *a, size_t a_size, const uint8_t *b, size_t b_size, uint8_t *out,
                                 size_t most, unsigned seed);

// Its own change of bytes.
size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t most);

}  // extern "C"

namespace fuzz {

inline std::string_view text_of(const uint8_t *data, size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}

}  // namespace fuzz
