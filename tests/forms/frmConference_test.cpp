#include "keyboard.h"
#include "real_windows.h"

#include "conversation/emoji_table.h"
#include "widgets/avatar_picture.h"
#include "widgets/muted_colour.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

namespace nimb::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class FrmConference : public testing::Test
{
protected:
    FrmConference() { windows.settleStart({"10.0.0.2", "10.0.0.3"}); }

    static std::vector<QWidget *> open()
    {
        std::vector<QWidget *> found;
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("frmConference") && window->isVisible())
                found.push_back(window);
        }
        return found;
    }
    QWidget &form()
    {
        if (open().size() != 1)
            qFatal("not one conference window");
        return *open().front();
    }
    template <class Widget> Widget &control(const char *name) { return RealWindows::control<Widget>(form(), name); }
    QPlainTextEdit &intext() { return control<QPlainTextEdit>("intext"); }
    std::string lastLogLine()
    {
        return RealWindows::logOf(form()).toPlainText().trimmed().section(u'\n', -1).toStdString();
    }
    /// A conference hosted here, with Ann and Ben in it.
    void host()
    {
        windows.entry("mnuCreateNewConf").trigger();
        for (const int row : {0, 1}) {
            windows.click(row);
            windows.entry("mnuInvite2Conf1").trigger();
        }
        windows.arrive("10.0.0.2", "!CONF INVITE #1 AGREE");
        windows.arrive("10.0.0.3", "!CONF INVITE #1 AGREE");
        windows.sent();
    }
    /// Ann's conference number 3, joined from the window of the invitations.
    void join()
    {
        windows.arrive("10.0.0.2", "?CONF INVITE #3");
        auto &list = RealWindows::control<QTreeView>(invitations(), "ListView1");
        list.setCurrentIndex(list.model()->index(0, 0));
        QTest::mouseClick(&RealWindows::control<QPushButton>(invitations(), "ConfAgreebtn"), Qt::LeftButton);
        windows.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 10.0.0.1 10.0.0.3");
        windows.sent();
    }
    static QWidget &invitations()
    {
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("frmConfInvitations"))
                return *window;
        }
        qFatal("no window of invitations");
    }

    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}};
};

TEST_F(FrmConference, BearsItsFixedNamesAndCaptions)
{
    host();
    for (const char *name : {"partecipanti", "refreshlistbtn", "kickuserbtn", "showlist", "showavatars", "AvatarsFrame",
                             "AvatarPicture", "AvatarLabel", "NoAvatarImg", "outtext", "intext", "sendbtn", "clearbtn",
                             "datetimebtn", "Emoticbtn", "ListViewEmot", "StatusBar1", "StatusBar1_1"})
        EXPECT_TRUE(form().findChild<QWidget *>(QLatin1String(name))) << name;
    EXPECT_EQ(control<QPushButton>("refreshlistbtn").text(), QStringLiteral("Refresh list"));
    EXPECT_EQ(control<QPushButton>("kickuserbtn").text(), QStringLiteral("Kick user"));
    EXPECT_EQ(control<QPushButton>("sendbtn").text(), QStringLiteral("Send"));
    EXPECT_EQ(control<QToolButton>("clearbtn").text(), QStringLiteral("Clear"));
    EXPECT_EQ(control<QToolButton>("datetimebtn").text(), QStringLiteral("Date&&Time"));
    EXPECT_EQ(control<QToolButton>("Emoticbtn").text(), QStringLiteral("Emoticons"));
    EXPECT_EQ(control<QToolButton>("showlist").toolTip(), QStringLiteral("Show/Hide partecipants"));
    EXPECT_EQ(control<QToolButton>("showavatars").toolTip(), QStringLiteral("Show/Hide avatars"));
    EXPECT_EQ(control<QGroupBox>("AvatarsFrame").title(), QStringLiteral("Avatars"));
    EXPECT_EQ(control<QTreeView>("partecipanti").model()->headerData(0, Qt::Horizontal).toString(),
              QStringLiteral("NickName"));
    EXPECT_EQ(form().windowTitle(), QStringLiteral("Conference #1 (Hosted here) - NIMB-Chat"));
}

