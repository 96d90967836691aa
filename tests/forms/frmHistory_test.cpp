#include "history/frmHistory.h"

#include "controls.h"
#include "history/history_delegate.h"
#include "history/history_keeper.h"
#include "history/history_model.h"
#include "print_qt.h"
#include "recorders.h"
#include "widgets/muted_colour.h"

#include <gmock/gmock.h>

#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

namespace nimb::test
{
namespace
{

constexpr int patience = 60000; ///< milliseconds

/// The window over a real file, with whom something was said on four days.
class FewWaiting : public WaitingMessages
{
public:
    const std::vector<WaitingMessage> &messages() const override { return list; }
    void forget(std::int64_t number) override
    {
        std::erase_if(list, [number](const WaitingMessage &message) { return message.number == number; });
        Q_EMIT changed();
    }
    void erase(std::int64_t number) override { forget(number); }
    void put(const QString &name, const QString &text)
    {
        list.push_back({.number = static_cast<std::int64_t>(list.size()) + 1,
                        .ip = QStringLiteral("10.0.0.9"),
                        .nickname = name,
                        .text = text,
                        .written = QDateTime(QDate(2026, 11, 24), QTime(14, 5))});
    }

    std::vector<WaitingMessage> list;
};

class FrmHistory : public testing::Test
{
protected:
    FrmHistory()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        for (int day = 1; day <= 4; ++day) {
            keep(QStringLiteral("10.0.0.2"), QStringLiteral("Ann"), QStringLiteral("the plan of day %1").arg(day), day);
            keep(QStringLiteral("10.0.0.3"), QStringLiteral("Ben"), QStringLiteral("no news on %1").arg(day), day);
        }
    }
    void keep(const QString &address, const QString &name, const QString &text, int day = 5)
    {
        keeper.keep({.address = address, .name = name},
                    {.time = QDateTime(QDate(2026, 11, day), QTime(14, 5)), .writer = name, .text = text});
    }
    void open()
    {
        form = new frmHistory(keeper, waiting, prompts, nullptr);
        form->show();
        ASSERT_TRUE(QTest::qWaitFor([this] { return list().count() > 0; }, patience));
    }
    ~FrmHistory() override { delete form; }

    template <class Widget> Widget &control(const char *name) { return controlOf<Widget>(*form, name); }
    QListWidget &list() { return control<QListWidget>("conversations"); }
    QLineEdit &search() { return control<QLineEdit>("searchText"); }
    QListView &messages() { return control<QListView>("messages"); }
    QStringList shown()
    {
        QStringList all;
        for (int row = 0; row < messages().model()->rowCount(); ++row)
            all += messages().model()->index(row, 0).data().toString();
        return all;
    }
    bool becomes(const QStringList &texts)
    {
        return QTest::qWaitFor([&] { return shown() == texts; }, patience);
    }
    void chooseErase(const char *entry)
    {
        control<QPushButton>("eraseBtn").click();
        auto *const action = form->findChild<QAction *>(QLatin1String(entry));
        ASSERT_TRUE(action);
        ASSERT_TRUE(action->isEnabled());
        action->trigger();
        delete form->findChild<QMenu *>(QStringLiteral("eraseMenu")); // which a click would have closed
    }
    void exportTo(const QString &path)
    {
        control<QPushButton>("exportBtn").click();
        auto *const dialog = form->findChild<QFileDialog *>();
        ASSERT_TRUE(dialog);
        Q_EMIT dialog->fileSelected(path);
        dialog->close();
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return control<QLabel>("exportProgress").text().startsWith(QLatin1String("Messages written: ")); },
            patience));
    }

    const QTemporaryDir m_base;
    HistoryKeeper keeper{m_base.filePath(QStringLiteral("profile"))};
    RecorderPrompts prompts;
    FewWaiting waiting;
    QPointer<frmHistory> form;
};

