// The emoji beside the emoticons. What is chosen here is what every font of the tests has.
#include "conversation/emoji_model.h"
#include "real_windows.h"

#include <QAbstractItemModel>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QToolButton>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;

const QString grinning = QStringLiteral("\U0001F600");
const QString joy = QStringLiteral("\U0001F602");

class EmojiPickerTest : public testing::Test
{
protected:
    EmojiPickerTest()
    {
        windows.settleStart({"10.0.0.2", "10.0.0.3"});
        windows.doubleClick(0);
        windows.sent();
        m_form = &windows.privateWindow();
        form().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form()));
    }

    QWidget &form() { return *m_form; }
    /// Ben's window, beside that of Ann.
    QWidget &openOther()
    {
        windows.doubleClick(1);
        for (QWidget *const window : RealWindows::privateWindows()) {
            if (window != m_form)
                return *window;
        }
        qFatal("no other window");
    }
    template <class Widget> Widget &control(const char *name) { return RealWindows::control<Widget>(form(), name); }
    QPlainTextEdit &intext() { return control<QPlainTextEdit>("intext"); }
    QLineEdit &search() { return control<QLineEdit>("emojiSearch"); }
    QListView &list() { return control<QListView>("emojiList"); }
    void pressButton()
    {
        QTest::mouseClick(&control<QToolButton>("Emoticbtn"), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    /// The texts of the first rows, headings among them.
    std::vector<std::string> rows(int count)
    {
        std::vector<std::string> texts;
        for (int row = 0; row < std::min(count, list().model()->rowCount()); ++row)
            texts.push_back(list().model()->index(row, 0).data().toString().toStdString());
        return texts;
    }
    QModelIndex rowOf(const QString &text)
    {
        const QModelIndexList found
            = list().model()->match(list().model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
        return found.value(0);
    }
    void find(const char *words)
    {
        search().selectAll();
        QTest::keyClicks(&search(), QString::fromUtf8(words));
    }
    void choose(const char *words)
    {
        find(words);
        QTest::keyClick(&search(), Qt::Key_Return);
    }

    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}};

private:
    QPointer<QWidget> m_form;
};

TEST_F(EmojiPickerTest, IsNotMadeBeforeItIsOpened)
{
    EXPECT_FALSE(form().findChild<QWidget *>(QStringLiteral("emojiPicker")));
    pressButton();
    EXPECT_TRUE(control<QWidget>("emojiPicker").isVisible());
    EXPECT_TRUE(control<QListWidget>("ListViewEmot").isVisible());
    EXPECT_FALSE(openOther().findChild<QWidget *>(QStringLiteral("emojiPicker")));
    pressButton();
    EXPECT_FALSE(control<QWidget>("emojiPicker").isVisible());
}

TEST_F(EmojiPickerTest, OpensWithFiveWholeLinesAlsoBelowWhatWasUsedLately)
{
    windows.common.recentEmoji = {joy};
    pressButton();
    const auto wholeLines = [this] {
        QSet<int> tops;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            const QRect place = list().visualRect(list().model()->index(row, 0));
            const bool isHeading = place.width() > 100;
            if (!isHeading && list().viewport()->rect().contains(place))
                tops.insert(place.top());
        }
        return tops.size();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return wholeLines() >= 5; })) << wholeLines();
    EXPECT_LE(form().height(), form().screen()->availableSize().height());
}

TEST_F(EmojiPickerTest, WhatIsTypedIsSearchedForAndEnterInsertsAtTheCaret)
{
    intext().setPlainText(QStringLiteral("well done"));
    QTextCursor behindFour(intext().document());
    behindFour.setPosition(4);
    intext().setTextCursor(behindFour);
    pressButton();
    EXPECT_EQ(form().focusWidget(), &search());
    QTest::keyClicks(&search(), QStringLiteral("tears of JOY"));
    EXPECT_THAT(rows(1), ElementsAre(joy.toStdString()));
    EXPECT_EQ(control<QLabel>("emojiName").text(), QStringLiteral("face with tears of joy"));
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("well\U0001F602 done"));
    EXPECT_TRUE(control<QWidget>("emojiPicker").isVisible());
    EXPECT_EQ(form().focusWidget(), &search());
    QTest::keyClicks(&search(), QStringLiteral("grinning face")); // in place of what was searched for before
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("well\U0001F602\U0001F600 done"));
    for (const To &datagram : windows.sent())
        EXPECT_EQ(datagram.bytes, "!TYPING") << "Enter in the picker sends nothing";
}

TEST_F(EmojiPickerTest, EscapeLeavesAndGivesTheFocusBackToTheInput)
{
    for (const char *const from : {"emojiSearch", "emojiList"}) {
        pressButton();
        control<QWidget>(from).setFocus();
        QTest::keyClick(&control<QWidget>(from), Qt::Key_Escape);
        EXPECT_FALSE(control<QWidget>("emojiPicker").isVisible()) << from;
        EXPECT_FALSE(control<QListWidget>("ListViewEmot").isVisible());
        EXPECT_FALSE(control<QToolButton>("Emoticbtn").isChecked());
        EXPECT_EQ(form().focusWidget(), &intext());
    }
    pressButton();
    pressButton();
    EXPECT_EQ(form().focusWidget(), &intext()) << "the button gives it back as well";
}

