#include "conversation/spelling_marks.h"
#include "platform/hunspell_spelling.h"
#include "real_windows.h"
#include "widgets/muted_colour.h"

#include <QContextMenuEvent>
#include <QImage>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextBlock>

namespace nimb::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr int patience = 30000; ///< milliseconds

/// The windows ask for the desktop's language when they are made.
struct BritishDesktop {
    BritishDesktop() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
};

/// A private window whose input box is typed into; over real dictionaries, or over those of a recorder.
class SpellingForms : private BritishDesktop, public testing::Test
{
protected:
    explicit SpellingForms(SpellChecker *real, const std::map<std::string, QString> &stored = {})
        : windows({{"10.0.0.2", "Ann"}}, stored, real)
    {
        windows.settleStart({"10.0.0.2"});
        windows.doubleClick(0);
        windows.sent();
        form().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form(), patience));
        intext().setFocus();
    }
    ~SpellingForms() override
    {
        if (QWidget *const menu = QApplication::activePopupWidget())
            menu->close();
    }

    QWidget &form() { return windows.privateWindow(); }
    QPlainTextEdit &intext() { return RealWindows::control<QPlainTextEdit>(form(), "intext"); }
    void type(const QString &text)
    {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, &intext(), Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
    const SpellingMarks &marks() { return *intext().findChild<SpellingMarks *>(); }
    std::vector<std::string> marked()
    {
        std::vector<std::string> words;
        for (const QTextCursor &mark : marks().marks())
            words.push_back(mark.selectedText().toStdString());
        return words;
    }
    void expectMarked(const std::vector<std::string> &words)
    {
        static_cast<void>(QTest::qWaitFor([&] { return marked() == words; }, patience));
        EXPECT_EQ(marked(), words);
    }
    /// As the right mouse button opens it over the place in the text, or the menu key at the caret.
    QMenu &menuAt(int position)
    {
        QTextCursor cursor(intext().document());
        cursor.setPosition(position);
        const QPoint place = intext().cursorRect(cursor).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, intext().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(intext().viewport(), &event);
        return openMenu();
    }
    QMenu &menuAtCaret()
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), intext().mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(&intext(), &event);
        return openMenu();
    }
    static QMenu &openMenu()
    {
        if (!QTest::qWaitFor([] { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }, patience))
            qFatal("no menu");
        return *qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    static std::vector<std::string> captions(const QMenu &menu)
    {
        std::vector<std::string> all;
        for (const QAction *const entry : menu.actions()) {
            if (!entry->isSeparator())
                all.push_back(entry->text().section(u'\t', 0, 0).remove(u'&').toStdString());
        }
        return all;
    }
    static QAction &entry(const QMenu &menu, const char *caption)
    {
        for (QAction *const one : menu.actions()) {
            if (one->text().section(u'\t', 0, 0).remove(u'&') == QLatin1String(caption))
                return *one;
        }
        qFatal("no entry %s", caption);
    }
    /// Chooses an entry as a click does.
    static void choose(QMenu &menu, const char *caption)
    {
        QAction &chosen = entry(menu, caption);
        menu.close();
        chosen.trigger();
    }
    static QMenu *languages(const QMenu &menu) { return menu.findChild<QMenu *>(QStringLiteral("mnuSpelling")); }

    RealWindows windows;
};

/// The two dictionaries of tests/data, with hunspell.
struct RealDictionaries {
    HunspellSpelling checker{QStringList{QStringLiteral(DICTIONARIES)}};
};
class SpellingInInput : private RealDictionaries, public SpellingForms
{
protected:
    SpellingInInput() : SpellingForms(&checker) { }
};

TEST_F(SpellingInInput, AMisspeltWordIsMarkedOnceItIsLeft)
{
    type(QStringLiteral("wrld Helo"));
    expectMarked({"wrld"});
    type(QStringLiteral(" "));
    expectMarked({"wrld", "Helo"});
    type(QStringLiteral("Hello Qqqq "));
    expectMarked({"wrld", "Helo", "Qqqq"});
}