TEST_F(FrmHistory, WhatWaitsToBeSentHasARowOfItsOwnAsLongAsSomethingDoes)
{
    open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return list().count() == 3; }, patience));
    waiting.put(QStringLiteral("Dora"), QStringLiteral("the plan is ready"));
    waiting.put(QStringLiteral("Ben"), QStringLiteral("call me"));
    waiting.list.back().isGivenUp = true;
    Q_EMIT waiting.changed();
    ASSERT_TRUE(QTest::qWaitFor([this] { return list().count() == 4; }, patience));
    EXPECT_EQ(list().item(1)->text(), QStringLiteral("To be sent (2)"));
    list().setCurrentRow(1);
    EXPECT_EQ(shown(), QStringList({"the plan is ready", "call me"}));
    EXPECT_EQ(messages().model()->index(0, 0).data(HistoryModel::HeadRole).toString(),
              QStringLiteral("To be sent to Dora, 24/11/2026 14:05"));
    EXPECT_EQ(messages().model()->index(1, 0).data(HistoryModel::HeadRole).toString(),
              QStringLiteral("Not sent to Ben, 24/11/2026 14:05"));
    EXPECT_FALSE(control<QPushButton>("exportBtn").isEnabled());
    search().setText(QStringLiteral("PLAN"));
    EXPECT_TRUE(becomes({"the plan is ready"}));
}

TEST_F(FrmHistory, WhatWaitsIsErasedAfterAQuestion)
{
    waiting.put(QStringLiteral("Dora"), QStringLiteral("one"));
    waiting.put(QStringLiteral("Dora"), QStringLiteral("two"));
    open();
    list().setCurrentRow(1);
    messages().setCurrentIndex(messages().model()->index(0, 0));
    prompts.answer = false;
    chooseErase("mnuForgetWaiting");
    EXPECT_EQ(shown().size(), 2);
    EXPECT_EQ(prompts.carefully, 1) << "Return means No";
    prompts.answer = true;
    messages().setCurrentIndex(messages().model()->index(0, 0));
    chooseErase("mnuForgetWaiting");
    EXPECT_TRUE(becomes({"two"})) << "and the row stays chosen";
    messages().setCurrentIndex(messages().model()->index(0, 0));
    chooseErase("mnuForgetWaiting");
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().item(1)->text() == QStringLiteral("Ben (4)"); }, patience));
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown().size() == 8; }, patience)) << "all conversations again";
}

TEST_F(FrmHistory, ShowsAllConversationsAndTheirMessagesInTheirOrder)
{
    open();
    EXPECT_EQ(list().item(0)->text(), QStringLiteral("All conversations"));
    EXPECT_EQ(list().item(1)->text(), QStringLiteral("Ben (4)"));
    EXPECT_EQ(list().item(2)->text(), QStringLiteral("Ann (4)"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown().size() == 8; }, patience));
    EXPECT_EQ(shown().first(), QStringLiteral("the plan of day 1"));
    EXPECT_EQ(shown().last(), QStringLiteral("no news on 4"));
    EXPECT_EQ(messages().model()->index(0, 0).data(HistoryModel::HeadRole).toString(),
              QStringLiteral("Ann, 01/11/2026 14:05"));
    keeper.keep({.address = QStringLiteral("10.0.0.2"), .name = QStringLiteral("Ann")},
                {.time = QDateTime(QDate(2026, 11, 5), QTime(14, 5)),
                 .isOwn = true,
                 .writer = QStringLiteral("Me"),
                 .text = QStringLiteral("mine")});
    control<QDateEdit>("fromDate").setDate(QDate(2026, 11, 5));
    EXPECT_TRUE(becomes({"mine"}));
    EXPECT_EQ(messages().model()->index(0, 0).data(HistoryModel::HeadRole).toString(),
              QStringLiteral("Me, 05/11/2026 14:05, in \"Ann\""));
}

TEST(FrmHistoryInTrouble, SaysThatTheHistoryCannotBeUsedAndNotThatThereIsNone)
{
    const QTemporaryDir base;
    QDir().mkpath(base.filePath(QStringLiteral("profile/history.sqlite3"))); // a folder where the file should be
    HistoryKeeper keeper(base.filePath(QStringLiteral("profile")));
    RecorderPrompts prompts;
    FewWaiting waiting;
    frmHistory form(keeper, waiting, prompts, nullptr);
    form.setAttribute(Qt::WA_DeleteOnClose, false);
    form.show();
    const auto &nothing = controlOf<QLabel>(form, "nothingKept");
    EXPECT_TRUE(QTest::qWaitFor([&] { return nothing.isVisible(); }, 60000));
    EXPECT_TRUE(nothing.text().startsWith(QStringLiteral("The history in "))) << nothing.text().toStdString();
}

