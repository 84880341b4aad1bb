#include "batch/Interrupt.h"

#include <csignal>

namespace vorlan {

namespace {

// A signal handler can reach nothing else.
volatile std::sig_atomic_t pendingSignal = 0;

extern "C" void noteSignal(int signal) {
    pendingSignal = signal;
    std::signal(signal, SIG_DFL);
}

}  // namespace

void installInterruptHandler() {
    std::signal(SIGINT, noteSignal);
    std::signal(SIGTERM, noteSignal);
}

bool interrupted() {
    return pendingSignal != 0;
}

void dieOfInterrupt() {
    std::signal(pendingSignal, SIG_DFL);
    std::raise(pendingSignal);
}

}  // namespace vorlan
