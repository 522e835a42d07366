// The words of RequestContext and MapContext by name, so that a test can set them and say which of them changed.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "vmf_map_types.h"

namespace support {

// Sets a word by its name; false if there is none of that name.
bool set_word(const std::string &name, uint32_t value, RequestContext &request, MapContext &run);

// All words by name.
std::map<std::string, uint32_t> words_of(const RequestContext &request, const MapContext &run);

}  // namespace support
