#pragma once

namespace vorlan {

/// As long as it lives the first SIGINT or SIGTERM only asks the running calculation to stop; a second one ends the
/// program. A signal that was ignored stays ignored. One at a time. Not for waiting on files: a folder of another
/// machine that does not answer lets no handler run, only what ends the program.
class InterruptWatch {
  public:
    InterruptWatch();
    ~InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;
};

/// Ends the program by SIGINT and SIGTERM again: for a process that begins within a watch. What was ignored stays so.
void stopWatching();

/// Whether the user asked the program to stop.
bool interrupted();

/// Ends the process by the signal that asked for it, as its caller expects.
void dieOfInterrupt();

}  // namespace vorlan
