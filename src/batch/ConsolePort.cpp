#include "batch/ConsolePort.h"

#include "batch/Interrupt.h"

namespace vorlan {

bool ConsolePort::takeRefused() {
    const bool said = refused_;
    refused_ = false;
    return said;
}

void ConsolePort::tell(const std::string& text) {
    clearLine();
    console_.complain(context_ + ": " + text);
}

bool ConsolePort::accept(const std::string& question) {
    tell(question + (accepts_ ? " OK" : " Cancel"));
    return accepts_;
}

bool ConsolePort::confirm(Question question) {
    // The one question whose answer an option decides; all others ask whether the user means what the recipe says.
    return question == Question::RepeatStages ? options_.repeatStages : true;
}

bool ConsolePort::retry(const std::string& text) {
    refuse(text);
    return false;
}

void ConsolePort::refuse(const std::string& text) {
    refused_ = true;
    tell(text);
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

void ConsolePort::breathe() {
    if (interrupted()) {
        throw Cancelled();
    }
}

void ConsolePort::show() {
    if (!options_.showProgress || calculation_.empty()) {
        return;
    }
    clearLine();
    console_.err << context_ << ": " << calculation_;
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
