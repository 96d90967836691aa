#include "keyboard.h"
#include "real_windows.h"

#include "main_window/contact_view.h"
#include "widgets/muted_colour.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class ContactRows : public testing::Test
{
protected:
    ContactRows()
    {
        windows.settleStart({"10.0.0.2", "10.0.0.3", "10.0.0.4"});
        windows.list().clearSelection();
        windows.list().setCurrentIndex({});
    }

    int rowOf(const char *ip) { return windows.engine.contacts().rowOf(QString::fromLatin1(ip)); }
    QRect placeOf(const char *ip)
    {
        const QRect name = windows.list().visualRect(windows.list().model()->index(rowOf(ip), 0));
        return {0, name.top(), windows.list().viewport()->width(), name.height()};
    }
    /// The whole row as it is painted.
    QImage row(const char *ip) { return windows.list().viewport()->grab(placeOf(ip)).toImage(); }
    /// From the column of the states on.
    QImage rightSide(const char *ip)
    {
        const QImage whole = row(ip);
        return whole.copy(whole.width() - 173, 0, 173, whole.height());
    }
    static bool isBlank(const QImage &image)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != image.pixel(0, 0))
                    return false;
            }
        }
        return true;
    }
    /// Of what is written right of the picture: how far its darkest point is from the ground.
    static int strengthOfName(const QImage &row)
    {
        const QImage name = row.copy(44, 0, 80, row.height());
        int darkest = 255;
        for (int y = 0; y < name.height(); ++y) {
            for (int x = 0; x < name.width(); ++x)
                darkest = qMin(darkest, qGray(name.pixel(x, y)));
        }
        return qGray(name.pixel(0, 0)) - darkest;
    }

    RealWindows windows{{{"10.0.0.2", "Ann"},
                         {"10.0.0.3", "Benedikt Freiherr von und zu Hohenstein-Waldburg"},
                         {"10.0.0.4", "Cleo"},
                         {"10.0.0.5", "Dora"}}};
};

TEST_F(ContactRows, Are32PixelsHigh)
{
    EXPECT_EQ(placeOf("10.0.0.2").height(), 32);
    EXPECT_EQ(placeOf("10.0.0.3").top() - placeOf("10.0.0.2").top(), 32);
}

TEST_F(ContactRows, SayTheStateAtTheRightSideAndAwayOrBusyWhereThereIsNone)
{
    EXPECT_TRUE(isBlank(rightSide("10.0.0.2")));
    windows.arrive("10.0.0.2", "!STATUS AWAY");
    const QImage away = rightSide("10.0.0.2");
    EXPECT_FALSE(isBlank(away));
    windows.arrive("10.0.0.2", "!STATUS BUSY");
    EXPECT_FALSE(isBlank(rightSide("10.0.0.2")));
    EXPECT_NE(rightSide("10.0.0.2"), away);
    windows.arrive("10.0.0.2", "!STATUS AWAY Lunch");
    const QImage lunch = rightSide("10.0.0.2");
    EXPECT_FALSE(isBlank(lunch));
    windows.arrive("10.0.0.2", "!STATUS BUSY Lunch");
    EXPECT_EQ(rightSide("10.0.0.2"), lunch);
    EXPECT_EQ(windows.list().model()->index(rowOf("10.0.0.2"), 6).data().toString(), QStringLiteral("BUSY - Lunch"));
}

TEST_F(ContactRows, GiveTheNameTheRoomOfTheState)
{
    windows.arrive("10.0.0.3", "!STATUS AWAY");
    const QImage alone = row("10.0.0.3");
    EXPECT_FALSE(isBlank(rightSide("10.0.0.3"))) << "the name goes on there";
    windows.arrive("10.0.0.3", "!STATUS AWAY Lunch");
    EXPECT_EQ(row("10.0.0.3"), alone);
}

