// For tests that need an event loop and no display.
#include <QCoreApplication>

#include <gmock/gmock.h>

int main(int argumentCount, char **arguments)
{
    testing::InitGoogleMock(&argumentCount, arguments);
    QCoreApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
