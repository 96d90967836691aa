#include "desktop.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

int main(int argumentCount, char **arguments)
{
    testing::InitGoogleMock(&argumentCount, arguments);
    QCoreApplication application(argumentCount, arguments);
    // Taken over by the test framework; it starts nothing when the tests are only listed.
    testing::AddGlobalTestEnvironment(new nimb::test::Desktop);
    return RUN_ALL_TESTS();
}
