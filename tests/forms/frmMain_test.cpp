#include "real_windows.h"

#include "base/limits.h"
#include "main_window/contact_view.h"
#include "widgets/elided_line.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int twips(int value)
{
    return (value + 7) / 15;
}

class FrmMain : public testing::Test
{
protected:
    FrmMain() { windows.settleStart({"10.0.0.2", "10.0.0.3"}); }

    /// Where a control is seen: the log without the strips that show the window's ground.
    QRect seen(const char *name)
    {
        const QRect place = windows.control(name).geometry();
        if (std::string_view(name) != "outtext")
            return place;
        return place.adjusted(0, frmMain::logInsetAbove, 0, -frmMain::logInsetBelow);
    }

    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}, {"10.0.0.4", "Cleo"}}};
};

TEST_F(FrmMain, BearsItsFixedNames)
{
    EXPECT_EQ(windows.main().objectName(), QStringLiteral("frmMain"));
    for (const char *name : {"ImageCombo1",
                             "TabStrip1",
                             "ListView1",
                             "RescanBtn",
                             "buzzmute",
                             "ListDetails",
                             "ItemDetailstxt",
                             "outtext",
                             "clearbtn",
                             "StatusBar",
                             "StatusBar_status",
                             "StatusBar_activity",
                             "PersonalizedStateFrame",
                             "ImageComboPers",
                             "PersonalizedMessageText",
                             "PersonalizedOkbtn",
                             "AutoReplyOn",
                             "Autoreplybtn",
                             "AutoreplyFrame",
                             "AutoReplyTxt",
                             "Autoreplypanelclosebtn",
                             "mnuPopUp",
                             "mnuFileExit",
                             "mnuLogWindow",
                             "mnuPrivateChat",
                             "mnuBuzzUser",
                             "mnuInvite2Conf1",
                             "mnuInvite2Conf5",
                             "mnusendcontacts",
                             "mnuRemoveUser",
                             "mnuinviteuser",
                             "mnuMuteContact",
                             "mnuNetworkscan",
                             "mnuAddUser",
                             "mnuFindEverybody",
                             "findEverybodyBtn",
                             "mnuToolsOptions",
                             "mnuCreateNewConf",
                             "mnushowinvitations",
                             "mnuHelpContents",
                             "mnuHelpSearchForHelpOn",
                             "mnuHelpAbout",
                             "mnuManual",
                             "mnuTOTD",
                             "mnuNetworkDoctor",
                             "mnuShortcuts"})
        EXPECT_TRUE(windows.main().findChild<QObject *>(QLatin1String(name))) << name;
    EXPECT_EQ(windows.main().windowTitle(), QStringLiteral("NIMB-Chat 1.2 - Me"));
}

TEST_F(FrmMain, BearsItsFixedCaptions)
{
    EXPECT_EQ(windows.control<QPushButton>("RescanBtn").text(), QStringLiteral("&Rescan"));
    EXPECT_EQ(windows.control<QCheckBox>("buzzmute").text(), QStringLiteral("Mute Buzz"));
    EXPECT_EQ(windows.control<QCheckBox>("ListDetails").text(), QStringLiteral("Users &details"));
    EXPECT_EQ(windows.control<QPushButton>("clearbtn").text(), QStringLiteral("Clear"));
    auto &tabs = windows.control<QTabBar>("TabStrip1");
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("Nickname && status"));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("User(s) full details"));
    EXPECT_EQ(tabs.tabData(0).toString(), QStringLiteral("noinfo"));
    EXPECT_EQ(tabs.tabData(1).toString(), QStringLiteral("fulldetail"));
    EXPECT_EQ(windows.control<QLabel>("StatusBar_status").text(), QStringLiteral("Status: ONLINE"));
}

TEST_F(FrmMain, WidthFollowsTheLogPanelAndCannotBeChanged)
{
    EXPECT_EQ(windows.main().width(), 621);
    windows.main().resize(900, 500);
    EXPECT_EQ(windows.main().width(), 621);
    windows.entry("mnuLogWindow").trigger();
    EXPECT_EQ(windows.main().width(), 305);
    EXPECT_FALSE(windows.control("outtext").isVisible());
    windows.main().resize(900, 500);
    EXPECT_EQ(windows.main().width(), 305);
    windows.entry("mnuLogWindow").trigger();
    EXPECT_EQ(windows.main().width(), 621);
    EXPECT_TRUE(windows.control("outtext").isVisible());
}

