#include "real_windows.h"

#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>

#include <set>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class MainMenusTest : public testing::Test
{
protected:
    MainMenusTest() { windows.settleStart({"10.0.0.2", "10.0.0.3"}); }

    /// Name and caption of every visible entry, separators as "-".
    static std::vector<std::string> entriesOf(const QMenu &menu)
    {
        std::vector<std::string> entries;
        for (const QAction *const action : menu.actions()) {
            if (action->isSeparator())
                entries.push_back("-");
            else if (action->isVisible())
                entries.push_back((action->objectName() + QLatin1String(": ") + action->text()).toStdString());
        }
        return entries;
    }
    QMenu &menu(const char *name) { return windows.control<QMenu>(name); }
    /// The dialogs that stand open over the main window.
    std::vector<QDialog *> dialogs()
    {
        std::vector<QDialog *> open;
        for (QDialog *const dialog : windows.main().findChildren<QDialog *>()) {
            if (dialog->isVisible())
                open.push_back(dialog);
        }
        return open;
    }

    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben & Co"}}};
};

TEST_F(MainMenusTest, TheMenuBarHasEveryEntryInItsPlace)
{
    EXPECT_THAT(entriesOf(menu("mnuFile")),
                ElementsAre("mnuFileNew: New", "mnuFileOpen: Open", "mnuFileClose: Close", "-", "mnuFileSave: Save",
                            "mnuFileSaveAs: Save As", "mnuFileSaveAll: Save All", "-", "mnuFileProperties: Properties",
                            "-", "mnuFilePageSetup: Page Setup", "mnuFilePrintPreview: Print Preview",
                            "mnuFilePrint: Print", "-", "mnuFileSend: Send", "-", "-", "mnuFileExit: E&xit"));
    EXPECT_THAT(entriesOf(menu("mnuUsers")),
                ElementsAre("mnuNetworkscan: &Network scan...", "mnuAddUser: &Add offline user...",
                            "mnuFindEverybody: &Find everybody here", "-", "mnuHistory: &History...", "-",
                            "mnuImportContacts: &Import contacts...", "mnuExportContacts: &Export contacts..."));
    EXPECT_THAT(entriesOf(menu("mnuConference")),
                ElementsAre("mnuCreateNewConf: Create &new...", "mnushowinvitations: View &invitations..."));
    EXPECT_THAT(
        entriesOf(menu("mnuTools")),
        ElementsAre("mnuLogWindow: Show &Log Window", "mnuTransfers: &Transfers...", "mnuToolsOptions: &Options..."));
    EXPECT_THAT(entriesOf(menu("mnuHelp")),
                ElementsAre("mnuHelpContents: &Contents", "mnuHelpSearchForHelpOn: &Search For Help On...",
                            "mnuManual: &Manual", "mnuTOTD: &Tip of the day...", "mnuNetworkDoctor: &Network doctor...",
                            "mnuShortcuts: &Keyboard shortcuts...", "mnuHelpAbout: &About"));
    for (const char *name : {"mnuFile", "mnuUsers", "mnuConference", "mnuTools", "mnuHelp"}) {
        for (const QAction *const action : menu(name).actions())
            EXPECT_TRUE(action->isVisible() || !action->isEnabled()) << action->objectName().toStdString();
    }
}

TEST_F(MainMenusTest, EntriesWithoutActionAreGrey)
{
    std::set<std::string> grey;
    for (const char *name : {"mnuFile", "mnuUsers", "mnuConference", "mnuTools", "mnuHelp"}) {
        for (const QAction *const action : menu(name).actions()) {
            if (!action->isSeparator() && action->isVisible() && !action->isEnabled())
                grey.insert(action->objectName().toStdString());
        }
    }
    EXPECT_THAT(grey,
                testing::UnorderedElementsAre(
                    "mnuFileNew", "mnuFileClose", "mnuFileSave", "mnuFileSaveAs", "mnuFileSaveAll", "mnuFileProperties",
                    "mnuFilePrintPreview", "mnuFilePrint", "mnuFileSend", "mnuHelpContents", "mnuHelpSearchForHelpOn"));
}

