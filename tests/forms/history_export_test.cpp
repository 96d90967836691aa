#include "history/history_export.h"

#include "print_qt.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace nimb::test
{
namespace
{

KeptMessage sample(const QString &text)
{
    return {.time = QDateTime(QDate(2026, 11, 21), QTime(14, 5, 9), QTimeZone::utc()),
            .isOwn = false,
            .address = QStringLiteral("10.0.0.2"),
            .writer = QStringLiteral("Ann <b>"),
            .workstation = QStringLiteral("PC"),
            .text = text};
}

TEST(HistoryExport, TheFormatIsThatOfTheNamesEnd)
{
    EXPECT_EQ(historyFormatOf("/a/b.HTML"), HistoryFormat::page);
    EXPECT_EQ(historyFormatOf("/a/b.htm"), HistoryFormat::page);
    EXPECT_EQ(historyFormatOf("/a/b.jsonl"), HistoryFormat::jsonLines);
    EXPECT_EQ(historyFormatOf("/a/b.txt"), HistoryFormat::text);
    EXPECT_EQ(historyFormatOf("/a/b"), HistoryFormat::text);
}

TEST(HistoryExport, NoLineOfAMessageLooksLikeAMessage)
{
    EXPECT_EQ(exported(HistoryFormat::text, sample("one\r\n2026-11-21 14:05:10 [Ann] Ben> two"), "Ann"),
              QByteArray("2026-11-21 14:05:09 [Ann] Ann <b>> one\n    2026-11-21 14:05:10 [Ann] Ben> two\n"));
}

TEST(HistoryExport, NothingInAPageIsMarkupButOurOwn)
{
    const QByteArray page = exported(HistoryFormat::page, sample("<script>alert(1)</script> & \"x\""), "<i>Ann</i>");
    EXPECT_EQ(
        page,
        QByteArray("<div><div class=\"head\">2026-11-21 14:05:09 [&lt;i&gt;Ann&lt;/i&gt;] Ann &lt;b&gt;</div>"
                   "<div class=\"text\">&lt;script&gt;alert(1)&lt;/script&gt; &amp; &quot;x&quot;</div></div>\n"));
    const QByteArray begin = exportBegin(HistoryFormat::page, "<History>");
    EXPECT_TRUE(begin.contains("<title>&lt;History&gt;</title>"));
    EXPECT_FALSE(begin.contains("<script"));
    EXPECT_EQ(exportEnd(HistoryFormat::page), QByteArray("</body></html>\n"));
}

TEST(HistoryExport, AMessageIsALineOfJson)
{
    EXPECT_EQ(exported(HistoryFormat::jsonLines, sample(QString::fromUtf8("Grüße\r\n\"x\"")), "Ann"),
              QByteArray("{\"address\":\"10.0.0.2\",\"conversation\":\"Ann\",\"own\":false,\"text\":\"Grüße\\n"
                         "\\\"x\\\"\",\"time\":\"2026-11-21T14:05:09.000Z\",\"workstation\":\"PC\",\"writer\":\"Ann "
                         "<b>\"}\n"));
}

} // namespace
} // namespace nimb::test