TEST_F(ContactRows, ShortenTheStateFirst)
{
    windows.arrive("10.0.0.2", "!STATUS AWAY Back at five");
    const QImage name = row("10.0.0.2").copy(0, 0, 66, 32);
    windows.arrive("10.0.0.2",
                   "!STATUS AWAY Back at five or six, depending on the train, so better do not wait for me");
    EXPECT_EQ(row("10.0.0.2").copy(0, 0, 66, 32), name);
}

TEST_F(ContactRows, OfWhoeverIsOfflineAreMutedAndSaySo)
{
    EXPECT_TRUE(isBlank(rightSide("10.0.0.2")));
    EXPECT_FALSE(isBlank(rightSide("10.0.0.5")));
    const int online = strengthOfName(row("10.0.0.2"));
    windows.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    EXPECT_LT(strengthOfName(row("10.0.0.2")), online);
    EXPECT_FALSE(isBlank(rightSide("10.0.0.2")));
    EXPECT_EQ(windows.list().model()->index(rowOf("10.0.0.2"), 6).data().toString(), QString());
}

TEST_F(ContactRows, ShowWhoIsMuted)
{
    EXPECT_TRUE(isBlank(rightSide("10.0.0.2")));
    windows.engine.contactCommands().mnuMuteContact(QStringLiteral("10.0.0.2"), true);
    EXPECT_FALSE(isBlank(rightSide("10.0.0.2")));
    windows.engine.contactCommands().mnuMuteContact(QStringLiteral("10.0.0.2"), false);
    EXPECT_TRUE(isBlank(rightSide("10.0.0.2")));
}