TEST_F(MainMenusTest, RecentFilesAreThereWithoutAnyToShow)
{
    for (const char *name : {"mnuFileMRU1", "mnuFileMRU2", "mnuFileMRU3"})
        EXPECT_FALSE(windows.entry(name).isVisible()) << name;
}

TEST_F(MainMenusTest, EntriesWithoutActionsDoNothing)
{
    const QString before = windows.logText();
    for (const char *name :
         {"mnuFileNew", "mnuFileClose", "mnuFileSave", "mnuFileSaveAs", "mnuFileSaveAll", "mnuFileProperties",
          "mnuFilePrintPreview", "mnuFilePrint", "mnuFileSend", "mnuHelpContents", "mnuHelpSearchForHelpOn"})
        windows.entry(name).trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(windows.logText(), before);
    EXPECT_THAT(windows.sent(), IsEmpty());
    EXPECT_THAT(dialogs(), IsEmpty());
    EXPECT_FALSE(windows.ended);
}

TEST_F(MainMenusTest, OpenAsksForAFileAndForgetsIt)
{
    windows.entry("mnuFileOpen").trigger();
    ASSERT_EQ(dialogs().size(), 1u);
    auto *const dialog = qobject_cast<QFileDialog *>(dialogs().front());
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Open"));
    EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog->nameFilters().size(), 1);
    EXPECT_TRUE(dialog->nameFilters().front().startsWith(QStringLiteral("All Files (*.*)")));
    windows.arrive("10.0.0.2", "!STATUS BUSY");
    EXPECT_EQ(windows.list().model()->index(1, 0).data(Qt::UserRole + 2).toString(), QStringLiteral("busy"))
        << "the program goes on meanwhile";
    dialog->reject();
    EXPECT_THAT(dialogs(), IsEmpty());
}

TEST_F(MainMenusTest, PageSetupShowsThePrinterSetUp)
{
    windows.entry("mnuFilePageSetup").trigger();
    ASSERT_EQ(dialogs().size(), 1u);
    EXPECT_EQ(dialogs().front()->windowTitle(), QStringLiteral("Page Setup"));
    dialogs().front()->reject();
    EXPECT_THAT(dialogs(), IsEmpty());
}

TEST_F(MainMenusTest, AnOpenDialogDoesNotKeepTheProgram)
{
    windows.entry("mnuFileOpen").trigger();
    windows.main().unload(UnloadMode::code);
    EXPECT_TRUE(windows.ended);
}

TEST_F(MainMenusTest, TheContextMenuHasEveryEntryWithTheNameInIt)
{
    windows.click(1, Qt::RightButton);
    EXPECT_THAT(
        entriesOf(menu("mnuPopUp")),
        ElementsAre("mnuPrivateChat: Private chat with 'Ben && Co'", "mnuBuzzUser: Buzz 'Ben && Co'",
                    "mnusendcontacts: Send &contacts to 'Ben && Co'", "mnuRemoveUser: Remove 'Ben && Co' from the list",
                    "mnuinviteuser: I&nvite user 'Ben && Co'", "mnuMuteContact: M&ute",
                    "mnuContactHistory: &History...", "mnuLeaveOut: &Keep no history", "mnuSendFile: Send &File..."));
    for (const QAction *const action : menu("mnuPopUp").actions())
        EXPECT_EQ(action->isEnabled(), action->isVisible()) << action->objectName().toStdString();
    menu("mnuPopUp").close();
}

TEST_F(MainMenusTest, MuteIsTickedForWhoIsMuted)
{
    windows.click(0);
    windows.entry("mnuMuteContact").trigger();
    EXPECT_TRUE(windows.engine.contacts().find(QStringLiteral("10.0.0.2"))->muted);
    EXPECT_TRUE(windows.entry("mnuMuteContact").isChecked());
    windows.click(1);
    EXPECT_FALSE(windows.entry("mnuMuteContact").isChecked());
    windows.click(0);
    EXPECT_TRUE(windows.entry("mnuMuteContact").isChecked());
    windows.entry("mnuMuteContact").trigger();
    EXPECT_FALSE(windows.engine.contacts().find(QStringLiteral("10.0.0.2"))->muted);
}

