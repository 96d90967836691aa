#include "conversation/message_text.h"

#include <gtest/gtest.h>

namespace nimb
{
namespace
{

TEST(MessageText, TrailingSpacesAndBreaksGoInAnyMixture)
{
    EXPECT_EQ(TrimTrailingBreaks(QStringLiteral("  hello\r\n \r\n  ")), QStringLiteral("  hello"));
    EXPECT_EQ(TrimTrailingBreaks(QStringLiteral(" \r\n ")), QString());
    EXPECT_EQ(TrimTrailingBreaks(QString()), QString());
}

TEST(MessageText, LeadingSpacesAndBreaksGoInAnyMixture)
{
    EXPECT_EQ(TrimLeadingBreaks(QStringLiteral(" \r\n  \r\nhello  ")), QStringLiteral("hello  "));
    EXPECT_EQ(TrimLeadingBreaks(QStringLiteral("\r\n")), QString());
}

TEST(MessageText, BreaksAndBlanksInsideStay)
{
    EXPECT_EQ(TrimLeadingBreaks(TrimTrailingBreaks(QStringLiteral(" a  b\r\n\r\nc "))),
              QStringLiteral("a  b\r\n\r\nc"));
}

TEST(MessageText, OnlySpacesAndWholeBreaksAreTrimmed)
{
    EXPECT_EQ(TrimTrailingBreaks(QStringLiteral("a\t")), QStringLiteral("a\t"));
    EXPECT_EQ(TrimTrailingBreaks(QStringLiteral("a\n")), QStringLiteral("a\n"));
    EXPECT_EQ(TrimLeadingBreaks(QStringLiteral("\na")), QStringLiteral("\na"));
}

} // namespace
} // namespace nimb