TEST_F(ContactRows, TellThePresenceByShape)
{
    const auto shape = [this] {
        // Dark and light alone, of the corner of the picture where the presence is.
        return row("10.0.0.2").copy(22, 16, 18, 16).convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage online = shape();
    windows.arrive("10.0.0.2", "!STATUS AWAY");
    const QImage away = shape();
    windows.arrive("10.0.0.2", "!STATUS BUSY");
    const QImage busy = shape();
    EXPECT_NE(online, away);
    EXPECT_NE(away, busy);
    EXPECT_NE(busy, online);
}

TEST_F(ContactRows, ShowTheAvatarAndWithoutOneTheInitials)
{
    const QRgb red = qRgb(255, 0, 0);
    const auto inPicture = [this] { return row("10.0.0.2").pixel(8 + 12, 4 + 4); };
    const QImage initials = row("10.0.0.2");
    EXPECT_NE(inPicture(), red);
    std::string body;
    for (int pixel = 0; pixel < 2500; ++pixel)
        body += std::string("\0\0\xFF", 3); // blue, green, red
    windows.arrive("10.0.0.2", "!AVATARBODY " + body);
    EXPECT_EQ(inPicture(), red);
    for (std::size_t i = 0; i < body.size(); i += 3)
        std::swap(body[i], body[i + 2]);
    windows.arrive("10.0.0.2", "!AVATARBODY " + body);
    EXPECT_EQ(inPicture(), qRgb(0, 0, 255)) << "the next one";
    windows.arrive("10.0.0.2", "!AVATAROFF");
    EXPECT_EQ(row("10.0.0.2"), initials);
}

TEST_F(ContactRows, KeepTheirColumnsInFullDetails)
{
    const auto cell = [this](int column) {
        const QRect place = windows.list().visualRect(windows.list().model()->index(rowOf("10.0.0.5"), column));
        return windows.list().viewport()->grab(place).toImage();
    };
    windows.control<QCheckBox>("ListDetails").click();
    const QImage address = cell(2);
    EXPECT_FALSE(isBlank(cell(1)));
    EXPECT_FALSE(isBlank(address));
    EXPECT_EQ(address.size(), QSize(83, 32));
    windows.arrive("10.0.0.5", "!ONLINE 10.0.0.5 PC Dora-Alexandra-Wilhelmina");
    EXPECT_EQ(cell(2), address) << "a long name stays in its column";
}

TEST_F(ContactRows, HaveTheDateOfAMessageThatIsNotOfToday)
{
    const auto rowWithMessageOf = [this](const QDateTime &time) {
        windows.engine.contacts().change(QStringLiteral("10.0.0.5"), [&time](Contact &contact) {
            contact.unreadInWindow = 1;
            contact.lastMessage = time;
        });
        QCoreApplication::processEvents();
        return row("10.0.0.5");
    };
    const auto ink = [](const QImage &image) {
        int columns = 0;
        for (int x = image.width() - 173; x < image.width(); ++x)
            columns += isBlank(image.copy(x, 0, 1, image.height())) ? 0 : 1;
        return columns;
    };
    const QDateTime now = windows.time.now();
    const int ofToday = ink(rowWithMessageOf(now));
    EXPECT_GT(ink(rowWithMessageOf(now.addDays(-1))), ofToday + 20) << "21/11/2026 in place of 14:05";
}

TEST_F(ContactRows, InFullDetailsTheNameGoesBeforeWhatStandsBesideIt)
{
    QFont large = windows.list().font();
    large.setPointSize(16);
    windows.list().setFont(large);
    windows.control<QCheckBox>("ListDetails").click();
    QCoreApplication::processEvents();
    const auto name = [this] {
        const QRect cell = windows.list().visualRect(windows.list().model()->index(rowOf("10.0.0.5"), 0));
        const QImage whole = windows.list().viewport()->grab(cell).toImage();
        return whole.copy(cell.height() + 4, 0, cell.width() - cell.height() - 4, cell.height());
    };
    const auto widthOfInk = [](const QImage &image) {
        int first = image.width(), last = 0;
        for (int x = 0; x < image.width(); ++x) {
            if (isBlank(image.copy(x, 0, 1, image.height())))
                continue;
            first = qMin(first, x);
            last = x;
        }
        return last - first;
    };
    const int alone = widthOfInk(name());
    ASSERT_GT(alone, 40);
    windows.engine.contacts().change(QStringLiteral("10.0.0.5"), [](Contact &contact) { contact.unreadInWindow = 12; });
    QCoreApplication::processEvents();
    EXPECT_GE(widthOfInk(name()), alone) << "the number lies over the picture";
}

TEST(ContactRowsOfNamesakes, ShortenTheAddressAndNotAShortName)
{
    RealWindows windows{{{"192.168.100.104", "Cleo"}, {"192.168.100.105", "Cleo"}, {"192.168.100.106", "Dora"}}};
    windows.settleStart({"192.168.100.104", "192.168.100.105", "192.168.100.106"});
    windows.list().clearSelection();
    windows.list().setCurrentIndex({});
    const auto setNickname = [&](const char *nickname) {
        windows.engine.contacts().change(QStringLiteral("192.168.100.105"), [&](Contact &contact) {
            contact.nickname = QLatin1String(nickname);
            contact.unreadInWindow = 1;
        });
    };
    const auto name = [&](int width) {
        const int number = windows.engine.contacts().rowOf(QStringLiteral("192.168.100.105"));
        const QRect cell = windows.list().visualRect(windows.list().model()->index(number, 0));
        const QRect row(0, cell.top(), windows.list().viewport()->width(), cell.height());
        // The picture at its left side is a square within the row, with a distance on each side.
        return windows.list().viewport()->grab(row).toImage().copy(row.height() + 8, 0, width - 2, row.height());
    };
    for (int tenths = 90; tenths <= 200; tenths += 5) {
        QFont font = windows.list().font();
        font.setPointSizeF(tenths / 10.0);
        windows.list().setFont(font);
        font.setBold(true);
        for (const char *const nickname : {"Cleo", "Li", "Wim", "Alfi"}) {
            setNickname(nickname);
            windows.engine.contacts().change(QStringLiteral("192.168.100.104"),
                                             [](Contact &contact) { contact.nickname = QStringLiteral("Cleo"); });
            QCoreApplication::processEvents();
            const int width = QFontMetrics(font).horizontalAdvance(QLatin1String(nickname));
            const QImage alone = name(width);
            windows.engine.contacts().change(QStringLiteral("192.168.100.104"),
                                             [&](Contact &contact) { contact.nickname = QLatin1String(nickname); });
            QCoreApplication::processEvents();
            EXPECT_EQ(name(width), alone) << nickname << " at " << tenths / 10.0 << " points";
        }
    }
}

TEST(EmptyContactList, SaysWhatToDoMoreQuietlyThanRows)
{
    RealWindows windows;
    QWidget &part = *windows.control<QPushButton>("findEverybodyBtn").parentWidget();
    const QLabel &sentence = *part.findChild<QLabel *>();
    const QColor ground = windows.list().palette().color(QPalette::Base);
    const QColor colour = sentence.palette().color(sentence.foregroundRole());
    EXPECT_TRUE(sentence.isVisible());
    EXPECT_LT(contrast(colour, ground), contrast(windows.list().palette().color(QPalette::Text), ground));
    EXPECT_GE(contrast(colour, ground), 4.5);
}

TEST_F(ContactRows, AreAskedForTheirRemovalByTheDeleteKey)
{
    windows.click(rowOf("10.0.0.2"));
    QTest::keyClick(&windows.list(), Qt::Key_Delete);
    ASSERT_EQ(windows.prompts.asked.size(), 1u);
    EXPECT_EQ(windows.engine.contacts().find(QStringLiteral("10.0.0.2")), nullptr);
    QTest::keyClick(&windows.list(), Qt::Key_Delete);
    EXPECT_EQ(windows.prompts.asked.size(), 1u) << "nobody is selected";
}

// --- finding

class ContactFilterTest : public testing::Test
{
protected:
    ContactFilterTest()
    {
        windows.settleStart({"10.0.0.2", "10.0.0.3", "10.0.0.4"});
        windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC-ATTIC Ann");
        windows.arrive("10.0.0.3", "!STATUS AWAY Lunch");
        windows.main().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&windows.main()));
        windows.list().setFocus();
        windows.sent();
    }

    QLineEdit &box() { return windows.control<QLineEdit>("contactFilter"); }
    QLabel &nobody() { return windows.control<QLabel>("nobodyFound"); }
    bool isSearching() { return box().isVisible(); }
    std::vector<std::string> shown()
    {
        std::vector<std::string> names;
        for (int row = 0; row < windows.list().model()->rowCount(); ++row) {
            if (!windows.list().isRowHidden(row, {}))
                names.push_back(nameOf(windows.list().model()->index(row, 0)));
        }
        return names;
    }
    std::vector<std::string> selected()
    {
        std::vector<std::string> names;
        for (const QModelIndex &row : windows.list().selectionModel()->selectedRows())
            names.push_back(nameOf(row));
        return names;
    }
    static std::string nameOf(const QModelIndex &row) { return row.data().toString().toStdString(); }
    void find(const char *text)
    {
        QTest::keyClick(&windows.main(), Qt::Key_K, Qt::ControlModifier);
        box().clear();
        type(text);
    }
    static void type(const char *text) { test::type(text); }

    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}, {"10.0.0.4", "Cleo"}, {"10.0.0.5", "Dora"}}};
};