TEST_F(MainMenusTest, WithoutASelectionTheContextMenuHasNothingToActOn)
{
    windows.list().clearSelection();
    EXPECT_THAT(entriesOf(menu("mnuPopUp")),
                ElementsAre("mnuPrivateChat: &Private Chat", "mnuBuzzUser: &Buzz User",
                            "mnusendcontacts: Send &Contacts", "mnuRemoveUser: Re&move User",
                            "mnuinviteuser: I&nvite user", "mnuMuteContact: M&ute", "mnuContactHistory: &History...",
                            "mnuLeaveOut: &Keep no history", "mnuSendFile: Send &File..."));
    for (const QAction *const action : menu("mnuPopUp").actions())
        EXPECT_FALSE(action->isEnabled()) << action->objectName().toStdString();
}

TEST_F(MainMenusTest, TheEntriesOfTheConferencesAreNamedAfterTheirSlots)
{
    for (const char slot : {'1', '2', '3', '4', '5'}) {
        QAction &entry = windows.entry((std::string("mnuInvite2Conf") + slot).c_str());
        EXPECT_EQ(entry.text(), QStringLiteral("Invite to Conference #&") + QLatin1Char(slot));
        EXPECT_FALSE(entry.isVisible());
    }
}

TEST_F(MainMenusTest, AnOfflineContactIsInvitedByNetSend)
{
    windows.click(0);
    EXPECT_EQ(windows.entry("mnuinviteuser").text(), QStringLiteral("I&nvite user 'Ann'"));
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    EXPECT_EQ(windows.entry("mnuinviteuser").text(), QStringLiteral("&Net send message to 'Ann'"));
}

TEST_F(MainMenusTest, BuzzSendsToTheSelectedContactAndObeysTheMuteBox)
{
    windows.common.options.playOwnBuzz = true;
    windows.click(0);
    windows.entry("mnuBuzzUser").trigger();
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!BUZZ")));
    EXPECT_EQ(windows.sound.alarms, 1);
    QTest::mouseClick(&windows.control<QCheckBox>("buzzmute"), Qt::LeftButton, {}, QPoint(8, 12));
    ASSERT_TRUE(windows.control<QCheckBox>("buzzmute").isChecked());
    windows.entry("mnuBuzzUser").trigger();
    windows.arrive("10.0.0.3", "!BUZZ");
    EXPECT_EQ(windows.sound.alarms, 1);
}

TEST_F(MainMenusTest, ABuzzShowsInTheActivityPanelForAWhile)
{
    auto &panel = windows.control<QLabel>("StatusBar_activity");
    EXPECT_EQ(panel.text(), QString());
    windows.arrive("10.0.0.3", "!BUZZ");
    EXPECT_EQ(panel.text(), QStringLiteral("Ben & Co is buzzing you..."));
    windows.time.advance(std::chrono::milliseconds(2500));
    EXPECT_EQ(panel.text(), QString());
}

TEST_F(MainMenusTest, ALongActivityDoesNotWidenTheWindow)
{
    windows.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC " + std::string(255, 'W'));
    windows.entry("mnuLogWindow").trigger();
    windows.arrive("10.0.0.3", "!BUZZ");
    QCoreApplication::processEvents();
    EXPECT_EQ(windows.main().width(), 305);
    EXPECT_LE(windows.main().minimumSizeHint().width(), 305);
}

/// The visible window of this name; null when there is none.
QDialog *shown(const char *name)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String(name) && window->isVisible())
            return qobject_cast<QDialog *>(window);
    }
    return nullptr;
}

