#pragma once

namespace vorlan {

/// As long as it lives the first SIGINT or SIGTERM only asks the running calculation to stop; a second one ends the
/// program. A signal that was ignored stays ignored. One at a time.
class InterruptWatch {
  public:
    InterruptWatch();
    ~InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;
};

/// Whether the user asked the program to stop.
bool interrupted();

/// Ends the process by the signal that asked for it, as its caller expects.
void dieOfInterrupt();

}  // namespace vorlan