TEST_F(FrmMain, TheRowOfWhoBuzzesFlashesForAMomentAndLetsTheMouseThrough)
{
    windows.arrive("10.0.0.2", "!BUZZ");
    windows.arrive("10.0.0.2", "!BUZZ");
    const QList<QWidget *> flashes = windows.list().viewport()->findChildren<QWidget *>(QStringLiteral("rowFlash"));
    ASSERT_EQ(flashes.size(), 1);
    EXPECT_TRUE(flashes.front()->isVisible());
    const int row = windows.engine.contacts().rowOf(QStringLiteral("10.0.0.2"));
    EXPECT_EQ(flashes.front()->geometry().center().y(), windows.placeOf(row).y());
    EXPECT_NE(windows.list().viewport()->childAt(flashes.front()->geometry().center()), flashes.front());
    const QPointer<QWidget> flash(flashes.front());
    EXPECT_TRUE(QTest::qWaitFor([&flash] { return flash.isNull(); }, 30000)) << "it never ends";
}

TEST_F(FrmMain, AHeightOf3000IsSetBackTo4500)
{
    windows.main().resize(621, 200);
    EXPECT_EQ(windows.main().height(), 300);
}

TEST_F(FrmMain, ControlsFollowTheHeight)
{
    for (const int height : {300, 413, 700}) {
        windows.main().resize(621, height);
        QCoreApplication::processEvents();
        EXPECT_EQ(windows.list().height(), twips(height * 15 - 1900)) << height;
        EXPECT_EQ(windows.control("RescanBtn").y(), twips(height * 15 - 1650)) << height;
        EXPECT_EQ(windows.control("buzzmute").y(), twips(height * 15 - 1650 + 60)) << height;
        EXPECT_EQ(windows.control("outtext").height(), twips(height * 15 - 1900 + 300)) << height;
    }
}

TEST_F(FrmMain, NoControlCoversAnother)
{
    const std::vector<const char *> names
        = {"ListView1", "RescanBtn", "buzzmute", "ListDetails", "ItemDetailstxt", "outtext", "clearbtn"};
    for (const int height : {300, 413, 900}) {
        windows.main().resize(621, height);
        QCoreApplication::processEvents();
        for (std::size_t i = 0; i < names.size(); ++i) {
            EXPECT_TRUE(windows.main().centralWidget()->rect().contains(seen(names[i])))
                << names[i] << " at " << height;
            for (std::size_t j = i + 1; j < names.size(); ++j)
                EXPECT_FALSE(seen(names[i]).intersects(seen(names[j]))) << names[i] << " and " << names[j];
        }
    }
}

TEST_F(FrmMain, StartsNarrowAndTheDetailsSwitchWidensTheColumns)
{
    auto &view = windows.list();
    EXPECT_FALSE(windows.control<QCheckBox>("ListDetails").isChecked());
    EXPECT_EQ(view.columnWidth(1), 0);
    EXPECT_EQ(view.columnWidth(2), 0);
    EXPECT_EQ(view.columnWidth(6), twips(2600));
    windows.control<QCheckBox>("ListDetails").click();
    EXPECT_EQ(view.columnWidth(1), twips(1350));
    EXPECT_EQ(view.columnWidth(2), twips(1250));
    EXPECT_EQ(view.columnWidth(6), 0);
    for (const int always : {3, 4, 5})
        EXPECT_EQ(view.columnWidth(always), 0) << always;
    EXPECT_EQ(windows.control<QTabBar>("TabStrip1").currentIndex(), 1);
    EXPECT_EQ(windows.main().focusWidget()->objectName(), QStringLiteral("buzzmute"));
}

TEST_F(FrmMain, TheTabKeyWalksDownTheLeftSideAndThenThroughTheLog)
{
    windows.control("ImageCombo1").setFocus();
    std::vector<std::string> walked;
    for (int i = 0; i < 7; ++i) {
        QTest::keyClick(windows.main().focusWidget(), Qt::Key_Tab);
        walked.push_back(windows.main().focusWidget()->objectName().toStdString());
    }
    EXPECT_THAT(walked,
                ElementsAre("TabStrip1", "ListView1", "RescanBtn", "buzzmute", "ListDetails", "outtext", "clearbtn"));
}

