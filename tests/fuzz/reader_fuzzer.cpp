// Any text for a reader.
#include "fuzzer.h"
#include "reader_check.h"
#include "text_mutation.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::check_reader(fuzz::text_of(data, size), fuzz::tried_format, fuzz::other_format);
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t most, unsigned seed)
{
    return fuzz::mutate_document(data, size, most, seed, fuzz::tried_format);
}

extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t *a, size_t a_size, const uint8_t *b, size_t b_size,
                                            uint8_t *out, size_t most, unsigned seed)
{
    fuzz::Random random(seed);
    return fuzz::put(fuzz::cross_tokens(fuzz::text_of(a, a_size), fuzz::text_of(b, b_size), random), out, most);
}
