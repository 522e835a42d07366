#pragma once

namespace trips {

// Registers each trip as a test of its own.
void register_trips();

}  // namespace trips