TEST_F(EmojiPickerTest, WhatWasUsedLatelyComesFirstInEveryWindow)
{
    pressButton();
    EXPECT_THAT(rows(2), ElementsAre("Smileys", grinning.toStdString()));
    choose("tears of joy");
    choose("grinning face");
    choose("tears of joy");
    search().clear();
    EXPECT_THAT(rows(4), ElementsAre("Recently used", joy.toStdString(), grinning.toStdString(), "Smileys"));
    EXPECT_EQ(windows.common.recentEmoji, QStringList({joy, grinning}));
    windows.time.advance(std::chrono::seconds(2));
    const std::optional<QString> kept
        = windows.settings.kept[{QStringLiteral("Options"), QStringLiteral("RecentEmoji")}];
    EXPECT_EQ(kept, std::optional(QStringLiteral("\U0001F602 \U0001F600"))) << "a program that is killed has them too";

    QWidget &other = openOther();
    RealWindows::control<QToolButton>(other, "Emoticbtn").click();
    const QAbstractItemModel &model = *RealWindows::control<QListView>(other, "emojiList").model();
    EXPECT_EQ(model.index(1, 0).data().toString(), joy);
}

TEST_F(EmojiPickerTest, WhatIsStoredAndNoEmojiIsNotOffered)
{
    windows.common.recentEmoji = {QStringLiteral("<b>x</b>"), joy};
    pressButton();
    EXPECT_THAT(rows(3), ElementsAre("Recently used", joy.toStdString(), "Smileys"));
}

TEST(EmojiModel, OffersNothingThatCannotBeShown)
{
    const EmojiTable table({QStringLiteral("en")});
    std::vector<bool> offered(table.all().size());
    offered[table.find(joy).value()] = true;
    EmojiModel model(table, offered, nullptr);
    model.showAll({grinning});
    ASSERT_EQ(model.rowCount(), 2) << "a heading and an emoji, no empty group";
    EXPECT_EQ(model.index(0).data().toString(), QStringLiteral("Smileys"));
    EXPECT_EQ(model.index(1).data().toString(), joy);
    model.showFound(QStringLiteral("face"));
    EXPECT_EQ(model.rowCount(), 1);
}

TEST_F(EmojiPickerTest, NothingMovesWhileSomebodyChoosesWithTheMouse)
{
    pressButton();
    const QPoint place = list().visualRect(rowOf(joy)).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(form().focusWidget(), &intext());
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(intext().toPlainText(), joy + joy);
    pressButton();
    pressButton();
    EXPECT_THAT(rows(2), ElementsAre("Recently used", joy.toStdString()));
}

TEST_F(EmojiPickerTest, ArrowsChooseAndHeadingsCannotBeChosen)
{
    windows.common.recentEmoji = {joy};
    pressButton();
    const auto current = [this] { return list().currentIndex().data().toString(); };
    EXPECT_EQ(current(), joy);
    QTest::keyClick(&search(), Qt::Key_Down);
    EXPECT_EQ(form().focusWidget(), &list());
    QTest::keyClick(&list(), Qt::Key_Right);
    EXPECT_EQ(list().currentIndex().row(), 3) << "behind the heading of the smileys";
    EXPECT_EQ(current(), grinning);
    QTest::keyClick(&list(), Qt::Key_Left);
    EXPECT_EQ(list().currentIndex().row(), 1);
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(current(), grinning);
    QTest::keyClick(&list(), Qt::Key_Enter);
    EXPECT_EQ(intext().toPlainText(), grinning);
    EXPECT_EQ(form().focusWidget(), &list());
    QTest::keyClick(&list(), Qt::Key_Home);
    EXPECT_EQ(list().currentIndex().row(), 1);
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(form().focusWidget(), &search()) << "above the first line";
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(list().model()->index(0, 0)).center());
    EXPECT_EQ(intext().toPlainText(), grinning) << "a heading";
}

TEST_F(EmojiPickerTest, AButtonShowsEachGroup)
{
    pressButton();
    find("joy");
    std::vector<std::string> groups;
    for (QToolButton *const button : form().findChildren<QToolButton *>(QStringLiteral("emojiGroup"))) {
        button->click();
        QCoreApplication::processEvents();
        groups.push_back(button->toolTip().toStdString());
        EXPECT_EQ(list().currentIndex().data().toString(), button->text());
        EXPECT_EQ(list().model()->index(list().currentIndex().row() - 1, 0).data().toString(), button->toolTip());
        EXPECT_TRUE(list().viewport()->rect().contains(list().visualRect(list().currentIndex()))) << groups.back();
    }
    EXPECT_EQ(search().text(), QString());
    ASSERT_FALSE(groups.empty());
    EXPECT_EQ(groups.front(), "Smileys");
}

