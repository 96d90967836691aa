#include "platform/desktop_appearance.h"

#include "session_bus.h"

#include <gmock/gmock.h>

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QTest>

#include <optional>

namespace nimb::test
{
namespace
{

using Groups = QMap<QString, QVariantMap>;
using Scheme = Appearance::Scheme;

const QString appearanceName = QStringLiteral("org.freedesktop.appearance");

/// The desktop's settings portal.
class SettingsPortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Groups settings;
    QStringList asked;

public Q_SLOTS:
    // NOLINTBEGIN: the names are the portal's
    QMap<QString, QVariantMap> ReadAll(const QStringList &groups)
    {
        asked = groups;
        return settings;
    }
    // NOLINTEND

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
};

class DesktopAppearanceTest : public testing::Test
{
protected:
    DesktopAppearanceTest()
    {
        qDBusRegisterMetaType<Groups>();
        here.emplace(QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("appearance here")));
    }
    ~DesktopAppearanceTest() override
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("appearance here"));
        QDBusConnection::disconnectFromBus(QStringLiteral("appearance portal"));
    }
    void startPortal()
    {
        QDBusConnection desktop = QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("appearance portal"));
        ASSERT_TRUE(desktop.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        ASSERT_TRUE(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    void listen()
    {
        appearance.emplace(*here);
        QObject::connect(&*appearance, &DesktopAppearance::changed, &*appearance,
                         [this](const Appearance &now) { heard.push_back(now); });
    }
    bool waitForHeard(std::size_t number)
    {
        return QTest::qWaitFor([&] { return heard.size() >= number; }, 30000);
    }
    void change(const QString &group, const char *key, uint value)
    {
        Q_EMIT portal.SettingChanged(group, QLatin1String(key), QDBusVariant(value));
    }

    SettingsPortal portal;
    std::optional<QDBusConnection> here;
    std::optional<DesktopAppearance> appearance;
    std::vector<Appearance> heard;

private:
    SessionBus m_bus;
};

TEST_F(DesktopAppearanceTest, AsksThePortalAndTellsWhatDiffers)
{
    portal.settings[appearanceName] = {{QStringLiteral("color-scheme"), QVariant::fromValue(uint(1))},
                                       {QStringLiteral("contrast"), QVariant::fromValue(uint(0))},
                                       {QStringLiteral("accent-color"), QStringLiteral("?")}};
    startPortal();
    listen();
    ASSERT_TRUE(waitForHeard(1));
    EXPECT_EQ(portal.asked, QStringList(appearanceName));
    EXPECT_EQ(heard.back(), (Appearance{Scheme::dark, false}));
}

TEST_F(DesktopAppearanceTest, FollowsEveryChange)
{
    startPortal();
    listen();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal.asked.isEmpty(); }, 30000));
    change(QStringLiteral("org.example"), "color-scheme", 1);
    change(appearanceName, "color-scheme", 2);
    change(appearanceName, "color-scheme", 2);
    change(appearanceName, "contrast", 1);
    change(appearanceName, "color-scheme", 7);
    ASSERT_TRUE(waitForHeard(3));
    EXPECT_EQ(heard, (std::vector<Appearance>{{Scheme::light, false}, {Scheme::light, true}, {Scheme::unsaid, true}}));
}

TEST_F(DesktopAppearanceTest, WithoutAPortalNothingIsSaidUntilThereIsOne)
{
    listen();
    startPortal();
    // The bus may not have heard yet that somebody listens.
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            change(appearanceName, "color-scheme", 1);
            return !heard.empty();
        },
        30000));
    EXPECT_EQ(heard, (std::vector<Appearance>{{Scheme::dark, false}}));
}

} // namespace
} // namespace nimb::test

#include "desktop_appearance_test.moc"
