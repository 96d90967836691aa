// What an administrator gives to everybody on a machine.
#include "store/site_defaults.h"

#include "print_qt.h"
#include "store/sqlite_settings_store.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;

class SiteDefaultsTest : public testing::Test
{
protected:
    QString put(const QByteArray &text, const char *folder = "xdg") const
    {
        const QString place = m_base.filePath(QLatin1String(folder));
        QDir().mkpath(place + QStringLiteral("/nimb-chat"));
        QFile file(place + QStringLiteral("/nimb-chat/defaults.ini"));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(text);
        return place;
    }
    SiteDefaults read(const QByteArray &text) const { return readSiteDefaults({put(text)}); }
    static QString value(const SiteDefaults &defaults, const char *section, const char *key)
    {
        return defaults.values.value({QLatin1String(section), QLatin1String(key)}, QStringLiteral("(none)"));
    }
    static std::vector<std::string> faults(const SiteDefaults &defaults)
    {
        std::vector<std::string> sentences;
        for (const QString &fault : defaults.faults)
            sentences.push_back(fault.toStdString());
        return sentences;
    }

    const QTemporaryDir m_base;
};

TEST_F(SiteDefaultsTest, AreKeysWithTheirValuesInSections)
{
    const SiteDefaults defaults
        = read("# of the house\n; and nothing else\n\n[Settings]\nUDPPort = 6000\r\n"
               "PersonalizedState1=4In a meeting = yes\n[Options]\nKeepHistory=year\nNotifyWin=0\n"
               "[Users]\nIP1=10.0.0.2\nNn1=Porter\xC3\xA9\nWs1=GATE\n");
    EXPECT_THAT(faults(defaults), IsEmpty());
    EXPECT_EQ(value(defaults, "Settings", "UDPPort"), QStringLiteral("6000"));
    EXPECT_EQ(value(defaults, "Settings", "PersonalizedState1"), QStringLiteral("4In a meeting = yes"));
    EXPECT_EQ(value(defaults, "Options", "KeepHistory"), QStringLiteral("year"));
    EXPECT_EQ(value(defaults, "Options", "NotifyWin"), QStringLiteral("0"));
    EXPECT_EQ(value(defaults, "Users", "Nn1"), QStringLiteral("Porter\u00E9"));
    EXPECT_EQ(defaults.values.size(), 7);
}

TEST_F(SiteDefaultsTest, NameTheLinesThatSayNothingAndTakeTheOthers)
{
    const SiteDefaults defaults
        = read("UDPPort=1\n[Settings]\nnonsense\n=6\nUDPPort=6000\nUdpport=7\n[Options]\nUDPPort=8\n");
    EXPECT_THAT(faults(defaults),
                ElementsAre(EndsWith("defaults.ini, line 1: there is no key \"UDPPort\" in the section \"\""),
                            EndsWith("defaults.ini, line 3: it is neither a section nor a key with its value"),
                            EndsWith("defaults.ini, line 4: it is neither a section nor a key with its value"),
                            EndsWith("defaults.ini, line 6: there is no key \"Udpport\" in the section \"Settings\""),
                            EndsWith("defaults.ini, line 8: there is no key \"UDPPort\" in the section \"Options\"")));
    EXPECT_EQ(value(defaults, "Settings", "UDPPort"), QStringLiteral("6000"));
}

TEST_F(SiteDefaultsTest, CountManyFaultyLines)
{
    const SiteDefaults defaults = read(QByteArray("x\n").repeated(100));
    EXPECT_THAT(defaults.faults, SizeIs(21));
    EXPECT_THAT(faults(defaults).back(), EndsWith("defaults.ini: further lines that say nothing: 80"));
}

TEST_F(SiteDefaultsTest, OfAFileThatIsNoTextNothingIsTaken)
{
    EXPECT_THAT(faults(read("[Settings]\nUDPPort=6000\n\xFF\xFE\n")),
                ElementsAre(EndsWith("cannot be read: it is not written in UTF-8.")));
    EXPECT_THAT(faults(read(QByteArray("#").repeated(1024 * 1024 + 1))), ElementsAre(EndsWith("it is too large.")));
}

TEST_F(SiteDefaultsTest, TheFirstFolderThatHasThemCounts)
{
    const QString first = put("[Settings]\nUDPPort=6001\n", "first"),
                  second = put("[Settings]\nUDPPort=6002\n", "second");
    EXPECT_EQ(value(readSiteDefaults({m_base.filePath("empty"), first, second}), "Settings", "UDPPort"),
              QStringLiteral("6001"));
    EXPECT_TRUE(readSiteDefaults({m_base.filePath("empty")}).values.isEmpty());
}

TEST_F(SiteDefaultsTest, TheStoreGivesThemForWhatTheUserHasNotSetAndKeepsOnlyWhatDiffers)
{
    const QString section = QStringLiteral("Options"), key = QStringLiteral("LiveType"),
                  other = QStringLiteral("NotifyWin");
    const SiteDefaults defaults = read("[Options]\nLiveType=0\nNotifyWin=0\n[Users]\nIP1=10.0.0.2\n");
    {
        SqliteSettingsStore store(m_base.filePath("profile"));
        store.setDefaults(defaults.values);
        EXPECT_EQ(store.read(section, key, QStringLiteral("-1")), QStringLiteral("0"));
        EXPECT_EQ(store.read(section, QStringLiteral("BuzzLocal"), QStringLiteral("-1")), QStringLiteral("-1"));
        store.write(section, key, QStringLiteral("0"));
        store.write(section, other, QStringLiteral("-1"));
        store.write(QStringLiteral("Users"), QStringLiteral("IP1"), QStringLiteral("10.0.0.2"));
        EXPECT_EQ(store.save(), std::nullopt);
    }
    SqliteSettingsStore later(m_base.filePath("profile"));
    EXPECT_EQ(later.read(section, key, QStringLiteral("not stored")), QStringLiteral("not stored"));
    EXPECT_EQ(later.read(section, other, QStringLiteral("not stored")), QStringLiteral("-1"));
    EXPECT_EQ(later.read(QStringLiteral("Users"), QStringLiteral("IP1"), {}), QStringLiteral("10.0.0.2"));
    later.setDefaults(defaults.values);
    EXPECT_EQ(later.read(section, other, {}), QStringLiteral("-1")) << "the user has set it";
    later.write(section, other, QStringLiteral("0"));
    EXPECT_EQ(later.save(), std::nullopt);
    EXPECT_EQ(later.read(section, other, {}), QStringLiteral("0")) << "he has set it back";
}

} // namespace
} // namespace nimb::test