TEST_F(FrmHistory, AChosenConversationIsShownAlone)
{
    open();
    list().setCurrentRow(2);
    EXPECT_TRUE(becomes({"the plan of day 1", "the plan of day 2", "the plan of day 3", "the plan of day 4"}));
    EXPECT_EQ(messages().model()->index(0, 0).data(HistoryModel::HeadRole).toString(),
              QStringLiteral("Ann, 01/11/2026 14:05"));
}

TEST_F(FrmHistory, OpensWithTheContactForWhomItWasOpened)
{
    open();
    form->choose(QStringLiteral("10.0.0.2"), {});
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().currentRow() == 2; }, patience));
    EXPECT_TRUE(becomes({"the plan of day 1", "the plan of day 2", "the plan of day 3", "the plan of day 4"}));
}

TEST_F(FrmHistory, WhatIsTypedIsLookedForWithoutAnyKeyMore)
{
    open();
    QTest::keyClicks(&search(), QStringLiteral("ews 3"));
    EXPECT_TRUE(becomes({"no news on 3"}));
    search().clear();
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown().size() == 8; }, patience));
}

TEST_F(FrmHistory, DaysRestrictWhatIsShown)
{
    open();
    list().setCurrentRow(2);
    control<QDateEdit>("fromDate").setDate(QDate(2026, 11, 2));
    control<QDateEdit>("untilDate").setDate(QDate(2026, 11, 3));
    EXPECT_TRUE(becomes({"the plan of day 2", "the plan of day 3"}));
}

TEST_F(FrmHistory, NothingFoundIsSaid)
{
    open();
    QTest::keyClicks(&search(), QStringLiteral("zzz"));
    EXPECT_TRUE(becomes({}));
    EXPECT_TRUE(QTest::qWaitFor([this] { return control<QLabel>("nothingKept").isVisible(); }, patience));
    EXPECT_EQ(control<QLabel>("nothingKept").text(), QStringLiteral("Nothing fits what you look for."));
}

TEST_F(FrmHistory, ADoubleClickOnAHitShowsWhereItStands)
{
    for (int i = 0; i < 300; ++i)
        keep(QStringLiteral("10.0.0.2"), QStringLiteral("Ann"), QStringLiteral("talk %1").arg(i));
    open();
    QTest::keyClicks(&search(), QStringLiteral("day 2"));
    EXPECT_TRUE(becomes({"the plan of day 2"}));
    Q_EMIT messages().activated(messages().model()->index(0, 0));
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return messages().currentIndex().data() == QStringLiteral("the plan of day 2"); }, patience));
    EXPECT_EQ(search().text(), QString());
    EXPECT_EQ(
        shown().mid(0, 5),
        (QStringList{"the plan of day 1", "the plan of day 2", "the plan of day 3", "the plan of day 4", "talk 0"}));
    EXPECT_EQ(list().currentItem()->text(), QStringLiteral("Ann (304)"));
    EXPECT_EQ(shown().size(), 102);
    const auto hasCome = [this] {
        messages().scrollToBottom(); // page by page
        return shown().size() == 304;
    };
    EXPECT_TRUE(QTest::qWaitFor(hasCome, patience));
    EXPECT_EQ(shown().back(), QStringLiteral("talk 299"));
}

TEST_F(FrmHistory, WhoComesBackSeesWhatWasSaidMeanwhileUnlessHeIsReading)
{
    open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown().size() == 8; }, patience));
    QWidget other;
    const auto leaveAndComeBack = [this, &other] {
        other.show();
        other.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    };
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    keep(QStringLiteral("10.0.0.2"), QStringLiteral("Ann"), QStringLiteral("one more"));
    leaveAndComeBack();
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown().size() == 9; }, patience));
    messages().setCurrentIndex(messages().model()->index(0, 0));
    keep(QStringLiteral("10.0.0.2"), QStringLiteral("Ann"), QStringLiteral("and another"));
    leaveAndComeBack();
    EXPECT_TRUE(messages().selectionModel()->hasSelection());
    messages().clearSelection();
    leaveAndComeBack();
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown().size() == 10; }, patience));
}