TEST_F(FrmMain, TheEscapeKeyLeavesThePanels)
{
    Q_EMIT windows.control<QComboBox>("ImageCombo1").activated(4);
    QTest::keyClick(windows.main().focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(windows.control("PersonalizedStateFrame").isVisible());
    EXPECT_EQ(windows.control<QComboBox>("ImageCombo1").currentIndex(), 0);
    EXPECT_EQ(windows.main().focusWidget()->objectName(), QStringLiteral("ImageCombo1"));
    Q_EMIT windows.control<QComboBox>("ImageCombo1").activated(1);
    windows.control<QPushButton>("Autoreplybtn").click();
    QTest::keyClick(windows.main().focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(windows.control("AutoreplyFrame").isVisible());
    EXPECT_EQ(windows.main().focusWidget()->objectName(), QStringLiteral("Autoreplybtn"));
}

TEST_F(FrmMain, TheTabsSetAndClearTheDetailsSwitch)
{
    auto &tabs = windows.control<QTabBar>("TabStrip1");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    EXPECT_TRUE(windows.control<QCheckBox>("ListDetails").isChecked());
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(0).center());
    EXPECT_FALSE(windows.control<QCheckBox>("ListDetails").isChecked());
    EXPECT_EQ(windows.main().focusWidget()->objectName(), QStringLiteral("buzzmute"));
}

TEST_F(FrmMain, TheLogBeginsWithItsBannerAndIsClearedDownToIt)
{
    EXPECT_EQ(windows.logText().section(u'\n', 0, 0),
              QStringLiteral("« NIMB-Chat [today:21/11/2026 - now:14:05:09] Ready »"));
    windows.arrive("10.0.0.2", "nonsense");
    windows.control<QPushButton>("clearbtn").click();
    EXPECT_EQ(windows.logText(), QStringLiteral("« NIMB-Chat [today:21/11/2026 - now:14:05:10] Ready »\n"));
}

TEST_F(FrmMain, WhatWasClearedFromTheLogCanBeBroughtBackForTenSeconds)
{
    windows.arrive("10.0.0.2", "nonsense");
    const QString before = windows.logText();
    auto &strip = windows.control<QLabel>("clearedBand");
    EXPECT_FALSE(strip.isVisible());
    windows.control<QPushButton>("clearbtn").click();
    EXPECT_TRUE(strip.isVisible());
    EXPECT_FALSE(windows.logText().contains(QStringLiteral("nonsense")));
    EXPECT_EQ(windows.main().findChild<QTimer *>(QStringLiteral("clearedForGood"))->interval(), 10000);
    EXPECT_LE(strip.sizeHint().width(), strip.width());
    Q_EMIT strip.linkActivated(QStringLiteral("undo"));
    EXPECT_EQ(windows.logText(), before);
    EXPECT_FALSE(strip.isVisible());
}

TEST_F(FrmMain, TheStripThatBringsTheLogBackLiesOnNothing)
{
    windows.control<QPushButton>("clearbtn").click();
    const auto &strip = windows.control<QLabel>("clearedBand");
    const auto &button = windows.control<QPushButton>("clearbtn");
    EXPECT_TRUE(strip.parentWidget()->rect().contains(strip.geometry()));
    EXPECT_FALSE(strip.geometry().intersects(button.geometry()));
    const QWidget &text = *windows.control<QTextEdit>("outtext").viewport();
    const QRect textPlace(text.mapTo(&windows.main(), QPoint(0, 0)), text.size());
    EXPECT_FALSE(QRect(strip.mapTo(&windows.main(), QPoint(0, 0)), strip.size()).intersects(textPlace));
}

TEST_F(FrmMain, ADoubleClickOpensAPrivateWindow)
{
    windows.doubleClick(1);
    EXPECT_EQ(windows.privateWindow().windowTitle(), QStringLiteral("Ben - NIMB-Chat - Private Chat Window"));
    EXPECT_TRUE(windows.privateWindow().isVisible());
    EXPECT_FALSE(windows.privateWindow().isMinimized());
}

TEST_F(FrmMain, ADoubleClickOnAContactNotYetKnownOpensNothing)
{
    windows.engine.announcement().run();
    windows.doubleClick(0);
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
}

TEST_F(FrmMain, ADoubleClickWithTheRightButtonOpensNothing)
{
    windows.click(0, Qt::RightButton);
    QTest::mouseDClick(windows.list().viewport(), Qt::RightButton, {}, windows.placeOf(0));
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
    windows.control<QMenu>("mnuPopUp").close();
}

TEST_F(FrmMain, TheEnterKeyOpensAPrivateWindowToo)
{
    windows.click(0);
    QTest::keyClick(&windows.list(), Qt::Key_Return);
    EXPECT_EQ(windows.privateWindow().windowTitle(), QStringLiteral("Ann - NIMB-Chat - Private Chat Window"));
}

TEST_F(FrmMain, TheRightButtonPopsUpTheMenuOfTheContact)
{
    windows.click(0, Qt::RightButton);
    auto &menu = windows.control<QMenu>("mnuPopUp");
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.defaultAction()->objectName(), QStringLiteral("mnuPrivateChat"));
    EXPECT_EQ(windows.entry("mnuPrivateChat").text(), QStringLiteral("Private chat with 'Ann'"));
    EXPECT_EQ(windows.entry("mnuRemoveUser").text(), QStringLiteral("Remove 'Ann' from the list"));
    EXPECT_FALSE(windows.entry("mnuInvite2Conf1").isVisible());
    menu.close();
    windows.entry("mnuPrivateChat").trigger();
    EXPECT_EQ(windows.privateWindow().windowTitle(), QStringLiteral("Ann - NIMB-Chat - Private Chat Window"));
}