TEST_F(FrmConference, TheTabKeyGoesFromTheLogToTheParticipantsTheToolsAndTheInput)
{
    host();
    control<QToolButton>("Emoticbtn").click();
    control<QTreeView>("partecipanti").setCurrentIndex(control<QTreeView>("partecipanti").model()->index(1, 0));
    std::vector<std::string> stops
        = {"outtext",     "ListViewEmot", "partecipanti", "kickuserbtn", "showlist",    "showavatars", "Emoticbtn",
           "datetimebtn", "clearbtn",     "intext",       "sendbtn",     "sendFileBtn", "historyBand"};
    if (EmojiTable::isThere())
        stops.insert(stops.begin() + 2, {"emojiSearch", "emojiList"});
    EXPECT_THAT(tabStops(form()), ElementsAreArray(stops));
}

TEST_F(FrmConference, ListsParticipantsWithPicturesAndColours)
{
    host();
    const QAbstractItemModel &model = *control<QTreeView>("partecipanti").model();
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("Me (you)"));
    EXPECT_EQ(model.index(0, 1).data().toString(), QStringLiteral("!"));
    EXPECT_EQ(model.index(1, 0).data().toString(), QStringLiteral("Ann"));
    EXPECT_EQ(model.index(1, 0).data(Qt::UserRole).toString(), QStringLiteral("IP10.0.0.2"));
    EXPECT_EQ(model.index(1, 0).data(Qt::UserRole + 1).toString(), QStringLiteral("10.0.0.2"));
    EXPECT_EQ(model.index(1, 0).data(Qt::UserRole + 2).toString(), QStringLiteral("green"));
    EXPECT_EQ(model.index(1, 0).data(Qt::ForegroundRole).value<QBrush>().color(), QColor(0, 0, 192));
    EXPECT_EQ(model.index(2, 0).data(Qt::ForegroundRole).value<QBrush>().color(), QColor(0, 128, 0));
}

TEST_F(FrmConference, EnterSendsToEverybodyAndEmptiesTheBox)
{
    host();
    QTest::keyClicks(&intext(), QStringLiteral("hello"));
    QTest::keyClick(&intext(), Qt::Key_Return);
    EXPECT_THAT(windows.sent(),
                ElementsAre(To("10.0.0.2", "+10.0.0.1 #1 hello"), To("10.0.0.3", "+10.0.0.1 #1 hello")));
    EXPECT_EQ(intext().toPlainText(), QString());
    EXPECT_EQ(form().focusWidget(), &intext());
    EXPECT_EQ(lastLogLine(), "Me> hello");
    intext().insertPlainText(QString(2500, u'x'));
    EXPECT_EQ(intext().toPlainText().size(), 2000);
}

TEST_F(FrmConference, KickingIsForSelectedGuestsAlone)
{
    host();
    auto &list = control<QTreeView>("partecipanti");
    auto &kick = control<QPushButton>("kickuserbtn");
    EXPECT_TRUE(kick.isVisible());
    EXPECT_FALSE(control<QPushButton>("refreshlistbtn").isVisible());
    EXPECT_FALSE(kick.isEnabled());
    list.setCurrentIndex(list.model()->index(0, 0));
    EXPECT_FALSE(kick.isEnabled()) << "nobody kicks himself";
    list.setCurrentIndex(list.model()->index(2, 0));
    EXPECT_TRUE(kick.isEnabled());
    QTest::mouseClick(&kick, Qt::LeftButton);
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.3", "!CONF CLOSE #1")));
    EXPECT_EQ(list.model()->rowCount(), 2);
}

TEST_F(FrmConference, AGuestRefreshesTheList)
{
    join();
    EXPECT_EQ(form().windowTitle(), QStringLiteral("Conference #1 (Hosted by 'Ann') - NIMB-Chat"));
    auto &refresh = control<QPushButton>("refreshlistbtn");
    EXPECT_TRUE(refresh.isVisible());
    EXPECT_FALSE(control<QPushButton>("kickuserbtn").isVisible());
    QTest::mouseClick(&refresh, Qt::LeftButton);
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "?CONF USERS #3")));
    EXPECT_EQ(form().focusWidget(), &control<QPushButton>("sendbtn"));
}

TEST_F(FrmConference, AClosedConferenceTakesNoInput)
{
    join();
    windows.arrive("10.0.0.2", "!CONF CLOSE #3");
    EXPECT_FALSE(intext().isEnabled());
    EXPECT_FALSE(control<QPushButton>("sendbtn").isEnabled());
    EXPECT_FALSE(control<QToolButton>("sendFileBtn").isEnabled());
    EXPECT_EQ(lastLogLine(), "--- This conference is terminated.");
    QTest::mouseClick(&control<QToolButton>("datetimebtn"), Qt::LeftButton);
    QTest::mouseClick(&control<QToolButton>("Emoticbtn"), Qt::LeftButton);
    QCoreApplication::processEvents();
    auto &picker = control<QListWidget>("ListViewEmot");
    EXPECT_TRUE(picker.isVisible());
    QTest::mouseClick(picker.viewport(), Qt::LeftButton, {}, picker.visualItemRect(picker.item(0)).center());
    EXPECT_EQ(intext().toPlainText(), QString());
    form().close();
    EXPECT_THAT(windows.prompts.asked, IsEmpty());
    EXPECT_THAT(open(), IsEmpty());
}