TEST_F(EmojiPickerTest, TypingInTheListGoesOnSearching)
{
    pressButton();
    QTest::keyClick(&search(), Qt::Key_Down);
    QTest::keyClicks(&list(), QStringLiteral("j"));
    EXPECT_EQ(form().focusWidget(), &search());
    QTest::keyClicks(&search(), QStringLiteral("oyy"));
    EXPECT_THAT(rows(1), ElementsAre());
    EXPECT_EQ(control<QLabel>("emojiName").text(), QStringLiteral("Not found"));
    EXPECT_TRUE(control<QLabel>("noEmoji").isVisible());
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_EQ(intext().toPlainText(), QString());
    QTest::keyClick(&search(), Qt::Key_Backspace);
    EXPECT_TRUE(rowOf(joy).isValid());
}

TEST_F(EmojiPickerTest, NamesAreInTheUsersLanguage)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    pressButton();
    choose("grinsendes gesicht");
    EXPECT_EQ(intext().toPlainText(), grinning);
    const QModelIndex row = rowOf(grinning);
    EXPECT_EQ(row.data(Qt::ToolTipRole).toString(), QStringLiteral("grinsendes Gesicht"));
    EXPECT_EQ(control<QLabel>("emojiName").text(), QStringLiteral("grinsendes Gesicht"));
    QAccessibleInterface *const reader = QAccessible::queryAccessibleInterface(&list());
    ASSERT_TRUE(reader && reader->child(row.row()));
    EXPECT_EQ(reader->child(row.row())->text(QAccessible::Name), QStringLiteral("grinsendes Gesicht"));
}

TEST_F(EmojiPickerTest, AnEmojiGoesInWholeOrNotAtAll)
{
    intext().setPlainText(QString(1999, u'x'));
    pressButton();
    choose("grinning face");
    EXPECT_EQ(intext().toPlainText().size(), 1999);
    EXPECT_THAT(windows.common.recentEmoji, ElementsAre());
    intext().setPlainText(QString(1998, u'x'));
    choose("grinning face");
    EXPECT_EQ(intext().toPlainText().size(), 2000);
    intext().selectAll();
    choose("tears of joy");
    EXPECT_EQ(intext().toPlainText(), joy) << "in place of what was selected";
}

TEST_F(EmojiPickerTest, WhatIsChosenTravelsAndIsShownAsThatEmoji)
{
    pressButton();
    choose("tears of joy");
    QTest::keyClick(&search(), Qt::Key_Escape);
    QTest::keyClick(&intext(), Qt::Key_Return);
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.2", "-\xF0\x9F\x98\x82"}));
    // A family and a heart: joiners and styles stay.
    windows.arrive("10.0.0.2", "-\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7 \xE2\x9D\xA4\xEF\xB8\x8F");
    const QString log = RealWindows::logOf(form()).toPlainText();
    EXPECT_TRUE(log.contains(QStringLiteral("Me> \U0001F602\n"))) << log.toStdString();
    EXPECT_TRUE(log.contains(QStringLiteral("Ann> \U0001F469\u200D\U0001F467 \u2764\uFE0F"))) << log.toStdString();
}

TEST_F(EmojiPickerTest, ItsKeyOpensItWithTheFocusInTheSearch)
{
    QTest::keyClick(&intext(), Qt::Key_Period, Qt::ControlModifier);
    EXPECT_TRUE(control<QToolButton>("Emoticbtn").isChecked());
    EXPECT_EQ(form().focusWidget(), &search());
    intext().setFocus();
    QTest::keyClick(&intext(), Qt::Key_Period, Qt::ControlModifier);
    EXPECT_EQ(form().focusWidget(), &search());
}

TEST_F(EmojiPickerTest, TheEmoticonsBesideItStayAsTheyAre)
{
    pressButton();
    intext().setPlainText(QStringLiteral("done"));
    intext().moveCursor(QTextCursor::Start);
    auto &emoticons = control<QListWidget>("ListViewEmot");
    ASSERT_EQ(emoticons.count(), 9);
    QTest::mouseClick(emoticons.viewport(), Qt::LeftButton, {}, emoticons.visualItemRect(emoticons.item(2)).center());
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("done:D"));
    EXPECT_EQ(form().focusWidget(), &intext());
    EXPECT_THAT(windows.common.recentEmoji, ElementsAre());
}

TEST_F(EmojiPickerTest, AConferenceKeepsTheFocusInItsInputWhileThereIsOne)
{
    windows.arrive("10.0.0.2", "?CONF INVITE #3");
    windows.engine.invitations().ConfAgreebtn_Click(0);
    QPointer<QWidget> conference;
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("frmConference") && window->isVisible())
            conference = window;
    }
    ASSERT_TRUE(conference);
    auto &input = RealWindows::control<QPlainTextEdit>(*conference, "intext");
    RealWindows::control<QToolButton>(*conference, "Emoticbtn").click();
    EXPECT_EQ(conference->focusWidget(), &input);
    auto &field = RealWindows::control<QLineEdit>(*conference, "emojiSearch");
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("grinning face"));
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(input.toPlainText(), grinning);
    windows.arrive("10.0.0.2", "!CONF CLOSE #3");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(input.toPlainText(), grinning) << "nobody can be written to any more";
}

} // namespace
} // namespace nimb::test