TEST_F(SpellingInInput, AWordIsLeftByTheCaretAsWellAndBegunAnewByAChange)
{
    type(QStringLiteral("Hello Helo"));
    QTest::keyClick(&intext(), Qt::Key_Home);
    expectMarked({"Helo"});
    QTest::keyClick(&intext(), Qt::Key_End); // to look at it is no change
    type(QStringLiteral(" Qqqq "));
    expectMarked({"Helo", "Qqqq"});
    for (int i = 0; i < 7; ++i)
        QTest::keyClick(&intext(), Qt::Key_Left);
    type(QStringLiteral("x")); // in "Helo"
    expectMarked({"Qqqq"});
}

TEST_F(SpellingInInput, AWordIsLeftWhenTheFocusGoes)
{
    type(QStringLiteral("Qqqq Helo"));
    expectMarked({"Qqqq"});
    RealWindows::control<QWidget>(form(), "sendbtn").setFocus();
    expectMarked({"Qqqq", "Helo"});
}

TEST_F(SpellingInInput, WhatComesIntoSightIsMarked)
{
    intext().setPlainText(QStringLiteral("the Aaaa\nthe\nthe\nthe\nthe\nthe\nthe\nQqqq world"));
    expectMarked({"Aaaa"});
    QTest::keyClick(&intext(), Qt::Key_End, Qt::ControlModifier);
    expectMarked({"Qqqq"});
    form().resize(form().width(), form().height() + 1);
    intext().setFixedHeight(400);
    expectMarked({"Aaaa", "Qqqq"});
}

TEST_F(SpellingInInput, ASuggestionReplacesTheWordInOneStep)
{
    type(QStringLiteral("meet Helo world "));
    expectMarked({"Helo"});
    QMenu &menu = menuAt(7);
    EXPECT_EQ(captions(menu).front(), "Hello");
    choose(menu, "Hello");
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("meet Hello world "));
    expectMarked({});
    intext().undo();
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("meet Helo world "));
    QTest::keyClick(&intext(), Qt::Key_End); // the caret was at the word again
    expectMarked({"Helo"});
    intext().undo();
    EXPECT_EQ(intext().toPlainText(), QString()); // what was typed is still one step
}

TEST_F(SpellingInInput, TheMenuKeyOffersCorrectionsForTheWordAtTheCaret)
{
    type(QStringLiteral("Hello wrld"));
    QMenu &menu = menuAtCaret(); // though it has not been left
    EXPECT_THAT(captions(menu), Contains("world"));
    choose(menu, "world");
    EXPECT_EQ(intext().toPlainText(), QStringLiteral("Hello world"));
}

TEST_F(SpellingInInput, BesideAMisspeltWordTheMenuIsTheUsualOne)
{
    type(QStringLiteral("Helo world "));
    expectMarked({"Helo"});
    QMenu &menu = menuAt(8);
    EXPECT_THAT(captions(menu), Not(Contains("Add to dictionary")));
    EXPECT_THAT(captions(menu), Contains("Select All"));
    EXPECT_EQ(captions(menu).back(), "Spelling");
    menu.close();
    const QPoint beside(intext().viewport()->width() - 5, intext().cursorRect().center().y());
    type(QStringLiteral("Qqqq"));
    QTest::keyClick(&intext(), Qt::Key_Home);
    expectMarked({"Helo", "Qqqq"});
    QContextMenuEvent event(QContextMenuEvent::Mouse, beside, intext().viewport()->mapToGlobal(beside));
    QCoreApplication::sendEvent(intext().viewport(), &event);
    EXPECT_THAT(captions(openMenu()), Not(Contains("Add to dictionary")));
}

