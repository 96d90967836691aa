#include "doctor/report.h"

#include <gmock/gmock.h>

#include <QDateTime>

namespace nimb::test
{
namespace
{

using enum TracedDatagram::Direction;

TracedDatagram datagram(TracedDatagram::Direction direction, std::string bytes)
{
    const QDateTime time(QDate(2026, 11, 22), QTime(14, 5, 9, 120));
    return {.time = std::chrono::system_clock::time_point(std::chrono::milliseconds(time.toMSecsSinceEpoch())),
            .direction = direction,
            .peer = Ipv4Address(10, 0, 0, 2),
            .size = bytes.size(),
            .beginning = std::move(bytes)};
}

std::string lineOf(const std::string &bytes, bool withTexts)
{
    const TraceLine line = traceLine(datagram(in, bytes), withTexts);
    return (line.kind + u'|' + line.text).toStdString();
}

TEST(TraceLine, HasTimeWayAddressAndSize)
{
    const TraceLine line = traceLine(datagram(out, "?ONLINE 10.0.0.1 HERE Me"), false);
    EXPECT_EQ(line.time, QStringLiteral("14:05:09.120"));
    EXPECT_EQ(line.direction, QStringLiteral("out"));
    EXPECT_EQ(line.address, QStringLiteral("10.0.0.2"));
    EXPECT_EQ(line.size, QStringLiteral("24"));
    EXPECT_EQ(line.kind, QStringLiteral("?ONLINE"));
    EXPECT_EQ(line.text, QStringLiteral("?ONLINE 10.0.0.1 HERE Me"));
    EXPECT_EQ(traceLine(datagram(in, "!BUZZ"), false).direction, QStringLiteral("in"));
}

TEST(TraceLine, LeavesOutWhatPeopleWroteUnlessItIsWanted)
{
    EXPECT_EQ(lineOf("-the secret", false), "private message|");
    EXPECT_EQ(lineOf("-the secret", true), "private message|-the secret");
    EXPECT_EQ(lineOf("+10.0.0.1 #1 the secret", false), "conference message|");
    EXPECT_EQ(lineOf("!LIVETYPE the secret", false), "!LIVETYPE|");
    EXPECT_EQ(lineOf("!STATUS PERSONALIZED the secret", false), "!STATUS|");
    EXPECT_EQ(lineOf("!SECRET command", false), "unknown command|");
    EXPECT_EQ(lineOf("+hello the secret", false), "incomplete|");
    EXPECT_EQ(lineOf("secret", false), "no command|");
    EXPECT_EQ(lineOf("secret", true), "no command|secret");
    EXPECT_EQ(lineOf("?CONF INVITE #1", false), "?CONF|?CONF INVITE #1");
}

TEST(TraceLine, ShowsNoPicturesAndForgesNoLine)
{
    EXPECT_EQ(lineOf("!AVATARBODY \x01\x02\x03", true), "!AVATARBODY|");
    EXPECT_EQ(lineOf("-one\r\ntwo\tthree", true), "private message|-one two three");
}

TEST(Report, HoldsFindingsDropsAndDatagrams)
{
    const std::vector<Finding> findings = {
        {Check::network, Verdict::fine, QStringLiteral("Connected.")},
        {Check::firewall, Verdict::wrong, QStringLiteral("A firewall."), QStringLiteral("Open it.")},
        {Check::contact, Verdict::doubtful, QStringLiteral("Nobody.")},
    };
    EXPECT_EQ(reportText(findings, QStringLiteral("Incomplete commands: 2"), {traceLine(datagram(in, "!BUZZ"), false)}),
              QStringLiteral("[fine] Connected.\n"
                             "[WRONG] A firewall.\n"
                             "    Open it.\n"
                             "[doubtful] Nobody.\n"
                             "\n"
                             "Dropped since the start:\n"
                             "Incomplete commands: 2\n"
                             "\n"
                             "The latest datagrams:\n"
                             "14:05:09.120\tin\t10.0.0.2\t5\t!BUZZ\t!BUZZ\n"));
    EXPECT_EQ(reportText({}, {}, {}), QStringLiteral("\nDropped since the start:\nnothing\n\nThe latest datagrams:\n"));
}

TEST(Report, AsJsonIsForPrograms)
{
    EXPECT_EQ(reportJson({{Check::ownAddress, Verdict::doubtful, QStringLiteral("So \"so\"."), QStringLiteral("Do.")}},
                         Verdict::doubtful),
              QByteArray("{\n"
                         "    \"checks\": [\n"
                         "        {\n"
                         "            \"advice\": \"Do.\",\n"
                         "            \"check\": \"ownAddress\",\n"
                         "            \"sentence\": \"So \\\"so\\\".\",\n"
                         "            \"verdict\": \"doubtful\"\n"
                         "        }\n"
                         "    ],\n"
                         "    \"verdict\": \"doubtful\"\n"
                         "}\n"));
}

} // namespace
} // namespace nimb::test
