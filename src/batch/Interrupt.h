#pragma once

namespace vorlan {

/// From now on the first SIGINT or SIGTERM only asks the running calculation to stop; a second one ends the program.
void installInterruptHandler();

/// Whether the user asked the program to stop.
bool interrupted();

/// Ends the process by the signal that asked for it, as its caller expects.
void dieOfInterrupt();

}  // namespace vorlan