TEST_F(SpellingInInput, AnAddedWordIsMarkedNoMoreAndKept)
{
    type(QStringLiteral("Helo Qqqq "));
    expectMarked({"Helo", "Qqqq"});
    choose(menuAt(2), "Add to dictionary");
    expectMarked({"Qqqq"});
    windows.time.advance(std::chrono::seconds(2));
    EXPECT_EQ((windows.settings.kept[{QStringLiteral("Options"), QStringLiteral("SpellingWords")}]),
              QStringLiteral("Helo"));
}

TEST_F(SpellingInInput, TheLanguageIsChosenInTheMenu)
{
    type(QStringLiteral("Hello Grüße Qqqq "));
    expectMarked({"Grüße", "Qqqq"});
    QMenu *submenu = languages(menuAt(2));
    ASSERT_TRUE(submenu);
    EXPECT_THAT(captions(*submenu), ElementsAre("Off", "British English", "Deutsch"));
    EXPECT_TRUE(entry(*submenu, "British English").isChecked());
    choose(*submenu, "Deutsch");
    expectMarked({"Hello", "Qqqq"});
    EXPECT_EQ(windows.common.spelling.language, QStringLiteral("de_DE"));
    openMenu().close();
    submenu = languages(menuAt(2));
    EXPECT_TRUE(entry(*submenu, "Deutsch").isChecked());
    choose(*submenu, "Off");
    expectMarked({});
    EXPECT_EQ(windows.common.spelling.language, QStringLiteral("off"));
    openMenu().close();
    EXPECT_TRUE(entry(*languages(menuAt(2)), "Off").isChecked());
}

TEST_F(SpellingInInput, NeitherTheTextNorWhatIsSentIsTouched)
{
    type(QStringLiteral("Helo, café wrld "));
    expectMarked({"Helo", "wrld"});
    EXPECT_EQ(intext().document()->availableUndoSteps(), 1);
    for (QTextBlock block = intext().document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            EXPECT_FALSE(it.fragment().charFormat().fontUnderline());
        EXPECT_THAT(block.layout()->formats(), IsEmpty());
    }
    QTest::keyClick(&intext(), Qt::Key_Return);
    EXPECT_THAT(windows.sent(), Contains(To{"10.0.0.2", "-Helo, caf\xE9 wrld"}));
    expectMarked({});
}

/// Pixels of the box that are of this hue and stand out.
int pixelsLike(QWidget &box, const QColor &colour, const QColor &ground)
{
    const QImage picture = box.grab().toImage();
    int pixels = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            const bool isOfHue = pixel.hsvSaturation() > 60 && std::abs(pixel.hsvHue() - colour.hsvHue()) < 15;
            pixels += isOfHue && contrast(pixel, ground) >= 3;
        }
    }
    return pixels;
}

TEST_F(SpellingInInput, MarksAreSeenOnLightAndDarkGround)
{
    type(QStringLiteral("Hello "));
    for (const QColor ground : {QColor(Qt::white), QColor(35, 35, 35), QColor(Qt::black)}) {
        QPalette palette = intext().palette();
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, isDark(ground) ? Qt::white : Qt::black);
        intext().setPalette(palette);
        EXPECT_GE(contrast(marks().colour(), ground), 4.5) << ground.name().toStdString();
        EXPECT_EQ(pixelsLike(*intext().viewport(), marks().colour(), ground), 0);
        type(QStringLiteral("Helo "));
        expectMarked({"Helo"});
        EXPECT_GT(pixelsLike(*intext().viewport(), marks().colour(), ground), 20) << ground.name().toStdString();
        intext().setPlainText(QStringLiteral("Hello "));
        expectMarked({});
    }
}

TEST_F(SpellingInInput, AWordOfSeveralLinesIsMarkedInEachOfThem)
{
    intext().setFixedSize(120, 200);
    type(QString(60, u'm') + u' ');
    expectMarked({std::string(60, 'm')});
    const QImage picture = intext().viewport()->grab().toImage();
    QSet<int> lines;
    for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixelColor(12, y).hsvSaturation() > 60)
            lines.insert(y / intext().fontMetrics().lineSpacing());
    }
    EXPECT_GE(lines.size(), 3);
}

