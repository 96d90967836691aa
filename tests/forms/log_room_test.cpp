// What the logs of all conversations hold together is bounded, too.
#include "base/limits.h"
#include "log/log_room.h"
#include "log/rich_text_log.h"

#include <gtest/gtest.h>

#include <QTextBlock>

#include <memory>
#include <vector>

using namespace nimb;

namespace
{

class LogRoomTest : public ::testing::Test
{
protected:
    RichTextLogEdit &makeLog(bool isSpared = false)
    {
        logs.push_back(std::make_unique<RichTextLogEdit>());
        room.join(*logs.back(), [isSpared] { return isSpared; });
        return *logs.back();
    }
    /// With nine tenths of what it may hold.
    void fill(RichTextLogEdit &log)
    {
        const QString rest = QString(7990, u'x') + QStringLiteral("\r\n");
        for (int i = 0; i < 450; ++i) {
            appendText(log, QStringLiteral("%1 ").arg(m_line++) + rest, 0);
            if (i % 50 == 0)
                log.writeGathered();
        }
        log.writeGathered();
    }
    double fullness() const
    {
        double sum = 0;
        for (const auto &log : logs)
            sum += log->fullness();
        return sum;
    }

    int m_line = 0;
    LogRoom room;
    std::vector<std::unique_ptr<RichTextLogEdit>> logs;
};

TEST_F(LogRoomTest, TheFullestLogLosesItsOldestLinesAndTheOthersKeepTheirs)
{
    RichTextLogEdit &small = makeLog();
    appendText(small, QStringLiteral("what Ann said\r\n"), 0);
    small.writeGathered();
    for (int window = 0; window < 8; ++window) {
        RichTextLogEdit &log = makeLog();
        fill(log);
        EXPECT_LE(fullness(), limits::fullLogs) << "after window " << window;
    }
    EXPECT_GT(fullness(), limits::fullLogs * 0.9) << "no more goes than has to";
    EXPECT_EQ(small.toPlainText(), QStringLiteral("what Ann said\n"));
    EXPECT_TRUE(logs.back()->toPlainText().contains(QStringLiteral("%1 ").arg(m_line - 1))) << "the newest line stays";
}

TEST_F(LogRoomTest, ASparedLogLosesNothingAsLongAsOthersHaveLines)
{
    RichTextLogEdit &friends = makeLog(true);
    fill(friends);
    const int lines = friends.document()->blockCount();
    for (int window = 0; window < 8; ++window)
        fill(makeLog());
    EXPECT_LE(fullness(), limits::fullLogs);
    EXPECT_EQ(friends.document()->blockCount(), lines);
    for (int window = 0; window < 7; ++window)
        fill(makeLog(true));
    EXPECT_LE(fullness(), limits::fullLogs);
    EXPECT_LT(friends.document()->blockCount(), lines) << "when nothing else is left it has a bound as well";
}

TEST_F(LogRoomTest, ALogThatHasGoneCountsNoLonger)
{
    for (int window = 0; window < 6; ++window) {
        RichTextLogEdit &log = makeLog();
        fill(log);
    }
    const int lines = logs.front()->document()->blockCount();
    logs.pop_back();
    RichTextLogEdit &another = makeLog();
    fill(another);
    EXPECT_EQ(logs.front()->document()->blockCount(), lines);
    EXPECT_GT(another.fullness(), 0.85);
}

} // namespace
