// How the fuzzers of the mapping change what they try.
#include "fuzzer.h"
#include "mapping_input.h"

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t most, unsigned seed)
{
    return fuzz::mutate_text(data, size, most, seed, fuzz::mapping_choice);
}

extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t *a, size_t a_size, const uint8_t *b, size_t b_size,
                                            uint8_t *out, size_t most, unsigned seed)
{
    return fuzz::cross_texts(fuzz::text_of(a, a_size), fuzz::text_of(b, b_size), out, most, seed);
}