TEST_F(FrmMain, RemovingAsksAndRemoves)
{
    windows.click(1);
    windows.entry("mnuRemoveUser").trigger();
    EXPECT_EQ(windows.prompts.asked.size(), 1u);
    EXPECT_EQ(windows.list().model()->rowCount(), 2);
}

TEST_F(FrmMain, SeveralSelectedContactsAreRemovedAfterOneQuestion)
{
    windows.click(0);
    QTest::mouseClick(windows.list().viewport(), Qt::LeftButton, Qt::ControlModifier, windows.placeOf(2));
    EXPECT_EQ(windows.entry("mnuRemoveUser").text(), QStringLiteral("Remove 2 users from the list"));
    windows.entry("mnuRemoveUser").trigger();
    EXPECT_EQ(windows.prompts.asked.size(), 1u);
    ASSERT_EQ(windows.list().model()->rowCount(), 1);
    EXPECT_EQ(windows.list().model()->index(0, 0).data().toString(), QStringLiteral("Ben"));
    EXPECT_FALSE(windows.list().selectionModel()->hasSelection());
}

TEST_F(FrmMain, AMessageThatWaitsAtARowIsCountedThereAndOpensOnAClick)
{
    QTreeView &list = windows.list();
    const auto picture = [&] {
        list.setCurrentIndex({});
        const QRect name = list.visualRect(list.model()->index(1, 0));
        return list.viewport()->grab({0, name.top(), list.viewport()->width(), name.height()}).toImage();
    };
    for (int i = 0; i < limits::windowsOpenedUnasked; ++i) {
        const QString ip = QStringLiteral("10.1.0.%1").arg(i + 1);
        windows.engine.contacts().add({.nickname = QStringLiteral("Z%1").arg(i),
                                       .workstation = {},
                                       .ip = ip,
                                       .presence = Presence::offline,
                                       .sortKey = QStringLiteral("C_Z"),
                                       .avatarNumber = {},
                                       .state = {}});
        windows.arrive(ip.toLatin1().constData(), "-hello");
    }
    windows.time.advance(limits::windowsOpenedUnasked * limits::windowPause); // they open in turn
    const QImage none = picture();
    windows.arrive("10.0.0.3", "-Are you there?");
    EXPECT_EQ(RealWindows::privateWindows().size(), std::size_t(limits::windowsOpenedUnasked));
    EXPECT_EQ(list.model()->index(1, 0).data(ContactList::UnreadRole).toInt(), 1);
    EXPECT_NE(picture(), none);
    windows.click(1);
    ASSERT_EQ(RealWindows::privateWindows().size(), std::size_t(limits::windowsOpenedUnasked) + 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.model()->index(1, 0).data(ContactList::UnreadRole).toInt() == 0; }));
    EXPECT_EQ(picture(), none);
}

TEST(EmptyContactList, SaysWhatToDoAndAsksEverybodyOnAClick)
{
    RealWindows windows;
    windows.main().show();
    windows.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)}};
    auto &button = windows.control<QPushButton>("findEverybodyBtn");
    EXPECT_TRUE(button.isVisible());
    EXPECT_EQ(button.text(), QStringLiteral("Find everybody here"));
    windows.sent();
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.255", "?ONLINE 10.0.0.1 HERE Me"}));
    button.setFocus();
    windows.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC-NEW New");
    EXPECT_FALSE(button.isVisible());
    EXPECT_TRUE(windows.list().hasFocus());
    EXPECT_FALSE(windows.list().selectionModel()->hasSelection());
    windows.click(0);
    windows.entry("mnuRemoveUser").trigger();
    EXPECT_TRUE(button.isVisible()) << "the list is empty again";
}

TEST_F(FrmMain, AChangeOfTheNetworksIsShownInTheStatusBar)
{
    auto &panel = windows.control<QLabel>("StatusBar_network");
    EXPECT_FALSE(panel.isVisible());
    windows.ownAddresses.running.clear();
    windows.networkWatch.tell();
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.text(), QStringLiteral("No network"));
    windows.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)}};
    windows.networkWatch.tell();
    EXPECT_EQ(panel.text(), QStringLiteral("There is a network now: your address is 10.0.0.1"));
    windows.time.advance(std::chrono::seconds(10));
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(FrmMain, ALongSearchIsShownInTheStatusBarAndCanBeStopped)
{
    auto &bar = windows.control<QProgressBar>("searchProgress");
    auto &stop = windows.control<QToolButton>("stopSearchBtn");
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(stop.isVisible());
    std::vector<SearchTarget> targets;
    for (unsigned char i = 1; i < 101; ++i)
        targets.push_back({Ipv4Address(172, 16, 0, i)});
    windows.engine.search().ask(targets, QStringLiteral("many"));
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.text(), QStringLiteral("10 / 100"));
    QTest::mouseClick(&stop, Qt::LeftButton);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(stop.isVisible());
    EXPECT_TRUE(windows.logText().contains(QStringLiteral("--- stopped when 10 of 100 had been asked ---")));
}