TEST_F(MainMenusTest, EveryDialogOpensFromItsEntryAndTheProgramGoesOn)
{
    constexpr std::pair<const char *, const char *> dialogs[]
        = {{"mnuNetworkscan", "frmNetworkscan"},  {"mnuAddUser", "frmAddUser"},      {"mnuToolsOptions", "frmOptions"},
           {"mnuHelpAbout", "frmAbout"},          {"mnuTOTD", "frmTipOfTheDay"},     {"mnuinviteuser", "frmInvite"},
           {"mnusendcontacts", "frmSendContact"}, {"mnuNetworkDoctor", "frmDoctor"}, {"mnuShortcuts", "frmShortcuts"},
           {"mnuTransfers", "frmTransfers"}};
    windows.click(0);
    for (const auto &[entry, name] : dialogs) {
        EXPECT_FALSE(shown(name)) << name;
        windows.entry(entry).trigger();
        ASSERT_TRUE(shown(name)) << name;
        windows.sent();
        windows.arrive("10.0.0.2", "?ONLINE");
        EXPECT_EQ(windows.sent().size(), 2U) << name;
        shown(name)->close();
        EXPECT_FALSE(shown(name)) << name;
    }
}

TEST_F(MainMenusTest, ContactsAreExportedAndImportedAgain)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("office.csv"));
    windows.entry("mnuExportContacts").trigger();
    ASSERT_THAT(dialogs(), SizeIs(1));
    auto *files = qobject_cast<QFileDialog *>(dialogs().front());
    ASSERT_TRUE(files);
    EXPECT_EQ(files->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(QFileInfo(files->selectedFiles().value(0)).fileName(), QStringLiteral("contacts.csv"));
    Q_EMIT files->fileSelected(path);
    files->reject();
    QFile written(path);
    ASSERT_TRUE(written.open(QIODevice::ReadWrite));
    EXPECT_TRUE(windows.logText().contains(QStringLiteral("--- contacts in office.csv: 2 ---")));
    EXPECT_EQ(written.readAll(), "address,nickname,workstation\r\n10.0.0.2,Ann,PC\r\n10.0.0.3,Ben & Co,PC\r\n");
    written.write("10.0.0.4,Cleo,PC-CLEO\r\n");
    written.close();

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    windows.entry("mnuImportContacts").trigger();
    ASSERT_THAT(dialogs(), SizeIs(1));
    files = qobject_cast<QFileDialog *>(dialogs().front());
    EXPECT_EQ(files->acceptMode(), QFileDialog::AcceptOpen);
    Q_EMIT files->fileSelected(path);
    files->reject();
    EXPECT_TRUE(windows.engine.contacts().find(QStringLiteral("10.0.0.4")));
    EXPECT_TRUE(
        windows.logText().contains(QStringLiteral("--- contacts taken from office.csv: 1; there already: 2 ---")));
}

TEST_F(MainMenusTest, AFileThatCannotBeReadOrWrittenIsSaid)
{
    windows.entry("mnuImportContacts").trigger();
    auto *const files = qobject_cast<QFileDialog *>(dialogs().front());
    Q_EMIT files->fileSelected(QStringLiteral("/nowhere/office.csv"));
    files->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    windows.entry("mnuExportContacts").trigger();
    auto *const target = qobject_cast<QFileDialog *>(dialogs().front());
    Q_EMIT target->fileSelected(QStringLiteral("/nowhere/office.csv"));
    target->reject();
    EXPECT_THAT(windows.prompts.told,
                ElementsAre(StartsWith("NIMB-Chat: office.csv cannot be read: "),
                            StartsWith("NIMB-Chat: office.csv cannot be written: ")));
}

TEST_F(MainMenusTest, EverybodyIsAskedWithoutADialog)
{
    windows.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)}};
    windows.sent();
    windows.entry("mnuFindEverybody").trigger();
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.255", "?ONLINE 10.0.0.1 HERE Me"}));
    EXPECT_THAT(dialogs(), IsEmpty());
    windows.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC-NEW New");
    windows.time.advance(std::chrono::seconds(3));
    EXPECT_TRUE(windows.logText().contains(QStringLiteral("--- 1 answered: New; 1 new ---")));
}

TEST_F(MainMenusTest, TheTipIsShownOnceHoweverOftenItIsAskedFor)
{
    windows.entry("mnuTOTD").trigger();
    QDialog *const first = shown("frmTipOfTheDay");
    EXPECT_EQ(first->windowTitle(), QStringLiteral("Tip of the Day - Tip #1"));
    windows.entry("mnuTOTD").trigger();
    EXPECT_EQ(shown("frmTipOfTheDay"), first);
    first->close();
    windows.entry("mnuTOTD").trigger();
    EXPECT_EQ(shown("frmTipOfTheDay")->windowTitle(), QStringLiteral("Tip of the Day - Tip #2"));
}

