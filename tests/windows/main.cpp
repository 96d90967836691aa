#include "desktop.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace
{

/// As Windows stores it: the height in pixels, four numbers that are 0, the weight, eight bytes of which one says "any
/// letters", and the name with blanks to its end.
QByteArray logicalFont(QStringView name, qint32 pixels)
{
    QByteArray font;
    for (const qint32 number : {-pixels, 0, 0, 0, 400}) {
        for (int shift = 0; shift < 32; shift += 8)
            font += static_cast<char>(number >> shift);
    }
    font += QByteArray("\0\0\0\1\0\0\0\0", 8);
    for (const QChar letter : name) {
        font += static_cast<char>(letter.cell());
        font += static_cast<char>(letter.row());
    }
    constexpr qsizetype size = 92;
    return font.leftJustified(size, '\0');
}

bool run(const QStringList &command)
{
    return QProcess::execute(QStringLiteral(UNDER_WINE), command) == 0;
}

/// A Windows that no test before has touched.
class FreshWindows : public testing::Environment
{
public:
    void SetUp() override
    {
        qputenv("WINEPREFIX", m_folder.path().toUtf8() + "/wine");
        ASSERT_TRUE(run({"wineboot", "--init"})) << "Wine does not start";
        // Otherwise a program that crashed stands there as if it ran, until somebody closes the box that says so.
        ASSERT_TRUE(run({"reg", "add", R"(HKCU\Software\Wine\WineDbg)", "/v", "ShowCrashDialog", "/t", "REG_DWORD",
                         "/d", "0", "/f"}));
        // The font of the other desktop, so that what is clicked on stands where it stands there.
        ASSERT_TRUE(run({"reg", "add", R"(HKCU\Control Panel\Desktop\WindowMetrics)", "/v", "MessageFont", "/t",
                         "REG_BINARY", "/d", QString::fromLatin1(logicalFont(u"DejaVu Sans", 12).toHex()), "/f"}));
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