TEST_F(FrmMain, AfterARemovalNobodyIsSelectedAndEnterActsOnNobody)
{
    windows.click(1);
    windows.entry("mnuRemoveUser").trigger();
    ASSERT_EQ(windows.list().model()->rowCount(), 2);
    EXPECT_FALSE(windows.list().selectionModel()->hasSelection());
    EXPECT_FALSE(windows.entry("mnuRemoveUser").isEnabled());
    QTest::keyClick(&windows.list(), Qt::Key_Return);
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
}

TEST_F(FrmMain, TheListThatGetsTheFocusBackAfterARemovalSelectsNobody)
{
    windows.click(1);
    windows.list().clearFocus();
    windows.entry("mnuRemoveUser").trigger();
    windows.list().setFocus(Qt::ActiveWindowFocusReason);
    ASSERT_TRUE(windows.list().hasFocus());
    EXPECT_FALSE(windows.list().selectionModel()->hasSelection());
    QTest::keyClick(&windows.list(), Qt::Key_Return);
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
}

TEST_F(FrmMain, RemovingSomebodyElseKeepsTheSelection)
{
    windows.click(1);
    windows.engine.contacts().remove(QStringLiteral("10.0.0.2"));
    EXPECT_TRUE(windows.list().selectionModel()->isRowSelected(0));
    QTest::keyClick(&windows.list(), Qt::Key_Return);
    EXPECT_EQ(windows.privateWindow().windowTitle(), QStringLiteral("Ben - NIMB-Chat - Private Chat Window"));
}

TEST_F(FrmMain, ADoubleClickBetweenWhoseClicksTheRowsMoveOpensNobody)
{
    windows.click(0);
    windows.arrive("10.0.0.2", "!STATUS AWAY");
    ASSERT_EQ(windows.list().model()->index(0, 0).data().toString(), QStringLiteral("Ben"));
    QTest::mouseDClick(windows.list().viewport(), Qt::LeftButton, {}, windows.placeOf(0));
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
    windows.doubleClick(0);
    EXPECT_EQ(windows.privateWindow().windowTitle(), QStringLiteral("Ben - NIMB-Chat - Private Chat Window"));
}

TEST_F(FrmMain, CommandsWithoutSelectionDoNothing)
{
    windows.list().clearSelection();
    EXPECT_FALSE(windows.entry("mnuRemoveUser").isEnabled());
    windows.entry("mnuRemoveUser").trigger();
    windows.entry("mnuPrivateChat").trigger();
    EXPECT_THAT(windows.prompts.asked, IsEmpty());
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
}

TEST_F(FrmMain, TheToolTipFollowsThePointer)
{
    windows.arrive("10.0.0.2", "!STATUS BUSY In a meeting");
    QWidget *const viewport = windows.list().viewport();
    QTest::mouseMove(viewport, windows.placeOf(1));
    QTest::mouseMove(viewport, windows.placeOf(1) + QPoint(1, 0));
    const QString ofAnn = QStringLiteral("Ann: BUSY - In a meeting");
    EXPECT_TRUE(QTest::qWaitFor([&] { return viewport->toolTip() == ofAnn; }, 5000))
        << viewport->toolTip().toStdString();
    QTest::mouseMove(viewport, windows.placeOf(2) + QPoint(0, 60));
    EXPECT_TRUE(QTest::qWaitFor([&] { return viewport->toolTip().isEmpty(); }, 5000))
        << viewport->toolTip().toStdString();
}

TEST_F(FrmMain, NamesThatLookAlikeAreToldApartByTheirAddresses)
{
    QTreeView &list = windows.list();
    const auto picture = [&] {
        list.clearSelection();
        list.clearFocus();
        const QRect name = list.visualRect(list.model()->index(0, 0));
        return list.viewport()->grab({0, name.top(), list.viewport()->width(), name.height()}).toImage();
    };
    const QImage alone = picture();
    windows.engine.contacts().add([&] {
        Contact twin = windows.engine.contacts().at(0);
        twin.ip = QStringLiteral("10.0.0.99");
        return twin;
    }());
    EXPECT_NE(picture(), alone);
    windows.engine.contacts().remove(QStringLiteral("10.0.0.99"));
    EXPECT_EQ(picture(), alone);
}

