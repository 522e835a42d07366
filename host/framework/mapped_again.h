// Another request, or another answer to the same one, to see what the mapping makes of it.
#pragma once

#include <string>

#include "document.h"
#include "request.h"

namespace framework {

class MappedAgain {
public:
    // `database` outlives this.
    MappedAgain(uint32_t kind, const platform::Database &database, io::Document document);

    uint32_t outcome() const { return outcome_; }
    const Datatree &native() const { return native_.root(); }

    // What a native response becomes, as plain text to compare. Once.
    std::string answer_to(platform::Tree response);

private:
    platform::Log log_;
    Request request_;
    io::Document document_;
    platform::Tree native_;
    uint32_t outcome_;
};

}  // namespace framework
