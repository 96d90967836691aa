// The tips that ship with the program.
#include <gmock/gmock.h>

#include <QFile>
#include <QSet>
#include <QString>
#include <QStringList>

namespace nimb
{
namespace
{

class ProgramTips : public testing::Test
{
protected:
    void SetUp() override
    {
        QFile file(QStringLiteral(TIP_FILE));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.errorString().toStdString();
        bytes = file.readAll();
        tips = QString::fromUtf8(bytes).split(QLatin1Char('\n'));
        ASSERT_EQ(tips.takeLast(), QString()) << "the last line ends too";
    }

    QByteArray bytes;
    QStringList tips;
};

TEST_F(ProgramTips, AreAtLeastTwentyFive)
{
    EXPECT_GE(tips.size(), 25);
    EXPECT_EQ(QSet<QString>(tips.cbegin(), tips.cend()).size(), tips.size()) << "no tip is told twice";
}

TEST_F(ProgramTips, ArePlainAsciiWithoutByteOrderMarkOrCarriageReturn)
{
    for (const char byte : bytes)
        ASSERT_TRUE(byte == '\n' || (byte >= ' ' && byte <= '~')) << "byte " << int(byte);
}

TEST_F(ProgramTips, EachFitsTheDialog)
{
    for (const QString &tip : tips) {
        EXPECT_FALSE(tip.trimmed().isEmpty());
        EXPECT_EQ(tip, tip.trimmed());
        EXPECT_LE(tip.size(), 300) << tip.toStdString();
        EXPECT_EQ(tip.count(QLatin1Char('"')) % 2, 0) << "an open quotation: " << tip.toStdString();
        EXPECT_FALSE(tip.startsWith(QLatin1String("||")) || tip.endsWith(QLatin1String("||"))) << tip.toStdString();
    }
}

TEST_F(ProgramTips, SomeHaveSeveralLinesAndSomeHaveCommas)
{
    EXPECT_GE(tips.filter(QStringLiteral("||")).size(), 3);
    EXPECT_GE(tips.filter(QStringLiteral(",")).size(), 3);
}

} // namespace
} // namespace nimb
