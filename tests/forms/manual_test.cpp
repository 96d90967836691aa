// F1 and the manual that it opens. The pages are read as they are written: what is made of them is the build's
// business.
#include "real_windows.h"

#include "main_window/main_menu.h"
#include "welcome/frmLogin.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTreeWidget>

#include <set>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

QDir manualSources()
{
    return QDir(QStringLiteral(NIMB_MANUAL_SOURCES));
}

/// Without line breaks and marks of emphasis, so that captions are found as they read.
QString pageText(const QString &name)
{
    QFile file(manualSources().filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll()).remove(u'*').simplified();
}

QString wholeManual()
{
    QString text;
    for (const QString &name : manualSources().entryList({QStringLiteral("*.md")}))
        text += pageText(name) + u'\n';
    return text;
}

/// A caption without the mark of its access key.
QString plainCaption(QString caption)
{
    static const QRegularExpression accessKey(QStringLiteral("&(.)"));
    return caption.replace(accessKey, QStringLiteral("\\1"));
}

/// As it stands in the sources: what is said to be page.html is written in page.md.
QString sourceOf(const char *page)
{
    return QString::fromLatin1(page).replace(QLatin1String(".html"), QLatin1String(".md"));
}

struct MenuDialog {
    const char *entry, *window, *page;
};
constexpr MenuDialog menuDialogs[] = {
    {"mnuNetworkscan", "frmNetworkscan", "find-people.html"},
    {"mnuAddUser", "frmAddUser", "add-user.html"},
    {"mnusendcontacts", "frmSendContact", "send-contacts.html"},
    {"mnuinviteuser", "frmInvite", "invite-user.html"},
    {"mnuToolsOptions", "frmOptions", "options.html"},
    {"mnuTOTD", "frmTipOfTheDay", "tip-of-the-day.html"},
    {"mnuNetworkDoctor", "frmDoctor", "network-doctor.html"},
    {"mnuShortcuts", "frmShortcuts", "shortcuts.html"},
    {"mnuTransfers", "frmTransfers", "files.html"},
    {"mnuHelpAbout", "frmAbout", "about.html"},
};

class Manual : public testing::Test
{
protected:
    Manual() { windows.settleStart({"10.0.0.2", "10.0.0.3"}); }

    static QWidget &shown(const char *name)
    {
        QCoreApplication::processEvents();
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String(name) && window->isVisible())
                return *window;
        }
        qFatal("%s is not shown", name);
    }
    QWidget &opened(const char *entry, const char *window)
    {
        windows.click(0);
        windows.entry(entry).trigger();
        return shown(window);
    }

    /// What F1 opens there. The key goes where it goes when somebody presses it: to the control with the focus.
    std::vector<std::string> pressF1(QWidget &window)
    {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << "or the main window would take the key";
        QWidget *const focused = window.focusWidget();
        QTest::keyClick(focused ? focused : &window, Qt::Key_F1);
        return std::exchange(windows.manualPages.opened, {});
    }

    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}};
};

TEST_F(Manual, OpensAtThePageOfTheMainWindow)
{
    EXPECT_THAT(pressF1(windows.main()), ElementsAre("file:///manual/main-window.html"));
}

TEST_F(Manual, OpensAtThePageOfAPrivateWindow)
{
    windows.doubleClick(0);
    QWidget &window = windows.privateWindow();
    EXPECT_THAT(pressF1(window), ElementsAre("file:///manual/private-chat.html"));
    RealWindows::logOf(window).setFocus();
    EXPECT_THAT(pressF1(window), ElementsAre("file:///manual/private-chat.html"));
    EXPECT_EQ(RealWindows::control<QPlainTextEdit>(window, "intext").toPlainText(), QString());
}

TEST_F(Manual, OpensAtThePageOfAConference)
{
    EXPECT_THAT(pressF1(opened("mnuCreateNewConf", "frmConference")), ElementsAre("file:///manual/conference.html"));
}

TEST_F(Manual, OpensAtThePageOfTheInvitations)
{
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    EXPECT_THAT(pressF1(shown("frmConfInvitations")), ElementsAre("file:///manual/invitations.html"));
}

TEST_F(Manual, OpensAtThePageOfEveryDialog)
{
    for (const auto &[entry, window, page] : menuDialogs) {
        QWidget &dialog = opened(entry, window);
        EXPECT_THAT(pressF1(dialog), ElementsAre(std::string("file:///manual/") + page)) << window;
        dialog.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(Manual, OpensAtThePageOfTheLogin)
{
    Login login(windows.common, windows.settings, windows.socket);
    frmLogin dialog(login, windows.prompts);
    dialog.show();
    EXPECT_THAT(pressF1(dialog), ElementsAre("file:///manual/first-start.html"));
}

TEST_F(Manual, OpensAtThePageOfTheWindowBelowWhereADialogHasNone)
{
    QWidget &options = opened("mnuToolsOptions", "frmOptions");
    RealWindows::control<QPushButton>(options, "font_btn").click();
    EXPECT_THAT(pressF1(shown("font_dialog")), ElementsAre("file:///manual/options.html"));
}

TEST_F(Manual, OpensAtWhatMessageBoxesSayFromEachOfThem)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("NIMB-Chat"), QStringLiteral("Trouble"), QMessageBox::Ok,
                    &windows.main());
    box.open();
    EXPECT_THAT(pressF1(box), ElementsAre("file:///manual/messages.html"));
}