TEST_F(FrmConference, ItsCloseBoxAsks)
{
    host();
    windows.prompts.answer = false;
    form().close();
    EXPECT_THAT(windows.prompts.asked,
                ElementsAre("NIMB-Chat: Closing that window will terminate the conference. Proceed?"));
    EXPECT_THAT(windows.sent(), IsEmpty());
    windows.prompts.answer = true;
    form().close();
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!CONF CLOSE #1"), To("10.0.0.3", "!CONF CLOSE #1")));
    EXPECT_THAT(open(), IsEmpty());
    EXPECT_FALSE(windows.entry("mnuInvite2Conf1").isVisible());
}

TEST_F(FrmConference, TheEntriesOfTheMenuFollowTheHostedOnes)
{
    EXPECT_FALSE(windows.entry("mnuInvite2Conf1").isVisible());
    windows.entry("mnuCreateNewConf").trigger();
    EXPECT_TRUE(windows.entry("mnuInvite2Conf1").isVisible());
    EXPECT_FALSE(windows.entry("mnuInvite2Conf2").isVisible());
}

TEST_F(FrmConference, IsHeldToItsLeastSize)
{
    host();
    form().resize(100, 100);
    EXPECT_EQ(form().minimumWidth(), 667);
    EXPECT_EQ(form().minimumHeight(), 307);
    EXPECT_GE(form().width(), 667);
    EXPECT_GE(form().height(), 307);
}

TEST_F(FrmConference, ListAndAvatarsFoldAway)
{
    host();
    auto &showlist = control<QToolButton>("showlist");
    auto &showavatars = control<QToolButton>("showavatars");
    EXPECT_EQ(showlist.text(), QStringLiteral("<"));
    EXPECT_EQ(showavatars.text(), QStringLiteral(">"));
    EXPECT_EQ(control<QTreeView>("partecipanti").width(), 149);
    EXPECT_EQ(control<QGroupBox>("AvatarsFrame").width(), 77);
    QTest::mouseClick(&showlist, Qt::LeftButton);
    EXPECT_EQ(showlist.text(), QStringLiteral(">"));
    EXPECT_FALSE(control<QTreeView>("partecipanti").isVisible());
    EXPECT_FALSE(control<QPushButton>("kickuserbtn").isVisible());
    QTest::mouseClick(&showavatars, Qt::LeftButton);
    EXPECT_EQ(showavatars.text(), QStringLiteral("<"));
    EXPECT_FALSE(control<QGroupBox>("AvatarsFrame").isVisible());
    QTest::mouseClick(&showlist, Qt::LeftButton);
    EXPECT_TRUE(control<QPushButton>("kickuserbtn").isVisible());
    EXPECT_FALSE(control<QPushButton>("refreshlistbtn").isVisible());
}

TEST_F(FrmConference, ShowsTheAvatarOfTheWriter)
{
    windows.arrive("10.0.0.2", "!AVATARHEAD x");
    windows.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'a'));
    host();
    EXPECT_TRUE(control<QLabel>("NoAvatarImg").isVisible());
    windows.arrive("10.0.0.2", "+10.0.0.2 #1 hello");
    EXPECT_EQ(control<QLabel>("AvatarLabel").text(), QStringLiteral("Ann"));
    EXPECT_TRUE(control<AvatarPicture>("AvatarPicture").isVisible());
    EXPECT_FALSE(control<QLabel>("NoAvatarImg").isVisible());
    windows.arrive("10.0.0.3", "+10.0.0.3 #1 hello");
    EXPECT_TRUE(control<QLabel>("NoAvatarImg").isVisible());
}

TEST_F(FrmConference, LinksInItOpen)
{
    host();
    windows.arrive("10.0.0.2", "+10.0.0.2 #1 http://fileserver/x");
    RichTextLogEdit &log = RealWindows::logOf(form());
    QTextCursor cursor = log.document()->find(QStringLiteral("fileserver"));
    cursor.setPosition(cursor.selectionStart() + 1);
    QTest::mouseClick(log.viewport(), Qt::LeftButton, {}, log.cursorRect(cursor).center());
    EXPECT_THAT(windows.links.opened, ElementsAre("http://fileserver/x"));
}

