#include <cstdio>

#include "app/ProcessMemory.h"
#include "ui/CVorl_ADVApp.h"

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const vorlan::CommandLine line = vorlan::readCommandLine(arguments);
    if (line.message.has_value()) {
        std::fputs(line.message->toLocal8Bit().constData(), line.status == 0 ? stdout : stderr);
        return line.status;
    }
    vorlan::keepFreedMemory();
    vorlan::CVorl_ADVApp application(argc, argv);
    application.start(line.workspace);
    return vorlan::CVorl_ADVApp::exec();
}
