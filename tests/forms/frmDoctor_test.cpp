#include "doctor/frmDoctor.h"

#include "controls.h"
#include "keyboard.h"
#include "labels.h"
#include "real_windows.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class FrmDoctor : public testing::Test
{
protected:
    FrmDoctor()
    {
        windows.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)}};
        windows.settleStart({"10.0.0.2", "10.0.0.3"});
        windows.entry("mnuNetworkDoctor").trigger();
    }
    QWidget *shownDoctor()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("frmDoctor") && window->isVisible())
                return window;
        }
        return nullptr;
    }
    template <class Widget> Widget &control(const char *name) { return controlOf<Widget>(*shownDoctor(), name); }
    QString text(const char *name) { return control<QLabel>(name).text(); }
    void click(const char *name) { QTest::mouseClick(&control<QPushButton>(name), Qt::LeftButton); }
    void endWell()
    {
        windows.arrive("10.0.0.1", "?ONLINE 10.0.0.1 HERE Me");
        windows.diagnosis.firewallRead({});
    }
    std::vector<std::string> column(int column)
    {
        auto &list = control<QTreeWidget>("datagramList");
        std::vector<std::string> texts;
        for (int i = 0; i < list.topLevelItemCount(); ++i)
            texts.push_back(list.topLevelItem(i)->text(column).toStdString());
        return texts;
    }

    RealWindows windows{{{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben & Co"}}};
};

TEST_F(FrmDoctor, ExaminesAsSoonAsItIsOpened)
{
    ASSERT_TRUE(shownDoctor());
    EXPECT_EQ(shownDoctor()->windowTitle(), QStringLiteral("NIMB-Chat - Network Doctor"));
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.1", "?ONLINE 10.0.0.1 HERE Me"}));
    EXPECT_EQ(text("networkSentence"), QStringLiteral("Connected as 10.0.0.1 (eth0)."));
    EXPECT_EQ(text("firewallSentence"), QStringLiteral("Looking for a firewall."));
    EXPECT_FALSE(control<QPushButton>("examineBtn").isEnabled());
    EXPECT_FALSE(control<QLabel>("contactSentence").isVisible());
    endWell();
    EXPECT_EQ(text("firewallSentence"), QStringLiteral("No firewall is seen on this computer."));
    EXPECT_TRUE(control<QPushButton>("examineBtn").isEnabled());
    EXPECT_THAT(badLabels(*shownDoctor()), IsEmpty());
}

TEST_F(FrmDoctor, TheListOfDatagramsSaysThatItIsEmptyOnlyWhileItIs)
{
    EXPECT_FALSE(column(0).empty());
    EXPECT_FALSE(control<QLabel>("noDatagrams").isVisible());
    control<QTreeWidget>("datagramList").clear();
    EXPECT_TRUE(control<QLabel>("noDatagrams").isVisible());
}

TEST_F(FrmDoctor, SaysBelowWhatToDoWhereSomethingIsWrong)
{
    windows.diagnosis.firewallRead(
        {Firewall::Verdict::blocks, QStringLiteral("ufw"), QStringLiteral("sudo ufw allow 5549/udp")});
    EXPECT_EQ(text("firewallSentence"),
              QStringLiteral("The firewall ufw is on and keeps UDP port 5549 out: nobody reaches you."));
    EXPECT_TRUE(control<QLabel>("firewallAdvice").isVisible());
    EXPECT_EQ(text("firewallAdvice"), QStringLiteral("This opens the port: sudo ufw allow 5549/udp"));
    EXPECT_EQ(control<QLabel>("firewallPicture").accessibleName(), QStringLiteral("wrong"));
    EXPECT_FALSE(control<QLabel>("firewallPicture").pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(control<QLabel>("networkPicture").accessibleName(), QStringLiteral("fine"));
    EXPECT_FALSE(control<QLabel>("networkAdvice").isVisible());
}

TEST_F(FrmDoctor, CheckAgainExaminesAgain)
{
    endWell();
    windows.sent();
    windows.ownAddresses.running.clear();
    click("examineBtn");
    EXPECT_EQ(text("networkSentence"), QStringLiteral("No network with an IPv4 address is connected."));
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.1", "?ONLINE 10.0.0.1 HERE Me"}));
}

TEST_F(FrmDoctor, AsksTheContactThatIsChosen)
{
    endWell();
    windows.sent();
    EXPECT_EQ(control<QComboBox>("contactCombo").itemText(0), QStringLiteral("Ann (10.0.0.2)"));
    EXPECT_EQ(control<QComboBox>("contactCombo").itemText(1), QStringLiteral("Ben & Co (10.0.0.3)"));
    control<QComboBox>("contactCombo").setCurrentIndex(1);
    click("askContactBtn");
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.3", "?ONLINE 10.0.0.1 HERE Me"}));
    EXPECT_TRUE(control<QLabel>("contactSentence").isVisible());
    windows.time.advance(std::chrono::milliseconds(5));
    windows.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Ben & Co");
    EXPECT_EQ(text("contactSentence"), QStringLiteral("Ben & Co answered after 5 ms."));
}

TEST_F(FrmDoctor, OffersContactsThatComeMeanwhile)
{
    endWell();
    auto &combo = control<QComboBox>("contactCombo");
    combo.setCurrentIndex(1);
    windows.arrive("10.0.0.9", "?ONLINE 10.0.0.9 PC-ABE Abe");
    EXPECT_TRUE(QTest::qWaitFor([&combo] { return combo.count() == 3; }, 5000));
    EXPECT_EQ(combo.itemText(0), QStringLiteral("Abe (10.0.0.9)"));
    EXPECT_EQ(combo.currentText(), QStringLiteral("Ben & Co (10.0.0.3)"));
}

TEST_F(FrmDoctor, OpensFromTheLineThatNobodyAnswered)
{
    shownDoctor()->close();
    EXPECT_FALSE(shownDoctor());
    windows.engine.search().ask({{Ipv4Address(10, 0, 0, 77)}}, QStringLiteral("10.0.0.77"));
    windows.time.advance(std::chrono::seconds(3));
    RichTextLogEdit &log = RealWindows::logOf(windows.main());
    QTextCursor words = log.document()->find(QStringLiteral("Network doctor"));
    ASSERT_FALSE(words.isNull());
    words.setPosition(words.selectionStart() + 1);
    log.setTextCursor(words);
    log.ensureCursorVisible();
    QTest::mouseClick(log.viewport(), Qt::LeftButton, {}, log.cursorRect(words).center());
    EXPECT_TRUE(shownDoctor());
}

TEST_F(FrmDoctor, ShowsTheLatestDatagramsWithoutWhatPeopleWrote)
{
    endWell();
    windows.arrive("10.0.0.2", "-the secret");
    windows.arrive("10.0.0.3", "!MOOD 50");
    EXPECT_TRUE(QTest::qWaitFor([this] { return column(4).back() == "!MOOD"; }, 5000));
    const std::vector<std::string> kinds = column(4);
    const auto message = static_cast<std::size_t>(std::ranges::find(kinds, "private message") - kinds.begin());
    ASSERT_LT(message, kinds.size());
    EXPECT_EQ(column(1)[message], "in");
    EXPECT_EQ(column(5)[message], "");
    EXPECT_EQ(column(2).back(), "10.0.0.3");
    control<QCheckBox>("showTextsBox").click();
    EXPECT_EQ(column(5)[message], "-the secret");
}

TEST_F(FrmDoctor, TheLatestDatagramsCanBeWalkedThrough)
{
    endWell();
    auto &list = control<QTreeWidget>("datagramList");
    EXPECT_TRUE(QTest::qWaitFor([&list] { return list.topLevelItemCount() > 1; }, 5000));
    list.setCurrentItem(list.topLevelItem(1));
    windows.diagnosis.firewallRead({}); // whatever is shown anew
    ASSERT_TRUE(list.currentItem());
    EXPECT_EQ(list.indexOfTopLevelItem(list.currentItem()), 1);
}

TEST_F(FrmDoctor, ShowsAllOfWhatWasDropped)
{
    endWell();
    EXPECT_EQ(text("dropsLabel"), QStringLiteral("Nothing has been dropped."));
    windows.arrive("10.0.0.99", "-hello");
    windows.arrive("10.0.0.2", "!CONF CLOSE #3");
    auto &label = control<QLabel>("dropsLabel");
    EXPECT_TRUE(QTest::qWaitFor([&label] { return label.text().count(u'\n') == 2; }, 5000))
        << label.text().toStdString();
    EXPECT_TRUE(QTest::qWaitFor([&label] { return label.height() >= label.sizeHint().height(); }, 5000))
        << label.height() << " of " << label.sizeHint().height();
}

TEST_F(FrmDoctor, CopiesAReport)
{
    endWell();
    windows.arrive("10.0.0.2", "-the secret");
    click("copyReportBtn");
    const QString report = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(report.startsWith(QStringLiteral("[fine] Connected as 10.0.0.1 (eth0).\n"))) << report.toStdString();
    EXPECT_TRUE(report.contains(QStringLiteral("private message")));
    EXPECT_FALSE(report.contains(QStringLiteral("secret")));
    control<QCheckBox>("showTextsBox").click();
    click("copyReportBtn");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QStringLiteral("-the secret")));
}

TEST_F(FrmDoctor, CountsWhatWasDropped)
{
    EXPECT_EQ(text("dropsLabel"), QStringLiteral("Nothing has been dropped."));
    windows.arrive("99.0.0.1", "-from nobody");
    EXPECT_TRUE(QTest::qWaitFor([this] { return text("dropsLabel") != QStringLiteral("Nothing has been dropped."); }));
    EXPECT_EQ(text("dropsLabel"), QStringLiteral("Dropped:\nFrom addresses that are no contacts: 1"));
}

TEST_F(FrmDoctor, OpeningItAgainBringsItBack)
{
    QWidget *const first = shownDoctor();
    windows.entry("mnuNetworkDoctor").trigger();
    EXPECT_EQ(shownDoctor(), first);
    click("closeBtn");
    EXPECT_FALSE(shownDoctor());
    windows.entry("mnuNetworkDoctor").trigger();
    EXPECT_TRUE(shownDoctor());
}

TEST_F(FrmDoctor, WhatAnswersAfterItWasClosedDoesNoHarm)
{
    const auto late = windows.diagnosis.firewallRead;
    click("askContactBtn");
    click("closeBtn");
    EXPECT_FALSE(shownDoctor());
    late({});
    endWell();
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    windows.time.advance(std::chrono::seconds(5));
}

TEST_F(FrmDoctor, TheKeyboardReachesEverything)
{
    endWell();
    EXPECT_THAT(tabStops(*shownDoctor()),
                testing::IsSupersetOf({"contactCombo", "askContactBtn", "datagramList", "showTextsBox", "examineBtn",
                                       "copyReportBtn", "closeBtn"}));
    press(Qt::Key_Escape);
    EXPECT_FALSE(shownDoctor());
}

TEST(FrmDoctorAlone, WithoutContactsNobodyCanBeAsked)
{
    RealWindows windows;
    windows.entry("mnuNetworkDoctor").trigger();
    auto &doctor = *windows.main().findChild<QWidget *>(QStringLiteral("frmDoctor"));
    EXPECT_FALSE(controlOf<QPushButton>(doctor, "askContactBtn").isEnabled());
    EXPECT_FALSE(controlOf<QComboBox>(doctor, "contactCombo").isEnabled());
}

} // namespace
} // namespace nimb::test
