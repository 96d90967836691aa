#include "welcome/frmTipOfTheDay.h"

#include "controls.h"
#include "keyboard.h"
#include "recorders.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class FrmTipOfTheDay : public testing::Test
{
protected:
    ~FrmTipOfTheDay() override
    {
        delete dialog;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void open(QWidget *parent = nullptr)
    {
        dialog = new frmTipOfTheDay(TipOfTheDay(store, [this] { return file; }), prompts, parent);
        dialog->show();
        QCoreApplication::processEvents();
    }
    template <class Widget> Widget &control(const char *name) { return controlOf<Widget>(*dialog, name); }
    QString tip() { return control<QPlainTextEdit>("Text1").toPlainText(); }
    void click(const char *button) { QTest::mouseClick(&control<QPushButton>(button), Qt::LeftButton); }
    bool isGone() { return hasGone(dialog); }

    MemoryStore store;
    RecorderPrompts prompts;
    std::optional<QByteArray> file = QByteArrayLiteral("alpha||omega\nred, green\n");
    QPointer<frmTipOfTheDay> dialog;
};

TEST_F(FrmTipOfTheDay, ShowsTheTipOnItsLinesAndItsNumber)
{
    open();
    EXPECT_EQ(dialog->objectName(), QStringLiteral("frmTipOfTheDay"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Tip of the Day - Tip #1"));
    EXPECT_FALSE(dialog->windowIcon().isNull());
    EXPECT_FALSE(dialog->isModal());
    EXPECT_EQ(tip(), QStringLiteral("\nalpha\nomega\n"));
    EXPECT_TRUE(control<QPlainTextEdit>("Text1").isReadOnly());
    EXPECT_EQ(control<QLabel>("Label1").text(), QStringLiteral("Did you know?"));
    EXPECT_THAT(control<QLabel>("Label2").text().toStdString(), testing::HasSubstr("MIT licence"));
    EXPECT_TRUE(control<QFrame>("Frame1").isAncestorOf(&control<QLabel>("Label1")));
}

TEST_F(FrmTipOfTheDay, NextShowsTheFollowingTipsAndStartsOver)
{
    open();
    click("nextbtn");
    EXPECT_EQ(tip(), QStringLiteral("\nred\n"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Tip of the Day - Tip #2"));
    click("nextbtn");
    EXPECT_EQ(tip(), QStringLiteral("\ngreen\n"));
    click("nextbtn");
    EXPECT_EQ(tip(), QStringLiteral("\nalpha\nomega\n"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Tip of the Day - Tip #1"));
}

TEST_F(FrmTipOfTheDay, MarkupInATipIsShownAsItStands)
{
    file = "<b>bold</b> &amp; [*]";
    open();
    EXPECT_EQ(tip(), QStringLiteral("\n<b>bold</b> &amp; [*]\n"));
}

TEST_F(FrmTipOfTheDay, ALongTipIsReadFromItsStart)
{
    file = QByteArray("line||").repeated(200);
    open();
    EXPECT_EQ(control<QPlainTextEdit>("Text1").textCursor().position(), 0);
}

TEST_F(FrmTipOfTheDay, AMissingFileIsSaidInTheDialog)
{
    file.reset();
    open();
    EXPECT_THAT(tip().toStdString(), testing::StartsWith("\nThere are no tips to show: the file TOTD.txt"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Tip of the Day"));
    click("nextbtn");
    EXPECT_THAT(tip().toStdString(), testing::StartsWith("\nThere are no tips to show"));
    EXPECT_THAT(prompts.told, IsEmpty());
    file = "back";
    click("nextbtn");
    EXPECT_EQ(tip(), QStringLiteral("\nback\n"));
}

TEST_F(FrmTipOfTheDay, ClosingSavesTheBoxAndTheCounter)
{
    open();
    EXPECT_TRUE(control<QCheckBox>("Checkbx").isChecked());
    control<QCheckBox>("Checkbx").click();
    click("nextbtn");
    click("closebtn");
    EXPECT_TRUE(isGone());
    EXPECT_EQ(store.value("Options", "TipOTDay"), "0");
    EXPECT_EQ(store.value("Options", "TipOTDayNum"), "2");
    EXPECT_EQ(store.saves, 1);
    open();
    EXPECT_FALSE(control<QCheckBox>("Checkbx").isChecked());
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Tip of the Day - Tip #1"));
}

TEST_F(FrmTipOfTheDay, EveryWayOutSavesOnce)
{
    const std::vector<std::pair<const char *, std::function<void()>>> ways = {
        {"Esc", [this] { QTest::keyClick(&control<QPlainTextEdit>("Text1"), Qt::Key_Escape); }},
        {"Enter", [this] { QTest::keyClick(&control<QPlainTextEdit>("Text1"), Qt::Key_Return); }},
        {"close box", [this] { dialog->close(); }},
        {"unloading", [this] { dialog->unload(); }},
        {"unloading while hidden",
         [this] {
             dialog->hide();
             dialog->unload();
         }},
        {"destruction", [this] { delete dialog; }},
    };
    for (const auto &[name, leave] : ways) {
        store.saves = 0;
        open();
        leave();
        EXPECT_EQ(store.saves, 1) << name;
        EXPECT_TRUE(isGone()) << name;
        EXPECT_EQ(store.saves, 1) << name;
    }
}

TEST_F(FrmTipOfTheDay, TheEndOfTheMainWindowSavesToo)
{
    auto window = std::make_unique<QWidget>();
    open(window.get());
    click("nextbtn");
    window.reset();
    EXPECT_TRUE(dialog.isNull());
    EXPECT_EQ(store.value("Options", "TipOTDayNum"), "2");
    EXPECT_EQ(store.saves, 1);
}

TEST_F(FrmTipOfTheDay, AFailedSaveIsToldToWhoeverClosesIt)
{
    store.failure = QStringLiteral("The disk is full.");
    open();
    click("closebtn");
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: The disk is full."));
    EXPECT_TRUE(isGone());
    EXPECT_EQ(prompts.told.size(), 1u);
}

TEST_F(FrmTipOfTheDay, AFailedSaveAtTheEndOfTheProgramIsLeftToTheMainWindow)
{
    store.failure = QStringLiteral("The disk is full.");
    open();
    dialog->unload();
    EXPECT_TRUE(isGone());
    open();
    delete dialog;
    EXPECT_THAT(prompts.told, IsEmpty());
}

TEST_F(FrmTipOfTheDay, EndedWhileTellingItDoesNotCrash)
{
    class EndingPrompts : public RecorderPrompts
    {
    public:
        bool tell(const QString &text, const QString &title) override
        {
            RecorderPrompts::tell(text, title);
            delete ended;
            return true;
        }
        QPointer<QDialog> ended;
    } ending;
    store.failure = QStringLiteral("The disk is full.");
    dialog = new frmTipOfTheDay(TipOfTheDay(store, [this] { return file; }), ending, nullptr);
    ending.ended = dialog;
    dialog->show();
    dialog->reject();
    EXPECT_TRUE(dialog.isNull());
    EXPECT_EQ(ending.told.size(), 1u);
}

TEST_F(FrmTipOfTheDay, TheKeyboardReachesEverythingAndIsTrappedNowhere)
{
    open();
    EXPECT_EQ(dialog->focusWidget(), &control<QPushButton>("closebtn"));
    EXPECT_THAT(tabStops(*dialog), ElementsAre("Text1", "Checkbx", "nextbtn", "closebtn"));
    EXPECT_THAT(accessKeys(*dialog), UnorderedElementsAre("Alt+S", "Alt+N", "Alt+C"));
    EXPECT_THAT(withoutAccessibleName(*dialog), IsEmpty());
    EXPECT_TRUE(control<QPushButton>("closebtn").isDefault());
}

TEST_F(FrmTipOfTheDay, EnterOnNextTurnsThePage)
{
    open();
    control<QPushButton>("nextbtn").setFocus();
    QTest::keyClick(&control<QPushButton>("nextbtn"), Qt::Key_Return);
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Tip of the Day - Tip #2"));
}

TEST_F(FrmTipOfTheDay, ALineThatIsWrappedNeedsNoScrollBarBelow)
{
    file = QByteArray("Double-click a contact to open a private conversation with it.\n") + QByteArray(5000, 'w');
    open();
    for (int tips = 0; tips < 2; ++tips) {
        EXPECT_FALSE(control<QPlainTextEdit>("Text1").horizontalScrollBar()->isVisible());
        click("nextbtn");
    }
}

} // namespace
} // namespace nimb::test
