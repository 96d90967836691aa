#include "files/file_name.h"

#include "print_qt.h"

#include <QRegularExpression>

#include <gmock/gmock.h>

namespace nimb
{
namespace
{

TEST(CleanFileName, FitsIntoAFolderWithAllThatIsPutBehindIt)
{
    constexpr qsizetype longestOfSystems = 255, numberAndMark = 22; // ".0123456789abcdef.part"
    for (const char32_t c : {U'a', U'\u00E4', U'\u4E2D', U'\U0001F600'}) {
        const QString character = QString::fromUcs4(&c, 1);
        const QString clean = cleanFileName(character.repeated(300) + QStringLiteral(".tar.gz"));
        EXPECT_LE(clean.toUtf8().size() + numberAndMark, longestOfSystems) << character.toStdString();
        EXPECT_GT(clean.toUtf8().size(), 190) << "no shorter than it must be";
        EXPECT_TRUE(clean.endsWith(QStringLiteral(".gz")));
        EXPECT_TRUE(clean.startsWith(character.repeated(40)));
        EXPECT_FALSE(clean.contains(QChar::ReplacementCharacter));
        EXPECT_TRUE(clean.isValidUtf16());
    }
}

TEST(UnfinishedFileName, IsAnotherOneForEachSenderAndOffer)
{
    const Ipv4Address ann(10, 0, 0, 2), dan(10, 0, 0, 3);
    const QByteArray offer = "/0123456789abcdef0123456789abcdef/a.txt";
    const QByteArray alike = "/0123456700000000000000000000000/a.txt"; // the first digits of the token are the same
    const auto name = [](Ipv4Address sender, const QByteArray &path) {
        return unfinishedFileName(QStringLiteral("a.txt"), sender, path);
    };
    EXPECT_TRUE(
        QRegularExpression(QStringLiteral("^a\\.txt\\.[0-9a-f]{16}\\.part$")).match(name(ann, offer)).hasMatch())
        << name(ann, offer).toStdString();
    EXPECT_EQ(name(ann, offer), name(ann, "/0123456789abcdef0123456789abcdef/%61.txt"));
    EXPECT_NE(name(ann, offer), name(dan, offer));
    EXPECT_NE(name(ann, offer), name(ann, alike));
}

TEST(CleanFileName, LeavesAnOrdinaryNameAlone)
{
    for (const char *const name : {"Plan.pdf", "Über uns (2).txt", "日本語.tar.gz", "no suffix", "a.b.c", "😀.png",
                                   "common.txt", "console", "COM10.txt", "Lptx"})
        EXPECT_EQ(cleanFileName(QString::fromUtf8(name)), QString::fromUtf8(name));
}

TEST(CleanFileName, IsNeverAPath)
{
    EXPECT_EQ(cleanFileName(QStringLiteral("/etc/passwd")), QStringLiteral("passwd"));
    EXPECT_EQ(cleanFileName(QStringLiteral("..\\..\\boot.ini")), QStringLiteral("boot.ini"));
    EXPECT_EQ(cleanFileName(QStringLiteral("C:evil.txt")), QStringLiteral("C_evil.txt"));
    EXPECT_EQ(cleanFileName(QStringLiteral("..")), QStringLiteral("file"));
    EXPECT_EQ(cleanFileName(QStringLiteral("../")), QStringLiteral("file"));
    EXPECT_EQ(cleanFileName(QString()), QStringLiteral("file"));
}

TEST(CleanFileName, HidesNothingAndIsNotHidden)
{
    EXPECT_EQ(cleanFileName(QStringLiteral(".bashrc")), QStringLiteral("bashrc"));
    EXPECT_EQ(cleanFileName(QStringLiteral("photo\u202Egpj.exe")), QStringLiteral("photogpj.exe"));
    EXPECT_EQ(cleanFileName(QStringLiteral("a\u200B\u200Bb.txt")), QStringLiteral("ab.txt"));
    EXPECT_EQ(cleanFileName(QStringLiteral("a\nb\tc\x01.txt")), QStringLiteral("a b c .txt"));
    EXPECT_EQ(cleanFileName(QStringLiteral("a<b>\"c\"|d?*.txt")), QStringLiteral("a_b__c__d__.txt"));
    EXPECT_EQ(cleanFileName(QStringLiteral(" a.txt. . ")), QStringLiteral("a.txt"));
}

TEST(CleanFileName, IsNoDeviceOfWindows)
{
    EXPECT_EQ(cleanFileName(QStringLiteral("con")), QStringLiteral("_con"));
    EXPECT_EQ(cleanFileName(QStringLiteral("NUL.tar.gz")), QStringLiteral("_NUL.tar.gz"));
    EXPECT_EQ(cleanFileName(QStringLiteral("aux .txt")), QStringLiteral("_aux .txt"));
    EXPECT_EQ(cleanFileName(QStringLiteral("COM1")), QStringLiteral("_COM1"));
    EXPECT_EQ(cleanFileName(QStringLiteral("lpt9.log")), QStringLiteral("_lpt9.log"));
    EXPECT_EQ(cleanFileName(QStringLiteral("COM\u00B9.log")), QStringLiteral("_COM\u00B9.log"));
    EXPECT_EQ(cleanFileName(QStringLiteral("con.") + QString(196, u'a')), QStringLiteral("_con.") + QString(195, u'a'));
}

TEST(CleanFileName, KeepsTheSuffixOfALongName)
{
    EXPECT_EQ(cleanFileName(QString(300, u'a') + QStringLiteral(".pdf")), QString(196, u'a') + QStringLiteral(".pdf"));
    // Each is three bytes.
    EXPECT_EQ(cleanFileName(QString(300, u'日') + QStringLiteral(".pdf")), QString(76, u'日') + QStringLiteral(".pdf"));
    EXPECT_EQ(cleanFileName(QStringLiteral("a.") + QString(300, u'b')), QStringLiteral("a.") + QString(198, u'b'));
}

TEST(CleanFileName, NeverHoldsHalfACharacter)
{
    EXPECT_EQ(cleanFileName(QStringLiteral("a") + QChar(0xD83D)), QStringLiteral("a_"));
}

TEST(NumberedFileName, CountsBeforeTheSuffix)
{
    EXPECT_EQ(numberedFileName(QStringLiteral("Plan.pdf"), 1), QStringLiteral("Plan.pdf"));
    EXPECT_EQ(numberedFileName(QStringLiteral("Plan.pdf"), 2), QStringLiteral("Plan (2).pdf"));
    EXPECT_EQ(numberedFileName(QStringLiteral("Plan"), 12), QStringLiteral("Plan (12)"));
    EXPECT_EQ(numberedFileName(QStringLiteral("5 %2.pdf"), 2), QStringLiteral("5 %2 (2).pdf"));
    EXPECT_EQ(numberedFileName(QStringLiteral("See you. Bye for now then"), 2),
              QStringLiteral("See you. Bye for now then (2)"));
}

TEST(FileSizeText, CountsInThousands)
{
    EXPECT_EQ(fileSizeText(0), QStringLiteral("0 bytes"));
    EXPECT_EQ(fileSizeText(1), QStringLiteral("1 byte"));
    EXPECT_EQ(fileSizeText(999), QStringLiteral("999 bytes"));
    EXPECT_EQ(fileSizeText(1000), QStringLiteral("1.0 kB"));
    EXPECT_EQ(fileSizeText(2'345'678), QStringLiteral("2.3 MB"));
    EXPECT_EQ(fileSizeText(999'960), QStringLiteral("1.0 MB"));
    EXPECT_EQ(fileSizeText(20'000'000'000), QStringLiteral("20.0 GB"));
    EXPECT_EQ(fileSizeText(5'000'000'000'000'000), QStringLiteral("5000.0 TB"));
}

TEST(DecodedPart, UndoesEscapesAndRefusesBrokenOnes)
{
    EXPECT_EQ(decodedPart("a%20b%2e%C3%9c"), std::optional(QByteArray("a b.\xC3\x9C")));
    EXPECT_EQ(decodedPart("%"), std::nullopt);
    EXPECT_EQ(decodedPart("%2"), std::nullopt);
    EXPECT_EQ(decodedPart("%2g"), std::nullopt);
    EXPECT_EQ(decodedPart("%-1"), std::nullopt);
}

TEST(PictureName, IsToldByTheSuffix)
{
    EXPECT_TRUE(isPictureName(QStringLiteral("a.PNG")));
    EXPECT_TRUE(isPictureName(QStringLiteral("b.jpeg")));
    EXPECT_FALSE(isPictureName(QStringLiteral("png")));
    EXPECT_FALSE(isPictureName(QStringLiteral("a.svg")));
}

} // namespace
} // namespace nimb
