// Opens each argument as the program opens a link, with the desktop that it finds.
#include "platform/link_opener.h"

#include <QGuiApplication>
#include <QStringList>

int main(int argumentCount, char **arguments)
{
    int programNameAlone = 1;
    const QGuiApplication application(programNameAlone, arguments);
    nimb::DesktopLinkOpener opener;
    for (int i = 1; i < argumentCount; ++i)
        static_cast<void>(opener.open(QUrl(QString::fromLocal8Bit(arguments[i])), {})); // what is opened the tests see
}