TEST_F(Manual, OpensAtItsBeginningInAWindowThatItDoesNotKnow)
{
    QLineEdit stranger;
    stranger.show();
    EXPECT_THAT(pressF1(stranger), ElementsAre("file:///manual/index.html"));
}

TEST_F(Manual, OpensByItsEntryWhichShowsTheKey)
{
    QAction &entry = windows.entry("mnuManual");
    EXPECT_TRUE(entry.isEnabled());
    EXPECT_EQ(entry.shortcut(), QKeySequence(Qt::Key_F1));
    entry.trigger();
    EXPECT_THAT(windows.manualPages.opened, ElementsAre("file:///manual/main-window.html"));
}

TEST_F(Manual, OpensOnceHoweverLongTheKeyIsHeld)
{
    QWidget &dialog = opened("mnuAddUser", "frmAddUser");
    QWidget &nickname = RealWindows::control(dialog, "nicktxt");
    QTest::keyPress(&nickname, Qt::Key_F1);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&nickname, &repeated);
    EXPECT_THAT(windows.manualPages.opened, ElementsAre("file:///manual/add-user.html"));
    EXPECT_FALSE(windows.entry("mnuManual").autoRepeat());
}

TEST_F(Manual, LeavesTheKeyWithOthersHeldToTheSystem)
{
    QWidget &dialog = opened("mnuAddUser", "frmAddUser");
    for (const Qt::KeyboardModifier held : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        QTest::keyClick(&RealWindows::control(dialog, "nicktxt"), Qt::Key_F1, held);
    EXPECT_THAT(windows.manualPages.opened, IsEmpty());
}

TEST_F(Manual, ThatNothingOpensIsSaid)
{
    windows.manualPages.hasHandler = false;
    QWidget &dialog = opened("mnuAddUser", "frmAddUser");
    EXPECT_THAT(pressF1(dialog), ElementsAre("file:///manual/add-user.html"));
    const auto *const box = dialog.findChild<QMessageBox *>();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text(), QStringLiteral("Nothing on this computer opens /manual/add-user.html."));
}

TEST_F(Manual, ThatTurnsOutNotToOpenIsSaidToo)
{
    QWidget &dialog = opened("mnuAddUser", "frmAddUser");
    EXPECT_THAT(pressF1(dialog), ElementsAre("file:///manual/add-user.html"));
    EXPECT_FALSE(dialog.findChild<QMessageBox *>());
    windows.manualPages.failsLater();
    const auto *const box = dialog.findChild<QMessageBox *>();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text(), QStringLiteral("Nothing on this computer opens /manual/add-user.html."));
}

TEST_F(Manual, OpensNoLinkOfAPeer)
{
    pressF1(windows.main());
    EXPECT_THAT(windows.links.opened, IsEmpty());
}

TEST(WithoutManual, TheEntryIsGreyAndTheKeyDoesNothing)
{
    RealWindows windows({{"10.0.0.2", "Ann"}}, {}, nullptr, std::nullopt);
    EXPECT_FALSE(windows.entry("mnuManual").isEnabled());
    windows.main().activateWindow();
    QTest::keyClick(&windows.list(), Qt::Key_F1);
    EXPECT_THAT(windows.manualPages.opened, IsEmpty());
}

// --- what the pages say

TEST(ManualPages, AreThereForEveryWindow)
{
    std::set<std::string> windows;
    for (const ManualPage &page : manualPages) {
        windows.insert(page.window);
        EXPECT_TRUE(manualSources().exists(sourceOf(page.file))) << page.window;
    }
    EXPECT_EQ(windows.size(), manualPages.size()) << "each window has one page";
    for (const char *const page : {firstManualPage, messagesManualPage})
        EXPECT_TRUE(manualSources().exists(sourceOf(page))) << page;
}

TEST(ManualPages, LeadToPagesThatExistAndAllOfThemFromTheFirst)
{
    static const QRegularExpression link(QStringLiteral("\\]\\(([^)]*)\\)"));
    std::set<QString> reached{QStringLiteral("index.md")};
    std::vector<QString> open{QStringLiteral("index.md")};
    while (!open.empty()) {
        const QString page = open.back();
        open.pop_back();
        if (!page.endsWith(QLatin1String(".md")))
            continue;
        for (const QRegularExpressionMatch &found : link.globalMatch(pageText(page))) {
            const QString target = found.captured(1);
            EXPECT_TRUE(manualSources().exists(target)) << page.toStdString() << ": " << target.toStdString();
            if (reached.insert(target).second)
                open.push_back(target);
        }
    }
    std::vector<std::string> pages, reachedPages;
    for (const QString &page : manualSources().entryList({QStringLiteral("*.md")}))
        pages.push_back(page.toStdString());
    for (const QString &page : reached) {
        if (page.endsWith(QLatin1String(".md")))
            reachedPages.push_back(page.toStdString());
    }
    EXPECT_THAT(reachedPages, UnorderedElementsAreArray(pages));
}

