#include "notify/frmNotify.h"
#include "real_windows.h"

#include <QPushButton>
#include <QScreen>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;

class FrmNotifyTest : public testing::Test
{
protected:
    FrmNotifyTest()
    {
        windows.settleStart({"10.0.0.2"});
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("frmNotify"))
                notify = window;
        }
    }
    QAbstractItemModel &rows() { return *RealWindows::control<QTreeView>(*notify, "ListViewNotify").model(); }
    void lookAtMain()
    {
        windows.main().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&windows.main()));
    }
    /// Long enough to rise, whatever the screen.
    void rise() { windows.time.advance(2000ms); }

    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}};
    QWidget *notify = nullptr;
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
};

TEST_F(FrmNotifyTest, IsShownAtStartButBelowTheScreen)
{
    EXPECT_EQ(notify->windowTitle(), QStringLiteral("NIMBChat Notify!"));
    EXPECT_FALSE(notify->windowIcon().isNull());
    EXPECT_TRUE(notify->isVisible());
    EXPECT_EQ(notify->y(), screen.height() + 8);
    EXPECT_EQ(notify->x(), screen.width() - notify->width() - 8);
}

TEST_F(FrmNotifyTest, RisesWithWhatHappenedAndGoesAfterFiveSeconds)
{
    windows.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Ben");
    windows.arrive("10.0.0.2", "!OFFLINE");
    rise();
    // The last step of 20 twips may lead a little beyond its place.
    const int risen = screen.height() - notify->height() - 16;
    EXPECT_THAT(notify->y(), testing::AllOf(testing::Le(risen), testing::Ge(risen - 2)));
    EXPECT_EQ(notify->x(), screen.width() - notify->width() - 8);
    ASSERT_EQ(rows().rowCount(), 2);
    EXPECT_EQ(rows().index(0, 0).data().toString(), QStringLiteral("Ben is online"));
    EXPECT_EQ(rows().index(0, 0).data(Qt::UserRole + 2).toString(), QStringLiteral("green"));
    EXPECT_EQ(rows().index(1, 0).data().toString(), QStringLiteral("Ann is offline"));
    windows.time.advance(5000ms);
    EXPECT_EQ(notify->y(), screen.height() + 8);
    EXPECT_EQ(rows().rowCount(), 0);
}

TEST_F(FrmNotifyTest, GrowsWithTheLettersOfTheDesktop)
{
    const QSize usual = notify->size();
    QFont large = notify->font();
    large.setPointSize(2 * large.pointSize());
    notify->setFont(large);
    EXPECT_GT(notify->width(), usual.width());
    EXPECT_GT(notify->height(), usual.height());
    windows.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Ben");
    rise();
    EXPECT_EQ(notify->x(), screen.width() - notify->width() - 8) << "it stands where one of this size has to";
    const QFontMetrics letters = RealWindows::control<QTreeView>(*notify, "ListViewNotify").fontMetrics();
    EXPECT_GT(RealWindows::control<QTreeView>(*notify, "ListViewNotify").viewport()->width(),
              30 * letters.averageCharWidth());
}

TEST_F(FrmNotifyTest, HideDismissesIt)
{
    windows.arrive("10.0.0.2", "!OFFLINE");
    rise();
    auto &hide = RealWindows::control<QPushButton>(*notify, "closebtn");
    EXPECT_EQ(hide.text(), QStringLiteral("hide"));
    QTest::mouseClick(&hide, Qt::LeftButton);
    EXPECT_EQ(notify->y(), screen.height() + 8);
    EXPECT_EQ(rows().rowCount(), 0);
}

TEST_F(FrmNotifyTest, WhileItIsSwitchedOffItNeverRises)
{
    windows.common.options.notifyWindow = false;
    windows.arrive("10.0.0.2", "!OFFLINE");
    rise();
    EXPECT_EQ(notify->y(), screen.height() + 8);
    EXPECT_EQ(rows().rowCount(), 0);
}

TEST_F(FrmNotifyTest, AClickOnARowShowsTheContact)
{
    windows.main().showMinimized();
    windows.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Ben");
    rise();
    auto &list = RealWindows::control<QTreeView>(*notify, "ListViewNotify");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(rows().index(0, 0)).center());
    EXPECT_FALSE(windows.main().isMinimized());
    EXPECT_EQ(windows.list().currentIndex().data().toString(), QStringLiteral("Ben"));
}

TEST_F(FrmNotifyTest, AClickOnAMessageOpensItsConversation)
{
    windows.arrive("10.0.0.2", "-hello");
    rise();
    ASSERT_EQ(rows().rowCount(), 1);
    EXPECT_EQ(rows().index(0, 0).data().toString(), QStringLiteral("Ann: hello"));
    EXPECT_TRUE(windows.privateWindow().isMinimized());
    lookAtMain();
    auto &list = RealWindows::control<QTreeView>(*notify, "ListViewNotify");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(rows().index(0, 0)).center());
    EXPECT_FALSE(windows.privateWindow().isMinimized());
    EXPECT_TRUE(QTest::qWaitFor([this] { return rows().rowCount() == 0; })) << "what is looked at is still told of";
    EXPECT_EQ(notify->y(), screen.height() + 8);
}

TEST_F(FrmNotifyTest, AClickOnAnInvitationOpensTheInvitations)
{
    windows.arrive("10.0.0.2", "?CONF INVITE #1"); // the window comes up, and is active where focus means nothing
    lookAtMain();
    windows.arrive("10.0.0.2", "?CONF INVITE #2");
    rise();
    ASSERT_EQ(rows().rowCount(), 1);
    EXPECT_EQ(rows().index(0, 0).data().toString(), QStringLiteral("Ann invites you to a conference"));
    auto &list = RealWindows::control<QTreeView>(*notify, "ListViewNotify");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(rows().index(0, 0)).center());
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto invitations = std::find_if(all.begin(), all.end(), [](const QWidget *window) {
        return window->objectName() == QLatin1String("frmConfInvitations");
    });
    ASSERT_NE(invitations, all.end());
    EXPECT_TRUE(QTest::qWaitForWindowActive(*invitations));
}

TEST_F(FrmNotifyTest, AClickOnAContactThatIsGoneShowsTheMainWindowAlone)
{
    windows.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Ben");
    rise();
    windows.engine.contacts().remove(QStringLiteral("10.0.0.3"));
    windows.main().hide();
    auto &list = RealWindows::control<QTreeView>(*notify, "ListViewNotify");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(rows().index(0, 0)).center());
    EXPECT_TRUE(windows.main().isVisible());
}

TEST_F(FrmNotifyTest, LongNamesStayInsideAndMarkupIsShown)
{
    windows.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC <b>" + std::string(300, 'W'));
    rise();
    EXPECT_TRUE(rows().index(0, 0).data().toString().startsWith(QStringLiteral("<b>WWW")));
    EXPECT_LT(rows().index(0, 0).data().toString().size(), 100);
    const auto &list = RealWindows::control<QTreeView>(*notify, "ListViewNotify");
    EXPECT_LE(list.columnWidth(0), list.viewport()->width());
}

TEST_F(FrmNotifyTest, WhereWindowsCannotBePlacedItStaysHidden)
{
    NotifySlide slide(windows.common, windows.time);
    const frmNotify elsewhere(slide); // tied to nothing
    slide.add({QStringLiteral("Ann is online"), Presence::online, Ipv4Address(10, 0, 0, 2)});
    slide.startTimer();
    windows.time.advance(2000ms);
    EXPECT_FALSE(elsewhere.isVisible());
}

} // namespace
} // namespace nimb::test