TEST_F(ContactFilterTest, ComesWithCtrlKWithinTheMeasuresOfTheList)
{
    EXPECT_FALSE(isSearching());
    const QRect list = windows.list().geometry();
    const int firstRow = windows.list().viewport()->geometry().top();
    windows.control("RescanBtn").setFocus();
    QTest::keyClick(&windows.main(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_TRUE(isSearching());
    EXPECT_TRUE(box().hasFocus());
    EXPECT_EQ(box().placeholderText(), QStringLiteral("Find a contact (Ctrl+K)"));
    EXPECT_EQ(windows.list().geometry(), list);
    const QRect place(box().mapTo(&windows.main(), QPoint(0, 0)), box().size());
    const auto seen = [this](QWidget &part) { return QRect(part.mapTo(&windows.main(), QPoint(0, 0)), part.size()); };
    EXPECT_TRUE(seen(windows.list()).contains(place));
    for (const char *name : {"ImageCombo1", "TabStrip1"})
        EXPECT_FALSE(seen(windows.control(name)).intersects(place)) << name;
    EXPECT_FALSE(seen(*windows.list().viewport()).intersects(place)) << "it covers no row";
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_FALSE(isSearching());
    EXPECT_EQ(windows.list().viewport()->geometry().top(), firstRow);
    EXPECT_TRUE(windows.list().hasFocus());
}

TEST_F(ContactFilterTest, IsNotCoveredByTheScrollBar)
{
    for (int i = 1; i < 50; ++i) {
        const std::string ip = "10.1.0." + std::to_string(i);
        windows.arrive(ip.c_str(), "!ONLINE " + ip + " PC N");
    }
    ASSERT_TRUE(windows.list().verticalScrollBar()->isVisible());
    find("");
    const QPoint end = box().mapTo(&windows.main(), QPoint(box().width() - 3, box().height() / 2));
    EXPECT_TRUE(box().isAncestorOf(windows.main().childAt(end)) || windows.main().childAt(end) == &box());
}

TEST_F(ContactFilterTest, TakesWhatIsTypedIntoTheList)
{
    type("be");
    EXPECT_TRUE(isSearching());
    EXPECT_EQ(box().text(), QStringLiteral("be"));
    EXPECT_TRUE(box().hasFocus());
    EXPECT_THAT(shown(), ElementsAre("Ben"));
    windows.list().setFocus();
    QTest::keyClick(&windows.list(), Qt::Key_Backspace);
    EXPECT_EQ(box().text(), QStringLiteral("b"));
    windows.list().setFocus();
    type("x");
    EXPECT_EQ(box().text(), QStringLiteral("bx"));
}

TEST_F(ContactFilterTest, LeavesBlanksAndCommandsToTheList)
{
    QTest::keyClick(&windows.list(), Qt::Key_Space);
    QTest::keyClick(&windows.list(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&windows.list(), Qt::Key_B, Qt::AltModifier);
    EXPECT_FALSE(isSearching());
    EXPECT_EQ(selected().size(), 4u);
}

TEST_F(ContactFilterTest, FindsByNameWorkstationAddressAndState)
{
    const std::pair<const char *, const char *> searches[] = {{"ANN", "Ann"}, {"attic", "Ann"},    {"0.0.4", "Cleo"},
                                                              {"lun", "Ben"}, {"offline", "Dora"}, {"  leo ", "Cleo"}};
    for (const auto &[text, name] : searches) {
        find(text);
        EXPECT_THAT(shown(), ElementsAre(name)) << text;
    }
    EXPECT_THAT(windows.sent(), IsEmpty());
}

TEST_F(ContactFilterTest, WantsEveryWordInAnyOrder)
{
    find("attic ann");
    EXPECT_THAT(shown(), ElementsAre("Ann"));
    type(" lunch");
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(ContactFilterTest, AButtonShowsEverybodyAgainWhereNobodyIsFound)
{
    find("zoe");
    QTest::mouseClick(&windows.control<QPushButton>("showEverybodyBtn"), Qt::LeftButton);
    EXPECT_FALSE(isSearching());
    EXPECT_FALSE(nobody().isVisible());
    EXPECT_EQ(shown().size(), 4U);
    EXPECT_TRUE(windows.list().hasFocus());
}

TEST_F(ContactFilterTest, SaysInOneLineThatNobodyIsFound)
{
    find("zoe");
    EXPECT_TRUE(nobody().isVisible());
    EXPECT_EQ(nobody().text(), QStringLiteral("Nobody here is called \"zoe\""));
    EXPECT_LE(nobody().height(), 32);
    windows.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC Zoe");
    EXPECT_FALSE(nobody().isVisible());
    EXPECT_THAT(shown(), ElementsAre("Zoe"));
    windows.engine.contacts().remove(QStringLiteral("10.0.0.9"));
    EXPECT_TRUE(nobody().isVisible()) << "she has gone again";
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_FALSE(nobody().isVisible());
    EXPECT_THAT(shown(), ElementsAre("Ann", "Cleo", "Ben", "Dora"));
}

TEST_F(ContactFilterTest, FollowsRowsThatComeAndChange)
{
    find("an");
    EXPECT_THAT(shown(), ElementsAre("Ann"));
    windows.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC Zoe");
    EXPECT_THAT(shown(), ElementsAre("Ann"));
    windows.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC Hanna");
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Vera");
    EXPECT_THAT(shown(), ElementsAre("Hanna"));
    windows.arrive("10.0.0.9", "!STATUS AWAY");
    EXPECT_THAT(shown(), ElementsAre("Hanna")) << "who moves to another place";
}

TEST_F(ContactFilterTest, LeavesThoseHiddenForWhomAnotherRowStands)
{
    windows.arrive("10.7.0.3", "!ONLINE 10.7.0.3 PC Cleo");
    windows.engine.contacts().change(QStringLiteral("10.7.0.3"),
                                     [](Contact &twin) { twin.shownBy = ContactAddress(QStringLiteral("10.0.0.4")); });
    find("cleo");
    EXPECT_THAT(shown(), ElementsAre("Cleo"));
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_THAT(shown(), ElementsAre("Ann", "Cleo", "Ben", "Dora"));
}

TEST_F(ContactFilterTest, SelectsNobodyWhoIsHiddenAndGivesTheSelectionBack)
{
    windows.click(0);
    ASSERT_THAT(selected(), ElementsAre("Ann"));
    find("ben");
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_FALSE(windows.entry("mnuRemoveUser").isEnabled());
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_THAT(selected(), ElementsAre("Ann"));
}

TEST_F(ContactFilterTest, KeepsWhoWasChosenMeanwhile)
{
    windows.click(0);
    find("ben");
    QTest::keyClick(&box(), Qt::Key_Down);
    EXPECT_TRUE(windows.list().hasFocus());
    EXPECT_THAT(selected(), ElementsAre("Ben"));
    QTest::keyClick(&windows.list(), Qt::Key_Escape);
    EXPECT_FALSE(isSearching());
    EXPECT_THAT(shown(), ElementsAre("Ann", "Cleo", "Ben", "Dora"));
    EXPECT_THAT(selected(), ElementsAre("Ben"));
    EXPECT_TRUE(windows.list().hasFocus());
}

TEST_F(ContactFilterTest, SelectsNobodyAfterwardsWhenNobodyWasBefore)
{
    windows.list().clearSelection();
    windows.list().setCurrentIndex({});
    find("ben");
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_TRUE(windows.list().hasFocus());
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(ContactFilterTest, OpensTheFirstWhoIsFoundOnEnter)
{
    find("e");
    EXPECT_THAT(shown(), ElementsAre("Cleo", "Ben", "Dora")) << "and Dora, for she is offline";
    QTest::keyClick(&box(), Qt::Key_Return);
    EXPECT_EQ(windows.privateWindow().windowTitle(), QStringLiteral("Cleo - NIMB-Chat - Private Chat Window"));
    EXPECT_FALSE(isSearching());
    EXPECT_THAT(shown(), ElementsAre("Ann", "Cleo", "Ben", "Dora"));
    EXPECT_THAT(selected(), ElementsAre("Cleo"));
}

TEST_F(ContactFilterTest, OpensNobodyOnEnterAsLongAsNobodyIsMeant)
{
    windows.click(0);
    find("");
    QTest::keyClick(&box(), Qt::Key_Return);
    type("zoe");
    QTest::keyClick(&box(), Qt::Key_Return);
    EXPECT_THAT(RealWindows::privateWindows(), IsEmpty());
    EXPECT_TRUE(isSearching());
}

TEST_F(ContactFilterTest, GoesWhenItIsLeftEmpty)
{
    find("");
    QTest::keyClick(&box(), Qt::Key_Tab);
    EXPECT_FALSE(isSearching());
    find("ben");
    QTest::keyClick(&box(), Qt::Key_Tab);
    EXPECT_TRUE(isSearching());
    EXPECT_TRUE(windows.list().hasFocus());
    EXPECT_THAT(shown(), ElementsAre("Ben"));
}

TEST_F(ContactFilterTest, KeepsItsKeysFromTheList)
{
    windows.click(0);
    find("");
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Home, Qt::Key_Up, Qt::Key_PageDown})
        QTest::keyClick(&box(), key);
    EXPECT_THAT(windows.prompts.asked, IsEmpty());
    EXPECT_THAT(selected(), ElementsAre("Ann"));
}

TEST_F(ContactFilterTest, EndsWhenSomebodyIsShown)
{
    find("ben");
    windows.main().showContact(QStringLiteral("10.0.0.4"));
    EXPECT_FALSE(isSearching());
    EXPECT_THAT(selected(), ElementsAre("Cleo"));
}

TEST_F(ContactFilterTest, IsNotCalledWhileAPanelLiesOverTheList)
{
    Q_EMIT windows.control<QComboBox>("ImageCombo1").activated(4);
    QTest::keyClick(&windows.main(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_FALSE(isSearching());
}

TEST_F(ContactFilterTest, IsBetweenTabsAndListForTheTabKey)
{
    find("ben");
    windows.control("TabStrip1").setFocus();
    QTest::keyClick(windows.main().focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(windows.main().focusWidget()->objectName(), QStringLiteral("contactFilter"));
    QTest::keyClick(windows.main().focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(windows.main().focusWidget()->objectName(), QStringLiteral("ListView1"));
    EXPECT_THAT(withoutAccessibleName(windows.main()), IsEmpty());
}

// --- read by a screen reader

class AccessibleContactsTest : public ContactFilterTest
{
protected:
    QAccessibleInterface &reader() { return *QAccessible::queryAccessibleInterface(&windows.list()); }
    std::vector<std::string> read()
    {
        std::vector<std::string> texts;
        for (int i = 0; i < reader().childCount(); ++i)
            texts.push_back(reader().child(i)->text(QAccessible::Name).toStdString());
        return texts;
    }
};

TEST_F(AccessibleContactsTest, ReadsEachRowOnceAndNoColumnThatIsHidden)
{
    EXPECT_EQ(reader().text(QAccessible::Name), QStringLiteral("Contacts"));
    EXPECT_EQ(reader().role(), QAccessible::List);
    EXPECT_THAT(read(), ElementsAre("Ann, online", "Cleo, online", "Ben, away, Lunch", "Dora, offline"));
    for (int i = 0; i < 4; ++i) {
        QAccessibleInterface *const row = reader().child(i);
        EXPECT_EQ(row->role(), QAccessible::ListItem);
        EXPECT_EQ(row->parent(), &reader());
        EXPECT_EQ(row->childCount(), 0);
        EXPECT_EQ(reader().indexOfChild(row), i);
        EXPECT_EQ(row->text(QAccessible::Description), QString());
        const QPoint middle = row->rect().center();
        EXPECT_EQ(reader().childAt(middle.x(), middle.y()), row);
    }
    windows.control<QCheckBox>("ListDetails").click();
    EXPECT_EQ(reader().child(0)->text(QAccessible::Description), QStringLiteral("PC-ATTIC, 10.0.0.2"));
}

TEST_F(AccessibleContactsTest, LeavesOutRowsThatAreNotShown)
{
    windows.click(2);
    find("ben");
    EXPECT_THAT(read(), ElementsAre("Ben, away, Lunch"));
    EXPECT_EQ(reader().focusChild(), nullptr) << "the box has it";
    QTest::keyClick(&box(), Qt::Key_Down);
    EXPECT_EQ(reader().focusChild(), reader().child(0));
    EXPECT_TRUE(reader().child(0)->state().selected);
    EXPECT_TRUE(reader().child(0)->state().focused);
    find("zoe");
    EXPECT_THAT(read(), ElementsAre("Nobody here is called \"zoe\""));
}

TEST_F(AccessibleContactsTest, KnowsNobodyAnyMoreWhoHasGone)
{
    const QAccessible::Id ann = QAccessible::uniqueId(reader().child(0));
    const QAccessible::Id ben = QAccessible::uniqueId(reader().child(2));
    windows.engine.contacts().remove(QStringLiteral("10.0.0.2"));
    EXPECT_EQ(QAccessible::accessibleInterface(ann), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(ben)->text(QAccessible::Name), QStringLiteral("Ben, away, Lunch"));
    EXPECT_THAT(read(), ElementsAre("Cleo, online", "Ben, away, Lunch", "Dora, offline"));
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(read(), ElementsAre("Ann, online", "Cleo, online", "Ben, away, Lunch", "Dora, offline"));
}

/// Asks for the row in the way of the view itself, which numbers what it tells by all columns of all rows, the captions
/// first. Nothing is told as long as nobody listens.
class ListeningView : public ContactView
{
public:
    using ContactView::ContactView;
    void scrollTo(const QModelIndex &contact, ScrollHint hint) override
    {
        ContactView::scrollTo(contact, hint);
        if (!countsCells())
            return;
        const int cell = (numberOf(contact) + 1) * contact.model()->columnCount() + contact.column();
        told.push_back(QAccessible::queryAccessibleInterface(this)->child(cell)->text(QAccessible::Name).toStdString());
    }

    std::vector<std::string> told;
};

TEST_F(AccessibleContactsTest, TellsWhichRowIsMarked)
{
    ListeningView view;
    view.setModel(&windows.engine.contacts());
    view.setDetailColumns(0, 0, 173);
    view.resize(300, 300);
    view.show();
    view.setCurrentIndex(view.model()->index(0, 0));
    QTest::keyClick(&view, Qt::Key_Down);
    view.setRowHidden(2, {}, true);
    view.setCurrentIndex(view.model()->index(3, ContactList::StateText));
    EXPECT_THAT(view.told, ElementsAre("Ann, online", "Cleo, online", "Dora, offline"));
}

TEST(AccessibleContactsOfALongList, FindsEveryRowWhereverTheListStands)
{
    RealWindows windows;
    for (int i = 0; i < 300; ++i) {
        Contact contact;
        contact.ip = QStringLiteral("10.1.%1.%2").arg(i / 100).arg(i % 100 + 1);
        contact.nickname = QStringLiteral("N%1").arg(1000 + i);
        contact.setPresence(Presence::online);
        windows.engine.contacts().add(contact);
    }
    windows.engine.contacts().change(QStringLiteral("10.1.0.2"), [](Contact &contact) {
        contact.shownBy = ContactAddress(QStringLiteral("10.1.0.1"));
    });
    QAccessibleInterface &reader = *QAccessible::queryAccessibleInterface(&windows.list());
    for (const int row : {0, 150, 299}) {
        windows.list().scrollTo(windows.list().model()->index(row, 0));
        ASSERT_EQ(reader.childCount(), 299);
        EXPECT_EQ(reader.child(0)->text(QAccessible::Name), QStringLiteral("N1000, online"));
        EXPECT_EQ(reader.child(1)->text(QAccessible::Name), QStringLiteral("N1002, online"));
        EXPECT_EQ(reader.child(298)->text(QAccessible::Name), QStringLiteral("N1299, online"));
        EXPECT_EQ(reader.indexOfChild(reader.child(298)), 298);
    }
}

} // namespace
} // namespace nimb::test