TEST_F(FrmMain, AMachineThatAnswersFromTwoAddressesHasOneRow)
{
    windows.arrive("10.7.0.2", "?ONLINE 10.7.0.2 PC Anna");
    windows.time.advance(5s);
    const auto row = [this](const char *ip) { return windows.engine.contacts().rowOf(QString::fromLatin1(ip)); };
    const auto isShown = [this](int number) { return !windows.list().isRowHidden(number, {}); };
    windows.click(row("10.7.0.2"));
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    windows.arrive("10.7.0.2", "!ONLINE 10.7.0.2 PC Ann");
    EXPECT_FALSE(isShown(row("10.7.0.2")));
    EXPECT_TRUE(isShown(row("10.0.0.2")) && isShown(row("10.0.0.3")) && isShown(row("10.0.0.4")));
    EXPECT_THAT(windows.list().selectionModel()->selectedRows(), IsEmpty()) << "nobody acts on whom he does not see";
    windows.list().selectAll();
    EXPECT_EQ(windows.list().selectionModel()->selectedRows().size(), 3);
    windows.main().showContact(QStringLiteral("10.7.0.2"));
    EXPECT_EQ(windows.list().currentIndex().row(), row("10.0.0.2"));
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    EXPECT_TRUE(isShown(row("10.7.0.2")));
}

TEST_F(FrmMain, OfSeveralContactsItSaysHowManyAreSelected)
{
    const auto &details = windows.control<QLineEdit>("ItemDetailstxt");
    windows.click(0);
    const QString one = details.text();
    EXPECT_TRUE(one.contains(QLatin1String(" on PC (10.0.0."))) << one.toStdString();
    windows.list().selectAll();
    EXPECT_EQ(details.text(), QStringLiteral("3 contacts selected"));
    windows.click(0);
    EXPECT_EQ(details.text(), one);
}

TEST_F(FrmMain, TheLineBelowTheListSaysWhereItGoesOn)
{
    auto &details = windows.control<ElidedLine>("ItemDetailstxt");
    const QString all = QStringLiteral("Somebody with a long name on A-COMPUTER-WITH-A-LONG-NAME (10.0.0.2) - Away");
    details.resize(200, details.height());
    details.setText(all);
    details.setCursorPosition(0);
    const QString shown = details.shownText();
    EXPECT_TRUE(shown.endsWith(QChar(0x2026))) << shown.toStdString();
    EXPECT_EQ(details.text(), all);
    EXPECT_EQ(details.toolTip(), all);
    const QImage elided = details.grab().toImage();
    details.setText(shown);
    EXPECT_EQ(details.toolTip(), QString());
    EXPECT_EQ(elided, details.grab().toImage()) << "painted as any other text";
}

TEST_F(FrmMain, RescanningAsksEveryContactAndDisablesItself)
{
    auto &button = windows.control<QPushButton>("RescanBtn");
    EXPECT_TRUE(button.isEnabled());
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_FALSE(button.isEnabled());
    EXPECT_EQ(windows.sent().size(), 6u);
    windows.time.advance(1000ms);
    EXPECT_TRUE(button.isEnabled());
}

TEST_F(FrmMain, ChoosingAStateTellsThePresentContacts)
{
    auto &chooser = windows.control<QComboBox>("ImageCombo1");
    chooser.setFocus();
    QTest::keyClick(&chooser, Qt::Key_Down);
    EXPECT_THAT(windows.sent(), IsEmpty()) << "the closed list was stepped through";
    QTest::keyClick(chooser.view(), Qt::Key_Down);
    QTest::keyClick(chooser.view(), Qt::Key_Return);
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.2", "!STATUS BUSY"}, To{"10.0.0.3", "!STATUS BUSY"}));
    EXPECT_EQ(windows.control<QLabel>("StatusBar_status").text(), QStringLiteral("Status: BUSY"));
    EXPECT_TRUE(windows.control("AutoReplyOn").isVisible());
    EXPECT_TRUE(windows.control("Autoreplybtn").isVisible());
    EXPECT_FALSE(windows.control("AutoreplyFrame").isVisible());
}

TEST_F(FrmMain, TheWheelOverTheChooserChangesNothing)
{
    auto &chooser = windows.control<QComboBox>("ImageCombo1");
    chooser.setFocus();
    const QPointF place(chooser.rect().center());
    QWheelEvent wheel(place, chooser.mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&chooser, &wheel);
    EXPECT_EQ(chooser.currentIndex(), 0);
    EXPECT_THAT(windows.sent(), IsEmpty());
}