TEST_F(SpellingInInput, EveryConversationHasIt)
{
    windows.entry("mnuCreateNewConf").trigger();
    QPlainTextEdit *box = nullptr;
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("frmConference"))
            box = &RealWindows::control<QPlainTextEdit>(*window, "intext");
    }
    ASSERT_TRUE(box);
    QTest::keyClicks(box, QStringLiteral("Helo "));
    EXPECT_TRUE(QTest::qWaitFor([box] { return box->findChild<SpellingMarks *>()->marks().size() == 1; }, patience));
}

class SpellingOverRecorder : public SpellingForms
{
protected:
    SpellingOverRecorder() : SpellingForms(nullptr) { }

    RecorderSpellChecker &checker = windows.spellChecker;
};

TEST_F(SpellingOverRecorder, NothingIsLookedForBeforeSomethingIsTyped)
{
    QCoreApplication::processEvents();
    EXPECT_EQ(checker.searches, 0);
    type(QStringLiteral("H"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return checker.searches == 1; }, patience));
    type(QStringLiteral("ello"));
    QCoreApplication::processEvents();
    EXPECT_EQ(checker.searches, 1);
}

TEST_F(SpellingOverRecorder, WithoutADictionaryTheMenuIsTheUsualOne)
{
    type(QStringLiteral("Helo "));
    const QMenu &menu = menuAt(2);
    EXPECT_THAT(captions(menu), ElementsAre("Undo", "Redo", "Cut", "Copy", "Paste", "Delete", "Select All"));
    EXPECT_FALSE(languages(menu));
    EXPECT_THAT(marked(), IsEmpty());
    EXPECT_THAT(checker.asked, IsEmpty());
}

TEST_F(SpellingOverRecorder, TheMenuComesThoughNobodyAnswers)
{
    checker.languages = {{QStringLiteral("en_GB")}};
    type(QStringLiteral("Helo "));
    expectMarked({"Helo"});
    checker.waits = true;
    QMenu &menu = menuAt(2);
    EXPECT_EQ(captions(menu).front(), "(suggestions take longer)");
    EXPECT_FALSE(menu.actions().front()->isEnabled());
    EXPECT_THAT(captions(menu), Contains("Add to dictionary"));
    checker.answer(); // of no use to an open menu, and no harm
    EXPECT_EQ(&openMenu(), &menu);
    menu.close();
    EXPECT_EQ(captions(menuAt(2)).front(), "(no suggestion)");
}

TEST_F(SpellingOverRecorder, ADamagedDictionaryIsSaidInTheMenu)
{
    checker.languages = {{QStringLiteral("de_DE")}, {QStringLiteral("en_GB")}};
    checker.damaged = true;
    type(QStringLiteral("Helo "));
    EXPECT_TRUE(QTest::qWaitFor([this] { return checker.rests == 1; }, patience));
    const QMenu *const submenu = languages(menuAt(2));
    EXPECT_TRUE(entry(*submenu, "Off").isChecked());
    EXPECT_FALSE(entry(*submenu, "British English").isEnabled());
    EXPECT_EQ(entry(*submenu, "British English").toolTip(),
              QStringLiteral("The files of this dictionary cannot be read or are damaged"));
    EXPECT_TRUE(submenu->toolTipsVisible());
    EXPECT_TRUE(entry(*submenu, "Deutsch").isEnabled());
    EXPECT_THAT(marked(), IsEmpty());
}

TEST_F(SpellingOverRecorder, AWindowThatClosesWhileItsMenuIsAwaitedTakesItAlong)
{
    checker.waits = true;
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), intext().mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(&intext(), &event);
    const QPointer<QWidget> window(&form());
    windows.engine.privateWindows().unloadAll();
    EXPECT_TRUE(hasGone(window));
    checker.answer();
    EXPECT_FALSE(QApplication::activePopupWidget());
}

} // namespace
} // namespace nimb::test
