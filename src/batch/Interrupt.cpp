#include "batch/Interrupt.h"

#include <csignal>

namespace vorlan {

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM};

// A signal handler can reach nothing else.
volatile std::sig_atomic_t pendingSignal = 0;

extern "C" void noteSignal(int signal) {
    pendingSignal = signal;
    std::signal(signal, SIG_DFL);
}

}  // namespace

InterruptWatch::InterruptWatch() {
    for (const int signal : kSignals) {
        if (std::signal(signal, noteSignal) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}

InterruptWatch::~InterruptWatch() {
    stopWatching();
}

void stopWatching() {
    for (const int signal : kSignals) {
        if (std::signal(signal, SIG_DFL) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}

bool interrupted() {
    return pendingSignal != 0;
}

void dieOfInterrupt() {
    std::signal(pendingSignal, SIG_DFL);
    std::raise(pendingSignal);
}

}  // namespace vorlan
