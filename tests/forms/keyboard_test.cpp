// What every window owes to those who work without a mouse or without seeing.
#include "keyboard.h"
#include "real_windows.h"

#include "welcome/frmLogin.h"

#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include <set>

namespace nimb::test
{
namespace
{

using testing::IsEmpty;

/// Makes windows, each known by its object name, and shows them.
class Keyboard : public testing::TestWithParam<const char *>
{
protected:
    Keyboard() { windows.settleStart({"10.0.0.2", "10.0.0.3"}); }

    QWidget &shown()
    {
        const QLatin1String name(GetParam());
        open(name);
        QCoreApplication::processEvents();
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == name && window->isVisible())
                return *window;
        }
        qFatal("%s is not shown", GetParam());
    }

private:
    void open(QLatin1String name)
    {
        windows.click(0);
        if (name == QLatin1String("frmPrivate"))
            windows.doubleClick(0);
        else if (name == QLatin1String("frmConference"))
            host();
        else if (name == QLatin1String("frmConfInvitations"))
            windows.arrive("10.0.0.2", "?CONF INVITE #3");
        else if (name == QLatin1String("frmLogin"))
            login.emplace(engineOfLogin, windows.prompts), login->show();
        else if (name == QLatin1String("font_dialog"))
            openFonts();
        else if (const char *const entry = entryFor(name))
            windows.entry(entry).trigger();
    }
    static const char *entryFor(QLatin1String window)
    {
        constexpr std::pair<const char *, const char *> entries[] = {
            {"frmNetworkscan", "mnuNetworkscan"},  {"frmAddUser", "mnuAddUser"},      {"frmOptions", "mnuToolsOptions"},
            {"frmAbout", "mnuHelpAbout"},          {"frmInvite", "mnuinviteuser"},    {"frmTipOfTheDay", "mnuTOTD"},
            {"frmSendContact", "mnusendcontacts"}, {"frmDoctor", "mnuNetworkDoctor"}, {"frmShortcuts", "mnuShortcuts"},
            {"frmTransfers", "mnuTransfers"},
        };
        for (const auto &[name, entry] : entries) {
            if (window == QLatin1String(name))
                return entry;
        }
        return nullptr;
    }
    void openFonts()
    {
        windows.entry("mnuToolsOptions").trigger();
        windows.main().findChild<QPushButton *>(QStringLiteral("font_btn"))->click();
    }
    void host()
    {
        windows.entry("mnuCreateNewConf").trigger();
        windows.entry("mnuInvite2Conf1").trigger();
        windows.arrive("10.0.0.2", "!CONF INVITE #1 AGREE");
    }

protected:
    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}};

private:
    Login engineOfLogin{windows.common, windows.settings, windows.socket};
    std::optional<frmLogin> login;
};

/// Those that the Tab key must reach: of option buttons that exclude each other one is enough.
std::set<std::string> controlsOf(QWidget &window)
{
    std::set<std::string> names;
    for (const QWidget *const control : window.findChildren<QWidget *>()) {
        if (control->window() != &window || !(control->focusPolicy() & Qt::TabFocus) || !control->isEnabled()
            || !control->isVisibleTo(&window) || control->focusProxy())
            continue;
        const auto *const option = qobject_cast<const QRadioButton *>(control);
        if (control->objectName().isEmpty() || control->objectName().startsWith(QLatin1String("qt_"))
            || (option && !option->isChecked()))
            continue;
        names.insert(control->objectName().toStdString());
    }
    return names;
}

TEST_P(Keyboard, NoTwoControlsShareAnAccessKey)
{
    QWidget &window = shown();
    std::vector<std::string> keys = accessKeys(window);
    if (const auto *const bar = window.findChild<QMenuBar *>()) {
        for (const QAction *const menu : bar->actions())
            keys.push_back(QKeySequence::mnemonic(menu->text()).toString(QKeySequence::PortableText).toStdString());
    }
    std::set<std::string> once;
    for (const std::string &key : keys)
        EXPECT_TRUE(once.insert(key).second) << "two of " << key;
}

TEST_P(Keyboard, TheTabKeyReachesEveryControlAndIsCaughtByNone)
{
    QWidget &window = shown();
    const std::vector<std::string> stops = tabStops(window);
    for (const std::string &name : controlsOf(window))
        EXPECT_THAT(stops, testing::Contains(name));
    ASSERT_LT(stops.size(), 100U) << "the round does not end";
}

TEST_P(Keyboard, EveryControlHasANameForThoseWhoDoNotSeeIt)
{
    EXPECT_THAT(withoutAccessibleName(shown()), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Windows, Keyboard,
                         testing::Values("frmMain", "frmLogin", "frmPrivate", "frmConference", "frmConfInvitations",
                                         "frmOptions", "font_dialog", "frmNetworkscan", "frmAddUser", "frmInvite",
                                         "frmAbout", "frmTipOfTheDay", "frmSendContact", "frmShortcuts",
                                         "frmTransfers"),
                         [](const auto &window) { return std::string(window.param); });

TEST(KeyboardOfMenus, NoTwoEntriesOfAMenuShareAnAccessKey)
{
    RealWindows windows;
    for (const QMenu *const menu : windows.main().findChildren<QMenu *>()) {
        std::set<QString> once;
        for (const QAction *const action : menu->actions()) {
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            EXPECT_TRUE(key.isEmpty() || once.insert(key.toString()).second)
                << menu->objectName().toStdString() << ": " << action->text().toStdString();
        }
    }
}

} // namespace
} // namespace nimb::test