TEST_F(FrmConference, AnEmptyOneSaysHowToInviteAndDoesIt)
{
    windows.arrive("10.0.0.3", "!OFFLINE 10.0.0.3 PC Ben");
    windows.entry("mnuCreateNewConf").trigger();
    windows.sent();
    auto &hint = control<QLabel>("inviteHint");
    EXPECT_TRUE(hint.isVisible());
    EXPECT_TRUE(hint.text().startsWith(QLatin1String("Nobody else is here yet. <a href=")));
    Q_EMIT hint.linkActivated(QStringLiteral("invite"));
    auto *menu = form().findChild<QMenu *>(QStringLiteral("inviteMenu"));
    ASSERT_TRUE(menu);
    ASSERT_EQ(menu->actions().size(), 1) << "Ben is offline";
    EXPECT_EQ(menu->actions().front()->text(), QStringLiteral("Ann"));
    menu->actions().front()->trigger();
    menu->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "?CONF INVITE #1")));
    EXPECT_FALSE(hint.text().contains(QLatin1String("Nobody")));
    Q_EMIT hint.linkActivated(QStringLiteral("invite"));
    menu = form().findChild<QMenu *>(QStringLiteral("inviteMenu"));
    ASSERT_TRUE(menu);
    EXPECT_FALSE(menu->actions().front()->isEnabled()) << "nobody is left to be invited";
    EXPECT_EQ(hint.focusPolicy(), Qt::NoFocus);
    control<QWidget>("partecipanti").setFocus();
    menu->close();
    EXPECT_EQ(form().focusWidget(), &control<QWidget>("intext")) << "what is typed next is a message";
}

TEST_F(FrmConference, AJoinedOneOffersNoInvitation)
{
    join();
    EXPECT_FALSE(form().findChild<QLabel *>(QStringLiteral("inviteHint")));
}

TEST_F(FrmConference, OnceItIsOverNobodyIsThereAndNothingIsAsked)
{
    join();
    const QAbstractItemModel &rows = *control<QTreeView>("partecipanti").model();
    const auto picture = [&rows](int row) { return rows.index(row, 0).data(Qt::UserRole + 2).toString(); };
    EXPECT_EQ(picture(1), QStringLiteral("green"));
    auto &band = control<QLabel>("historyBand");
    EXPECT_TRUE(band.isVisible());
    windows.arrive("10.0.0.2", "!CONF CLOSE #3");
    EXPECT_EQ(rows.rowCount(), 3);
    for (int row = 0; row < rows.rowCount(); ++row)
        EXPECT_EQ(picture(row), QString()) << row;
    EXPECT_FALSE(band.isVisible());
}

TEST_F(FrmConference, ASingleInvitationIsSelected)
{
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    auto &list = RealWindows::control<QTreeView>(invitations(), "ListView1");
    EXPECT_EQ(list.selectionModel()->selectedRows().size(), 1);
    EXPECT_TRUE(RealWindows::control<QPushButton>(invitations(), "ConfAgreebtn").isEnabled());
    windows.arrive("10.0.0.3", "?CONF INVITE #4");
    EXPECT_EQ(list.selectionModel()->selectedRows().front().row(), 0) << "the other one changes nothing";
}

TEST_F(FrmConference, TheInvitationsHideInsteadOfClosing)
{
    EXPECT_FALSE(invitations().isVisible());
    windows.entry("mnushowinvitations").trigger();
    EXPECT_TRUE(invitations().isVisible());
    EXPECT_EQ(invitations().windowTitle(), QStringLiteral("Conference Invitations - NIMB-Chat"));
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    invitations().close();
    EXPECT_FALSE(invitations().isVisible());
    windows.arrive("10.0.0.3", "?CONF INVITE #1");
    EXPECT_TRUE(invitations().isVisible());
    EXPECT_EQ(RealWindows::control<QTreeView>(invitations(), "ListView1").model()->rowCount(), 2);
}