TEST_F(FrmHistory, ScrollingUpBringsOlderOnes)
{
    for (int i = 0; i < 500; ++i)
        keep(QStringLiteral("10.0.0.4"), QStringLiteral("Dora"), QStringLiteral("talk %1").arg(i));
    open();
    list().setCurrentRow(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown().value(0) == QStringLiteral("talk 300"); }, patience));
    messages().verticalScrollBar()->setValue(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown().value(0) == QStringLiteral("talk 100"); }, patience));
    EXPECT_EQ(shown().size(), 400);
    EXPECT_GT(messages().verticalScrollBar()->value(), 0);
}

TEST_F(FrmHistory, ErasesTheChosenMessageAfterAQuestion)
{
    open();
    list().setCurrentRow(2);
    ASSERT_TRUE(becomes({"the plan of day 1", "the plan of day 2", "the plan of day 3", "the plan of day 4"}));
    messages().setCurrentIndex(messages().model()->index(1, 0));
    prompts.answer = false;
    chooseErase("mnuEraseMessage");
    EXPECT_EQ(prompts.asked.back(), "NIMB-Chat - History: Erase the chosen message for good?");
    EXPECT_EQ(prompts.carefully, 1) << "Return means No";
    prompts.answer = true;
    chooseErase("mnuEraseMessage");
    EXPECT_TRUE(becomes({"the plan of day 1", "the plan of day 3", "the plan of day 4"}));
}

TEST_F(FrmHistory, ErasesAConversationAndAll)
{
    open();
    prompts.answer = true;
    list().setCurrentRow(2);
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown().size() == 4; }, patience));
    chooseErase("mnuEraseConversation");
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().count() == 2; }, patience));
    chooseErase("mnuEraseAll");
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().count() == 1; }, patience));
    EXPECT_TRUE(becomes({}));
    EXPECT_TRUE(control<QLabel>("nothingKept").text().startsWith(QLatin1String("Nothing is kept yet.")));
    EXPECT_FALSE(control<QPushButton>("eraseBtn").isEnabled());
}

TEST_F(FrmHistory, TheQuestionBeforeAllGoesSaysWhetherSomethingStays)
{
    open();
    prompts.answer = false;
    chooseErase("mnuEraseAll");
    EXPECT_EQ(prompts.asked.back(), "NIMB-Chat - History: Erase all that is kept of all conversations for good?");
    waiting.put(QStringLiteral("Dora"), QStringLiteral("one"));
    chooseErase("mnuEraseAll");
    EXPECT_EQ(prompts.asked.back(),
              "NIMB-Chat - History: Erase all that is kept of all conversations for good? What "
              "waits to be sent stays and is sent.");
    EXPECT_EQ(prompts.carefully, 2);
    prompts.answer = true;
    chooseErase("mnuEraseAll");
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().count() == 2; }, patience));
    EXPECT_EQ(list().item(1)->text(), QStringLiteral("To be sent (1)"));
}

TEST_F(FrmHistory, ExportsAllThatIsChosenAndNotOnlyWhatIsShown)
{
    for (int i = 0; i < 2500; ++i)
        keep(QStringLiteral("10.0.0.4"), QStringLiteral("Dora"), QStringLiteral("talk %1").arg(i));
    open();
    list().setCurrentRow(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown().value(0) == QStringLiteral("talk 2300"); }, patience));
    const QString path = m_base.filePath(QStringLiteral("out.jsonl"));
    exportTo(path);
    EXPECT_EQ(control<QLabel>("exportProgress").text(), QStringLiteral("Messages written: 2500."));
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    ASSERT_EQ(lines.size(), 2501);
    EXPECT_TRUE(lines.first().contains("\"text\":\"talk 0\""));
    EXPECT_TRUE(lines[2499].contains("\"text\":\"talk 2499\""));
}

TEST_F(FrmHistory, ExportsOnlyWhatFitsTheSearch)
{
    open();
    QTest::keyClicks(&search(), QStringLiteral("plan"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown().size() == 4; }, patience));
    const QString path = m_base.filePath(QStringLiteral("out.txt"));
    exportTo(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll().count('\n'), 4);
}