TEST_F(FrmMain, APersonalisedStateIsTypedAndChosen)
{
    auto &chooser = windows.control<QComboBox>("ImageCombo1");
    Q_EMIT chooser.activated(4);
    EXPECT_TRUE(windows.control("PersonalizedStateFrame").isVisible());
    windows.control<QComboBox>("ImageComboPers").setCurrentIndex(1);
    auto &text = windows.control<QLineEdit>("PersonalizedMessageText");
    EXPECT_TRUE(windows.main().focusWidget() == &text);
    QTest::keyClicks(&text, QStringLiteral("In a meeting"));
    QTest::mouseClick(&windows.control("PersonalizedOkbtn"), Qt::LeftButton);
    EXPECT_FALSE(windows.control("PersonalizedStateFrame").isVisible());
    EXPECT_EQ(chooser.currentText(), QStringLiteral("Busy - In a meeting"));
    EXPECT_THAT(windows.sent(),
                ElementsAre(To{"10.0.0.2", "!STATUS BUSY In a meeting"}, To{"10.0.0.3", "!STATUS BUSY In a meeting"}));
}

TEST_F(FrmMain, AnAutomaticReplyIsTypedAndKept)
{
    Q_EMIT windows.control<QComboBox>("ImageCombo1").activated(2);
    QTest::mouseClick(&windows.control("Autoreplybtn"), Qt::LeftButton);
    EXPECT_TRUE(windows.control("AutoreplyFrame").isVisible());
    EXPECT_EQ(windows.control<QGroupBox>("AutoreplyFrame").title(), QStringLiteral("AutoReply text (when Away)"));
    auto &text = windows.control<QPlainTextEdit>("AutoReplyTxt");
    EXPECT_EQ(text.toPlainText(), QStringLiteral("At the moment I'm not at my PC"));
    windows.main().activateWindow();
    text.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&] { return text.hasFocus(); }, 5000));
    EXPECT_EQ(text.palette().color(QPalette::Text), windows.main().palette().color(QPalette::Text));
    text.selectAll();
    QTest::keyClicks(&text, QStringLiteral("Lunch"));
    windows.control<QCheckBox>("AutoReplyOn").click();
    windows.control("RescanBtn").setFocus();
    EXPECT_EQ(text.palette().color(QPalette::Text), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(windows.common.autoReply.awayText, QStringLiteral("Lunch"));
    EXPECT_TRUE(windows.common.autoReply.onAway);
    QTest::mouseClick(&windows.control("Autoreplypanelclosebtn"), Qt::LeftButton);
    EXPECT_FALSE(windows.control("AutoreplyFrame").isVisible());
}

TEST_F(FrmMain, TheCloseBoxEndsTheProgramAndSaves)
{
    windows.main().close();
    EXPECT_TRUE(windows.ended);
    EXPECT_FALSE(windows.main().isVisible());
    EXPECT_EQ(windows.sent().size(), 3u);
    EXPECT_EQ(windows.settings.saves, 1);
}

TEST_F(FrmMain, TheCloseBoxHidesWhenTheOptionSaysSo)
{
    windows.common.options.closeBoxHides = true;
    windows.main().close();
    EXPECT_FALSE(windows.ended);
    EXPECT_FALSE(windows.main().isVisible());
    windows.main().restore();
    EXPECT_TRUE(windows.main().isVisible());
    windows.entry("mnuFileExit").trigger();
    EXPECT_TRUE(windows.ended);
    EXPECT_EQ(windows.sent().size(), 3u);
}

TEST_F(FrmMain, WithoutATrayTheCloseBoxMinimises)
{
    windows.common.options.closeBoxHides = true;
    windows.tray.shown = false;
    windows.main().close();
    EXPECT_FALSE(windows.ended);
    EXPECT_TRUE(windows.main().isMinimized());
}

TEST_F(FrmMain, EndingUnloadsThePrivateWindows)
{
    windows.doubleClick(0);
    windows.entry("mnuFileExit").trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
}

TEST_F(FrmMain, EndsOnlyOnce)
{
    windows.entry("mnuFileExit").trigger();
    windows.main().unload(UnloadMode::code);
    windows.main().close();
    EXPECT_EQ(windows.settings.saves, 1);
}

TEST_F(FrmMain, DropsAreCountedInTheToolTipOfTheStatusBar)
{
    windows.arrive("10.0.0.99", "-hello");
    QStatusBar *const bar = windows.main().statusBar();
    QHoverEvent enters(QEvent::HoverEnter, QPointF(2, 2), QPointF(2, 2), QPointF(-1, -1));
    QCoreApplication::sendEvent(bar, &enters);
    const QString first = windows.drops.summary();
    EXPECT_NE(first, QString());
    EXPECT_EQ(bar->toolTip(), first);
    windows.arrive("10.0.0.99", "-hello");
    QHoverEvent moves(QEvent::HoverMove, QPointF(3, 3), QPointF(3, 3), QPointF(2, 2));
    QCoreApplication::sendEvent(bar, &moves);
    EXPECT_NE(bar->toolTip(), first);
    EXPECT_EQ(bar->toolTip(), windows.drops.summary());
}

