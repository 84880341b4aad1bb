#include <csignal>
#include <cstdio>

#include "app/ProcessMemory.h"
#include "ui/CVorl_ADVApp.h"

namespace {

constexpr int kWrongCommandLine = 2;

void print(const QString& text, FILE* stream) {
    std::fputs(text.toLocal8Bit().constData(), stream);
}

}  // namespace

int main(int argc, char** argv) {
    QStringList given;
    for (int i = 0; i < argc; ++i) {
        given.append(QString::fromLocal8Bit(argv[i]));
    }
    if (const std::optional<QString> text = vorlan::requestedText(given)) {
        print(*text, stdout);
        return 0;
    }
    vorlan::keepFreedMemory();
    // A file that may not grow further is told like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    // Takes its own options out of the arguments.
    vorlan::CVorl_ADVApp application(argc, argv);
    const vorlan::CommandLine line = vorlan::readCommandLine(vorlan::CVorl_ADVApp::arguments());
    if (line.refusal.has_value()) {
        print(*line.refusal, stderr);
        return kWrongCommandLine;
    }
    application.start(line.workspace);
    return vorlan::CVorl_ADVApp::exec();
}
