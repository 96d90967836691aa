// For tests that drive real windows; without a display of their own they are drawn into memory.
#include <QApplication>

#include <gmock/gmock.h>

int main(int argumentCount, char **arguments)
{
    testing::InitGoogleMock(&argumentCount, arguments);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argumentCount, arguments);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