TEST_F(FrmMain, PicturesOfAllStatesAreThere)
{
    auto &chooser = windows.control<QComboBox>("ImageCombo1");
    for (int i = 0; i < 4; ++i)
        EXPECT_FALSE(chooser.itemIcon(i).pixmap(16, 16).isNull()) << i;
    EXPECT_TRUE(chooser.itemIcon(4).isNull());
}

TEST(FrmMainPlace, AStoredPlaceIsKeptToTheTwip)
{
    RealWindows windows({},
                        {{"Settings/MainLeft", "1000"}, {"Settings/MainTop", "1003"}, {"Settings/MainHeight", "6200"}});
    windows.entry("mnuFileExit").trigger();
    EXPECT_EQ(windows.settings.value("Settings", "MainLeft"), "1000");
    EXPECT_EQ(windows.settings.value("Settings", "MainTop"), "1003");
    EXPECT_EQ(windows.settings.value("Settings", "MainHeight"), "6200");
}

TEST(FrmMainPlace, AMovedWindowIsSavedWhereItStands)
{
    RealWindows windows;
    windows.main().move(20, 30);
    windows.main().resize(621, 500);
    QCoreApplication::processEvents();
    windows.entry("mnuFileExit").trigger();
    EXPECT_EQ(windows.settings.value("Settings", "MainLeft"), "300");
    EXPECT_EQ(windows.settings.value("Settings", "MainTop"), "450");
    EXPECT_EQ(windows.settings.value("Settings", "MainHeight"), "7500");
}

TEST(FrmMainPlace, APlaceOffEveryScreenIsMovedIn)
{
    RealWindows windows({}, {{"Settings/MainLeft", "-900000"}, {"Settings/MainTop", "900000"}});
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_TRUE(screen.contains(windows.main().frameGeometry())) << "moved in whole";
}

TEST(FrmMainPlace, APlacePartlyOffTheScreenIsMovedIn)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QString nearlyOut = QString::number((screen.right() - 200) * 15); // twips of a pixel
    RealWindows windows({}, {{"Settings/MainLeft", nearlyOut}, {"Settings/MainTop", nearlyOut}});
    EXPECT_TRUE(screen.contains(windows.main().frameGeometry())) << "its title was to be seen, and no more";
}

TEST(FrmMainPlace, ATitleOutOfReachIsMovedIn)
{
    RealWindows windows({}, {{"Settings/MainTop", "-3000"}, {"Settings/MainHeight", "1000000"}});
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_GE(windows.main().y(), screen.top());
    EXPECT_LE(windows.main().frameGeometry().bottom(), screen.bottom());
}

TEST(FrmMainPlace, AMaximisedWindowIsSavedAsItWasBefore)
{
    RealWindows windows({}, {{"Settings/MainLeft", "300"}, {"Settings/MainTop", "450"}});
    windows.main().showMaximized();
    QCoreApplication::processEvents();
    windows.entry("mnuFileExit").trigger();
    EXPECT_EQ(windows.settings.value("Settings", "MainLeft"), "300");
    EXPECT_EQ(windows.settings.value("Settings", "MainTop"), "450");
    EXPECT_EQ(windows.settings.value("Settings", "MainHeight"), "6200");
}

class LargeFont : public testing::TestWithParam<double>
{
};

TEST_P(LargeFont, LeavesEveryControlInItsPlace)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(GetParam());
    QApplication::setFont(large);
    {
        RealWindows windows;
        QCoreApplication::processEvents();
        const std::vector<const char *> names
            = {"ImageCombo1", "RescanBtn", "buzzmute", "ListDetails", "ItemDetailstxt", "clearbtn"};
        for (std::size_t i = 0; i < names.size(); ++i) {
            const QRect one = windows.control(names[i]).geometry();
            EXPECT_TRUE(windows.main().centralWidget()->rect().contains(one)) << names[i];
            for (std::size_t j = i + 1; j < names.size(); ++j)
                EXPECT_FALSE(one.intersects(windows.control(names[j]).geometry())) << names[i] << " and " << names[j];
        }
        auto &tabs = windows.control<QTabBar>("TabStrip1");
        EXPECT_LE(tabs.tabRect(1).right(), tabs.width());
        EXPECT_EQ(windows.list().font().pointSizeF(), GetParam());
    }
    QApplication::setFont(usual);
}

INSTANTIATE_TEST_SUITE_P(, LargeFont, testing::Values(9.0, 12.0, 14.0, 16.0, 20.0));

TEST(FrmMainPlace, AStoredHeightBelowTheFloorIsTheFloor)
{
    RealWindows windows({}, {{"Settings/MainHeight", "3000"}});
    EXPECT_EQ(windows.main().height(), 300);
}

} // namespace
} // namespace nimb::test
