// The library at work, as a framework runs it: input and target are trees of the platform.
#pragma once

#include "contexts.h"
#include "peer.h"
#include "tree.h"

namespace bench {

// Every log test in place, both channels off.
class Mapped : public Peer {
public:
    Mapped(Way way, size_t neighbors);

    void work() override;  // ends the process if the mapping refuses
    size_t nodes_in() const override;
    size_t nodes_out() const override;
    std::string text() const override;

protected:
    platform::Tree &target() { return out_; }
    Way way() const { return way_; }

private:
    Way way_;
    platform::SystemDatabase database_;
    platform::Log log_;
    framework::Contexts contexts_;
    platform::Tree in_;
    platform::Tree out_;
};

}  // namespace bench