TEST_F(MainMenusTest, TheTipEndsWithTheMainWindowAndIsSaved)
{
    windows.entry("mnuTOTD").trigger();
    windows.main().unload(UnloadMode::code);
    EXPECT_FALSE(shown("frmTipOfTheDay"));
    EXPECT_EQ(windows.settings.value("Options", "TipOTDayNum"), "1");
}

TEST_F(MainMenusTest, ContactsAreSentToWhoeverWasSelectedLast)
{
    windows.click(0);
    windows.entry("mnusendcontacts").trigger();
    EXPECT_EQ(shown("frmSendContact")->windowTitle(), QStringLiteral("NIMB-Chat - Send Contacts to 'Ann'"));
    windows.click(1);
    windows.entry("mnusendcontacts").trigger();
    EXPECT_EQ(shown("frmSendContact")->windowTitle(), QStringLiteral("NIMB-Chat - Send Contacts to 'Ben & Co'"));
    RealWindows::control<QPushButton>(*shown("frmSendContact"), "btnsendall").click();
    RealWindows::control<QPushButton>(*shown("frmSendContact"), "sendbtn").click();
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.3", "!USER 10.0.0.2 PC Ann"}));
    EXPECT_FALSE(shown("frmSendContact"));
}

TEST_F(MainMenusTest, AScanAsksTheAddressThatIsTyped)
{
    windows.entry("mnuNetworkscan").trigger();
    RealWindows::control<QLineEdit>(*shown("frmNetworkscan"), "Text1").setText(QStringLiteral("10.0.0.255"));
    RealWindows::control<QPushButton>(*shown("frmNetworkscan"), "Command1").click();
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.255", "?ONLINE 10.0.0.1 HERE Me"}));
}

TEST_F(MainMenusTest, ANameThatHasNoAddressIsSaidInTheLogAfterTheDialogIsGone)
{
    windows.entry("mnuNetworkscan").trigger();
    RealWindows::control<QLineEdit>(*shown("frmNetworkscan"), "Text1").setText(QStringLiteral("nobody"));
    RealWindows::control<QPushButton>(*shown("frmNetworkscan"), "Command1").click();
    EXPECT_FALSE(shown("frmNetworkscan"));
    windows.names.answer(0, std::nullopt);
    EXPECT_THAT(windows.logText().toStdString(), testing::HasSubstr("No address was found for \"nobody\""));
}

TEST_F(MainMenusTest, AnAddedUserStandsInTheListAsNotYetKnown)
{
    windows.entry("mnuAddUser").trigger();
    QDialog &dialog = *shown("frmAddUser");
    RealWindows::control<QLineEdit>(dialog, "nicktxt").setText(QStringLiteral("Zoe"));
    RealWindows::control<QLineEdit>(dialog, "hostname").setText(QStringLiteral("PC-ZOE"));
    RealWindows::control<QLineEdit>(dialog, "ipaddress").setText(QStringLiteral("10.0.0.9"));
    RealWindows::control<QPushButton>(dialog, "CmdOK").click();
    const QModelIndex last = windows.list().model()->index(2, 0);
    EXPECT_EQ(last.data().toString(), QStringLiteral("Zoe"));
    EXPECT_EQ(last.data(Qt::UserRole + 2).toString(), QStringLiteral("yellow"));
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.9", "?ONLINE 10.0.0.1 HERE Me"}));
}

TEST_F(MainMenusTest, AnInvitationGoesToTheSelectedContactsComputer)
{
    windows.click(1);
    windows.entry("mnuinviteuser").trigger();
    RealWindows::control<QPushButton>(*shown("frmInvite"), "sendbtn").click();
    EXPECT_THAT(windows.netSend.sent, ElementsAre("PC <- Me wants you to join him in NIMB-Chat"));
}

} // namespace
} // namespace nimb::test
