#include "platform/process_exit.h"

#include "print_qt.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace nimb::test
{
namespace
{

QString printedBy(const QStringList &arguments)
{
    QProcess helper;
    helper.start(PLATFORM_HELPER, arguments);
    EXPECT_TRUE(helper.waitForFinished(30000));
    EXPECT_EQ(helper.exitCode(), 5);
    return QString::fromUtf8(helper.readAllStandardOutput());
}

TEST(ProcessExit, CallsTheFunctionWhenTheProcessIsEndedFromTheMiddleOfItsWork)
{
    EXPECT_EQ(printedBy({"exit", "watched"}), "ending\n");
}

TEST(ProcessExit, CallsNothingOnceItIsGone)
{
    EXPECT_EQ(printedBy({"exit", "no longer watched"}), "");
}

} // namespace
} // namespace nimb::test
