#include <csignal>
#include <iostream>

#include "app/ProcessMemory.h"
#include "batch/BatchProgram.h"
#include "batch/Interrupt.h"
#include "model/Index.h"
#include "recipes/RunError.h"

int main(int argc, char** argv) {
    vorlan::keepFreedMemory();
    // A file that may not grow further is told like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    const int status = vorlan::runBatch({argv + 1, argv + argc}, std::cout, std::cerr);
    if (status == asInt(vorlan::ExitStatus::Interrupted)) {
        vorlan::dieOfInterrupt();
    }
    return status;
}
