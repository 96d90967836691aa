#include "desktop.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace
{

/// A Windows that no test before has touched.
class FreshWindows : public testing::Environment
{
public:
    void SetUp() override
    {
        qputenv("WINEPREFIX", m_folder.path().toUtf8() + "/wine");
        ASSERT_EQ(QProcess::execute(QStringLiteral(UNDER_WINE), {"wineboot", "--init"}), 0) << "Wine does not start";
        // Otherwise a program that crashed stands there as if it ran, until somebody closes the box that says so.
        ASSERT_EQ(QProcess::execute(QStringLiteral(UNDER_WINE),
                                    {"reg", "add", R"(HKCU\Software\Wine\WineDbg)", "/v", "ShowCrashDialog", "/t",
                                     "REG_DWORD", "/d", "0", "/f"}),
                  0);
    }
    void TearDown() override { QProcess::execute(QStringLiteral("wineserver"), {"-k", "-w"}); }

private:
    QTemporaryDir m_folder;
};

} // namespace

int main(int argumentCount, char **arguments)
{
    testing::InitGoogleMock(&argumentCount, arguments);
    QCoreApplication application(argumentCount, arguments);
    // Taken over by the test framework, which starts them in this order and nothing when the tests are only listed.
    testing::AddGlobalTestEnvironment(new nimb::test::Desktop);
    testing::AddGlobalTestEnvironment(new FreshWindows);
    return RUN_ALL_TESTS();
}