TEST_F(FrmConference, TheColoursOfParticipantsAreReadableOnWhateverGroundTheyStand)
{
    host();
    auto &list = control<QTreeView>("partecipanti");
    for (const QColor ground : {QColor(0x1E, 0x1F, 0x22), QColor(Qt::white)}) {
        QPalette palette = list.palette();
        palette.setColor(QPalette::Base, ground);
        list.setPalette(palette);
        int coloured = 0;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            const QVariant shown = list.model()->index(row, 0).data(Qt::ForegroundRole);
            if (!shown.isValid())
                continue;
            ++coloured;
            EXPECT_GE(contrast(shown.value<QBrush>().color(), ground), 4.5) << row;
        }
        EXPECT_GE(coloured, 1);
    }
}

TEST_F(FrmConference, EscapeHidesTheInvitations)
{
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    ASSERT_TRUE(invitations().isVisible());
    QTest::keyClick(&RealWindows::control<QTreeView>(invitations(), "ListView1"), Qt::Key_Escape);
    EXPECT_FALSE(invitations().isVisible());
    windows.entry("mnushowinvitations").trigger();
    EXPECT_TRUE(invitations().isVisible());
    EXPECT_EQ(RealWindows::control<QTreeView>(invitations(), "ListView1").model()->rowCount(), 1) << "nothing is lost";
}

TEST_F(FrmConference, WithoutInvitationsTheirWindowLeadsToAConferenceOfOnesOwn)
{
    windows.entry("mnushowinvitations").trigger();
    auto &hint = RealWindows::control<QLabel>(invitations(), "noInvitations");
    EXPECT_TRUE(hint.isVisible());
    QTest::mouseClick(&RealWindows::control<QPushButton>(invitations(), "newConferenceBtn"), Qt::LeftButton);
    EXPECT_EQ(open().size(), 1U);
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    EXPECT_FALSE(hint.isVisible());
}

TEST_F(FrmConference, OnlyPendingInvitationsAreAnswered)
{
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    auto &list = RealWindows::control<QTreeView>(invitations(), "ListView1");
    auto &agree = RealWindows::control<QPushButton>(invitations(), "ConfAgreebtn");
    auto &deny = RealWindows::control<QPushButton>(invitations(), "ConfDenybtn");
    list.selectionModel()->clear();
    EXPECT_FALSE(agree.isEnabled());
    list.setCurrentIndex(list.model()->index(0, 0));
    EXPECT_TRUE(agree.isEnabled());
    EXPECT_TRUE(deny.isEnabled());
    auto &denyAll = RealWindows::control<QPushButton>(invitations(), "ConfDenyAllbtn");
    QTest::mouseClick(&denyAll, Qt::LeftButton);
    EXPECT_FALSE(agree.isEnabled());
    EXPECT_FALSE(deny.isEnabled());
    EXPECT_FALSE(denyAll.isEnabled()) << "nothing is left to deny";
    EXPECT_EQ(list.model()->index(0, 2).data().toString(), QStringLiteral("Refused"));
    QTest::mouseClick(&RealWindows::control<QPushButton>(invitations(), "clearbtn"), Qt::LeftButton);
    EXPECT_FALSE(invitations().isVisible());
}

TEST_F(FrmConference, OnlyInvitationsThatAreOverCanBeCleared)
{
    windows.entry("mnushowinvitations").trigger();
    auto &clear = RealWindows::control<QPushButton>(invitations(), "clearbtn");
    EXPECT_FALSE(clear.isEnabled()) << "there is none";
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    EXPECT_FALSE(clear.isEnabled()) << "it may still be answered";
    windows.arrive("10.0.0.2", "!CONF CLOSE #3");
    EXPECT_TRUE(clear.isEnabled());
    windows.arrive("10.0.0.3", "?CONF INVITE #4");
    EXPECT_TRUE(clear.isEnabled());
    clear.setFocus();
    QTest::keyClick(&clear, Qt::Key_Space);
    EXPECT_FALSE(clear.isEnabled());
    auto &list = RealWindows::control<QTreeView>(invitations(), "ListView1");
    EXPECT_EQ(list.model()->rowCount(), 1);
    EXPECT_EQ(invitations().focusWidget(), &list) << "whoever presses on presses nothing else";
}

