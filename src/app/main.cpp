// Sub Main: the program's entry.
#include "app/program.h"
#include "platform/command_line.h"

#include <QApplication>
#include <QLibraryInfo>

int main(int argc, char *argv[])
{
    const QString commandLine = nimb::commandLineWords(argc, argv).join(QLatin1Char(' '));
    // Qt would take words such as -style for itself, but every word is part of the nickname.
    int programNameAlone = 1;
    QApplication application(programNameAlone, argv);
    QCoreApplication::setApplicationName(QStringLiteral("NIMB-Chat"));
    QCoreApplication::setApplicationVersion(QStringLiteral(NIMB_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral(NIMB_APPLICATION_ID));
    // Windows come and go; only the main window's unloading ends the program.
    QGuiApplication::setQuitOnLastWindowClosed(false);

    nimb::Program program(nimb::Environment::fromSystem());
    return program.run(commandLine);
}
