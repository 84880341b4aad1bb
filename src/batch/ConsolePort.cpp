#include "batch/ConsolePort.h"

#include "batch/Interrupt.h"

namespace vorlan {

void ConsolePort::say(const std::string& line) {
    clearLine();
    console_.complain(line);
}

bool ConsolePort::stopped() const {
    return interrupted();
}

void ConsolePort::beginRun(Calculation) {
    calculation_.clear();
    percent_ = -1;
}

void ConsolePort::endRun() {
    clearLine();
}

void ConsolePort::status(const std::string& text) {
    // The texts end as a status bar in front of a bar wants them.
    calculation_ = text.substr(0, text.find_last_not_of(": ") + 1);
    show();
}

void ConsolePort::position(int percent) {
    if (percent != percent_) {
        percent_ = percent;
        show();
    }
}

void ConsolePort::pump() {
    if (stopped()) {
        throw Cancelled();
    }
}

void ConsolePort::show() {
    if (!options_.showProgress || calculation_.empty()) {
        return;
    }
    clearLine();
    console_.err << context() << ": " << calculation_;
    if (percent_ >= 0) {
        console_.err << ' ' << percent_ << " %";
    }
    if (console_.errIsTerminal) {
        lineShown_ = true;
    } else {
        console_.err << '\n';
    }
    console_.err.flush();
}

void ConsolePort::clearLine() {
    if (lineShown_) {
        console_.err << "\r\033[K" << std::flush;
        lineShown_ = false;
    }
}

}  // namespace vorlan