TEST_F(FrmConference, EnterAcceptsTheChosenInvitationAndPressesTheButtonWithTheFocus)
{
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    windows.arrive("10.0.0.3", "?CONF INVITE #4");
    auto &list = RealWindows::control<QTreeView>(invitations(), "ListView1");
    windows.entry("mnushowinvitations").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&invitations()));
    windows.sent();
    list.selectionModel()->clear();
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_THAT(windows.sent(), IsEmpty()) << "none is chosen";
    auto &minutes = RealWindows::control<QLineEdit>(invitations(), "autorefusemins");
    list.setCurrentIndex(list.model()->index(0, 0));
    minutes.setFocus();
    QTest::keyClick(&minutes, Qt::Key_Return);
    EXPECT_THAT(windows.sent(), IsEmpty()) << "typed elsewhere";
    auto &deny = RealWindows::control<QPushButton>(invitations(), "ConfDenybtn");
    deny.setFocus();
    QTest::keyClick(&deny, Qt::Key_Return);
    EXPECT_THAT(windows.sent(), ElementsAre(To("10.0.0.2", "!CONF INVITE #3 DENY")));
    list.setCurrentIndex(list.model()->index(0, 0));
    list.setFocus();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&list, &held);
    EXPECT_THAT(windows.sent(), IsEmpty()) << "held down since another window";
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_THAT(windows.sent(), Contains(To("10.0.0.3", "!CONF INVITE #4 AGREE")));
    EXPECT_EQ(open().size(), 1U);
}

TEST_F(FrmConference, TheMinutesBoxHoldsANumber)
{
    auto &minutes = RealWindows::control<QLineEdit>(invitations(), "autorefusemins");
    EXPECT_EQ(minutes.text(), QStringLiteral("5"));
    minutes.setText(QStringLiteral("abc"));
    EXPECT_EQ(minutes.text(), QStringLiteral("0"));
}

TEST_F(FrmConference, AfterAKickNobodyIsSelectedAndTypingGoesToTheInput)
{
    host();
    auto &list = control<QTreeView>("partecipanti");
    list.setCurrentIndex(list.model()->index(1, 0));
    auto &kick = control<QPushButton>("kickuserbtn");
    kick.setFocus();
    QTest::mouseClick(&kick, Qt::LeftButton);
    EXPECT_EQ(list.model()->rowCount(), 2);
    EXPECT_FALSE(list.selectionModel()->hasSelection());
    EXPECT_FALSE(kick.isEnabled());
    EXPECT_EQ(form().focusWidget(), &intext());
    QTest::mouseClick(&kick, Qt::LeftButton);
    EXPECT_EQ(list.model()->rowCount(), 2) << "a double click kicks one";
}

TEST_F(FrmConference, WhoLeavesTakesTheSelectionAlong)
{
    host();
    auto &list = control<QTreeView>("partecipanti");
    list.setCurrentIndex(list.model()->index(1, 0));
    windows.arrive("10.0.0.2", "!CONF LEAVE #1");
    QTest::mouseClick(&control<QPushButton>("kickuserbtn"), Qt::LeftButton);
    ASSERT_EQ(list.model()->rowCount(), 2);
    EXPECT_EQ(list.model()->index(1, 0).data().toString(), QStringLiteral("Ben"));
}

TEST_F(FrmConference, ARenewedInvitationDoesNotPassItsSelectionOn)
{
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    windows.arrive("10.0.0.3", "?CONF INVITE #1");
    auto &list = RealWindows::control<QTreeView>(invitations(), "ListView1");
    auto &accept = RealWindows::control<QPushButton>(invitations(), "ConfAgreebtn");
    list.setCurrentIndex(list.model()->index(0, 0));
    EXPECT_TRUE(accept.isEnabled());
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    EXPECT_FALSE(accept.isEnabled());
    QTest::mouseClick(&accept, Qt::LeftButton);
    EXPECT_THAT(open(), IsEmpty());
}

TEST_F(FrmConference, TwoClicksOnDenyRefuseOneInvitation)
{
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    windows.arrive("10.0.0.3", "?CONF INVITE #1");
    windows.sent();
    auto &list = RealWindows::control<QTreeView>(invitations(), "ListView1");
    auto &deny = RealWindows::control<QPushButton>(invitations(), "ConfDenybtn");
    list.setCurrentIndex(list.model()->index(0, 0));
    QTest::mouseClick(&deny, Qt::LeftButton);
    QTest::mouseClick(&deny, Qt::LeftButton);
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.2", "!CONF INVITE #3 DENY"}));
}

TEST_F(FrmConference, EveryEmoticonOfThePickerIsSeenInTheSmallestWindow)
{
    windows.entry("mnuCreateNewConf").trigger();
    form().resize(form().minimumSize());
    control<QToolButton>("Emoticbtn").click();
    QCoreApplication::processEvents();
    const auto &picker = control<QListWidget>("ListViewEmot");
    const QRect last = picker.visualItemRect(picker.item(picker.count() - 1));
    EXPECT_TRUE(picker.viewport()->rect().contains(last));
}

} // namespace
} // namespace nimb::test