/// What a user reads in a dialog: of boxes, buttons and fields.
QStringList captionsIn(const QWidget &dialog)
{
    QStringList captions;
    for (const auto *const button : dialog.findChildren<QAbstractButton *>())
        captions.append(plainCaption(button->text()));
    for (const auto *const label : dialog.findChildren<QLabel *>()) {
        if (label->buddy())
            captions.append(plainCaption(label->text()));
    }
    // What everybody knows.
    captions.removeIf([](const QString &caption) {
        return QStringList{QString(), QStringLiteral("OK"), QStringLiteral("Cancel"), QStringLiteral("Close")}.contains(
            caption);
    });
    return captions;
}

/// The captions of this dialog that its page does not have.
std::vector<std::string> missingOn(const char *page, const QWidget &dialog)
{
    const QString text = pageText(sourceOf(page));
    std::vector<std::string> missing;
    for (const QString &caption : captionsIn(dialog)) {
        if (!text.contains(caption))
            missing.push_back(caption.toStdString());
    }
    return missing;
}

TEST_F(Manual, NamesEveryOptionByItsCaption)
{
    QWidget &options = opened("mnuToolsOptions", "frmOptions");
    EXPECT_GE(captionsIn(options).size(), 22) << "the dialog is the real one";
    EXPECT_THAT(missingOn("options.html", options), IsEmpty());
    const QString text = pageText(QStringLiteral("options.md"));
    for (const auto *const group : options.findChildren<QGroupBox *>())
        EXPECT_TRUE(text.contains(QLatin1String("## ") + plainCaption(group->title()))) << group->title().toStdString();
    RealWindows::control<QPushButton>(options, "font_btn").click();
    EXPECT_THAT(missingOn("options.html", shown("font_dialog")), IsEmpty());
}

TEST_F(Manual, NamesWhatEveryDialogHas)
{
    for (const auto &[entry, window, page] : menuDialogs) {
        QWidget &dialog = opened(entry, window);
        EXPECT_THAT(missingOn(page, dialog), IsEmpty()) << window;
        dialog.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(Manual, NamesWhatTheMainWindowHas)
{
    EXPECT_THAT(missingOn("main-window.html", windows.main()), IsEmpty());
}

TEST_F(Manual, NamesWhatTheConversationsOffer)
{
    const QString conference = pageText(QStringLiteral("conference.md"));
    for (const auto *const button : opened("mnuCreateNewConf", "frmConference").findChildren<QPushButton *>()) {
        const bool isNamed = conference.contains(plainCaption(button->text()));
        EXPECT_TRUE(isNamed || button->objectName() == QLatin1String("sendbtn")) << button->text().toStdString();
    }
    windows.doubleClick(0);
    EXPECT_THAT(missingOn("private-chat.html", windows.privateWindow()), IsEmpty());
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    EXPECT_THAT(missingOn("invitations.html", shown("frmConfInvitations")), IsEmpty());
}

TEST_F(Manual, NamesEveryEntryOfTheMenusThatDoesSomething)
{
    const QString text = pageText(QStringLiteral("main-window.md"));
    std::set<std::string> idle(entriesWithoutAction.begin(), entriesWithoutAction.end());
    int compared = 0;
    for (const Menu &menu : mainMenus) {
        for (const MenuEntry &entry : menu.entries) {
            if (!entry.name || idle.contains(entry.name))
                continue;
            ++compared;
            EXPECT_TRUE(text.contains(plainCaption(QString::fromLatin1(entry.caption)))) << entry.name;
        }
    }
    EXPECT_GE(compared, 17);
}

TEST_F(Manual, ListsTheKeysOfThePageOfKeys)
{
    const QString text = pageText(QStringLiteral("shortcuts.md"));
    const auto &list = RealWindows::control<QTreeWidget>(opened("mnuShortcuts", "frmShortcuts"), "shortcuts");
    int compared = 0;
    for (QTreeWidgetItem *row = list.topLevelItem(0); row; row = list.itemBelow(row)) {
        EXPECT_TRUE(text.contains(row->text(0))) << row->text(0).toStdString();
        EXPECT_TRUE(text.contains(row->text(1))) << row->text(1).toStdString();
        ++compared;
    }
    EXPECT_GE(compared, 20);
}

TEST(ManualPages, SayWhatTheEnvironmentIsAskedFor)
{
    const QString text = wholeManual();
    for (const char *const variable : {"NIMBCHAT_ADDRESS", "NIMBCHAT_HOSTNAME", "NIMBCHAT_PROFILE"})
        EXPECT_TRUE(text.contains(QLatin1String(variable))) << variable;
}

} // namespace
} // namespace nimb::test