TEST_F(FrmHistory, AFileThatCannotBeWrittenIsSaid)
{
    open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown().size() == 8; }, patience));
    control<QPushButton>("exportBtn").click();
    auto *const dialog = form->findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    Q_EMIT dialog->fileSelected(m_base.filePath(QStringLiteral("no such folder/out.txt")));
    EXPECT_TRUE(control<QLabel>("exportProgress").text().contains(QLatin1String("cannot be written")));
    EXPECT_TRUE(control<QPushButton>("exportBtn").isEnabled());
}

TEST_F(FrmHistory, TheLastMessageIsSeenWholeAndStaysSo)
{
    QString text;
    for (int message = 0; message < 40; ++message) {
        text += QStringLiteral("and another thing that takes some room ");
        keep(QStringLiteral("10.0.0.2"), QStringLiteral("Ann"), text);
    }
    open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown().size() == 48; }, patience));
    const QScrollBar &bar = *messages().verticalScrollBar();
    const auto isLastWhole = [&] {
        const QRect last = messages().visualRect(messages().model()->index(47, 0));
        return bar.value() == bar.maximum() && last.bottom() < messages().viewport()->height();
    };
    const auto becomesNarrower = [&] {
        const int before = bar.maximum();
        form->resize(form->width() - 100, form->height() - 100);
        return QTest::qWaitFor([&] { return bar.maximum() > before + 100; }, patience);
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.maximum() > 0; }, patience));
    messages().grab();
    EXPECT_TRUE(isLastWhole());
    ASSERT_TRUE(becomesNarrower());
    EXPECT_TRUE(QTest::qWaitFor(isLastWhole, 5000));
    messages().verticalScrollBar()->setValue(bar.maximum() - 300);
    ASSERT_TRUE(becomesNarrower());
    EXPECT_FALSE(isLastWhole()) << "whoever has scrolled up reads there";
}

TEST_F(FrmHistory, ThatThereIsNothingOlderLeavesTheListAtItsEnd)
{
    for (int message = 0; message < 12; ++message)
        keep(QStringLiteral("10.0.0.2"), QStringLiteral("Ann"), QStringLiteral("one\ntwo"));
    open();
    const QScrollBar &bar = *messages().verticalScrollBar();
    ASSERT_TRUE(QTest::qWaitFor([&] { return shown().size() == 20 && bar.maximum() > 0; }, patience));
    // So near to the beginning that what is older is asked for, and not at the upper edge of a row.
    form->resize(form->width(), form->height() + bar.maximum() - 23);
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.maximum() == 23; }, patience));
    const auto find = [this](const QString &words, qsizetype count) {
        search().setText(words);
        QTest::keyClick(&search(), Qt::Key_Return);
        return QTest::qWaitFor([&] { return shown().size() == count; }, patience);
    };
    ASSERT_TRUE(find(QStringLiteral("plan"), 4));
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.maximum() == 0; }, patience));
    ASSERT_TRUE(find(QString(), 20));
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.maximum() == 23; }, patience));
    bool isAnswered = false; // after the question for what is older
    keeper.find({.most = 1}, [&isAnswered](const std::vector<StoredMessage> &) { isAnswered = true; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return isAnswered; }, patience));
    messages().grab();
    EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(FrmHistory, WhatItSaysWhenNothingFitsIsQuieterThanMessages)
{
    open();
    search().setText(QStringLiteral("nobody said this"));
    auto &nothing = control<QLabel>("nothingKept");
    ASSERT_TRUE(QTest::qWaitFor([&] { return nothing.isVisible(); }, patience));
    const QColor colour = nothing.palette().color(nothing.foregroundRole());
    const QPalette &rows = messages().palette();
    EXPECT_LT(contrast(colour, rows.color(QPalette::Base)),
              contrast(rows.color(QPalette::Text), rows.color(QPalette::Base)));
    EXPECT_GE(contrast(colour, rows.color(QPalette::Base)), 4.5);
}

TEST_F(FrmHistory, ItCanBeClosedWhileAnAnswerIsOnItsWay)
{
    open();
    list().setCurrentRow(1);
    delete form;
    bool answered = false;
    keeper.list([&](const std::vector<StoredConversation> &) { answered = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return answered; }, patience));
}

} // namespace
} // namespace nimb::test
