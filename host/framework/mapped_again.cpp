#include "mapped_again.h"

#include "write.h"

namespace framework {

MappedAgain::MappedAgain(uint32_t kind, const platform::Database &database, io::Document document)
    : request_(kind, database, log_), document_(std::move(document)),
      outcome_(request_.map(document_.bgp.root(), native_.root()))
{
}

std::string MappedAgain::answer_to(platform::Tree response)
{
    platform::Tree answer;
    const uint32_t outcome = request_.answer(std::move(response), answer);
    if (outcome != VMF_RC_OK) return "refused: " + std::to_string(outcome);
    return io::write_tree(answer.root(), io::Secrets::shown);
}

}  // namespace framework
