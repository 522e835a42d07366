#include "handlers.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "handler_sources.h"

namespace explain {

namespace {

std::string_view find_source(std::span<const HandlerSource> handlers, std::string_view symbol)
{
    const auto found = std::find_if(handlers.begin(), handlers.end(),
                                    [symbol](const HandlerSource &handler) { return handler.symbol == symbol; });
    return found != handlers.end() ? found->source : std::string_view();
}

std::string_view source_in_library(std::string_view symbol)
{
    const std::string_view strong = find_source(strong_handlers(), symbol);
    return !strong.empty() ? strong : find_source(weak_handlers(), symbol);
}

void *address_of(const std::string &symbol)
{
    void *address = dlsym(RTLD_DEFAULT, symbol.c_str());
    if (address == nullptr) throw std::runtime_error("the mapping library has no " + symbol);
    return address;
}

std::string file_of(const void *address)
{
    Dl_info info = {};
    if (dladdr(address, &info) == 0 || info.dli_fname == nullptr) return {};
    return info.dli_fname;
}

}  // namespace

Handler find_handler(std::string_view symbol)
{
    const std::string name(symbol);
    const void *answering = address_of(name);
    const void *generated = address_of("__" + name);
    const std::string file = file_of(answering);
    // No program takes the place of the generated default itself: nothing calls it by that name.
    if (file != file_of(generated)) return {name, file, true, false};
    return {name, std::string(source_in_library(symbol)), answering != generated, true};
}

}  // namespace explain
