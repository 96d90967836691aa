#include "base/isolated.h"

#include <QCoreApplication>
#include <QVariant>

#include <gtest/gtest.h>

namespace nimb
{
namespace
{

TEST(Isolated, ALatinNameStaysWhatItIs)
{
    for (const char16_t *const name :
         {u"", u"Ann", u"Zo\u00EB & Co", u"\u0410\u043D\u043D\u0430", u"\u5B89 7", u"10.0.0.2"})
        EXPECT_EQ(isolated(QString::fromUtf16(name)), QString::fromUtf16(name));
}

TEST(Isolated, WhatIsWrittenFromTheRightTurnsNoSentence)
{
    EXPECT_EQ(isolated(QString::fromUtf16(u"\u05D3\u05E0\u05D4")),
              QString::fromUtf16(u"\u2068\u05D3\u05E0\u05D4\u2069"));
    EXPECT_EQ(isolated(QString::fromUtf16(u"Ann \u0645")), QString::fromUtf16(u"\u2068Ann \u0645\u2069"));
    EXPECT_EQ(isolated(QString::fromUtf16(u"\u0663")), QString::fromUtf16(u"\u2068\u0663\u2069")) << "Arabic digits";
    const QString adlam = QString::fromUcs4(U"\U0001E900");
    EXPECT_EQ(isolated(adlam), QChar(0x2068) + adlam + QChar(0x2069));
}

TEST(Isolated, WhereAllIsLaidOutFromTheRightALatinNameTurnsNoSentenceEither)
{
    // Of an application with windows this is a property that its class has.
    qApp->setProperty("layoutDirection", QVariant::fromValue(Qt::RightToLeft));
    EXPECT_EQ(isolated(QStringLiteral("Ann")), QString::fromUtf16(u"\u2068Ann\u2069"));
    EXPECT_EQ(isolated({}), QString());
    qApp->setProperty("layoutDirection", QVariant());
    EXPECT_EQ(isolated(QStringLiteral("Ann")), QStringLiteral("Ann"));
}

} // namespace
} // namespace nimb
