// Text of peers is shown as it is, wherever it is shown.
#include "real_windows.h"

#include "widgets/form_text.h"
#include "widgets/message_boxes.h"
#include "widgets/plain_tool_tips.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QToolTip>
#include <QWindow>

namespace nimb::test
{
namespace
{

constexpr const char *marked = "<b>Ann</b> & [*] %1";

class PlainText : public testing::Test
{
protected:
    PlainText() { windows.settleStart({"10.0.0.2"}); }

    RealWindows windows{{{"10.0.0.2", marked}}};
};

TEST_F(PlainText, InTheListAndItsToolTip)
{
    EXPECT_EQ(windows.list().model()->index(0, 0).data().toString(), QString::fromUtf8(marked));
    PlainToolTips filter;
    QWidget *const viewport = windows.list().viewport();
    viewport->setToolTip(windows.engine.contactCommands().toolTip(QStringLiteral("10.0.0.2")));
    EXPECT_EQ(viewport->toolTip(), QString::fromUtf8(marked));
    qApp->installEventFilter(&filter);
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), viewport->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(viewport, &event);
    qApp->removeEventFilter(&filter);
    EXPECT_FALSE(QToolTip::text().contains(QLatin1String("<b>")));
    EXPECT_TRUE(QToolTip::text().contains(QLatin1String("&lt;b&gt;Ann&lt;/b&gt;")));
    QToolTip::hideText();
}

TEST_F(PlainText, InMenuCaptions)
{
    windows.click(0);
    EXPECT_EQ(windows.entry("mnuPrivateChat").text(), QStringLiteral("Private chat with '<b>Ann</b> && [*] %1'"));
}

TEST_F(PlainText, InTheCaptionOfItsWindow)
{
    windows.doubleClick(0);
    QWidget &window = windows.privateWindow();
    // The window system is given the title with its place marker resolved.
    EXPECT_EQ(window.windowHandle()->title(),
              QString::fromUtf8(marked) + QStringLiteral(" - NIMB-Chat - Private Chat Window"));
}

TEST_F(PlainText, InLogs)
{
    windows.arrive("10.0.0.2", "-<img src='file:///etc/passwd'><i>x</i>");
    EXPECT_TRUE(RealWindows::logOf(windows.privateWindow())
                    .toPlainText()
                    .contains(QStringLiteral("<b>Ann</b> & [*] %1> <img src='file:///etc/passwd'><i>x</i>")));
    windows.arrive("10.0.0.2", "!<b>x</b>");
    EXPECT_TRUE(windows.logText().contains(QStringLiteral("(!<b>x</b>)")));
}

TEST_F(PlainText, InTheDetailsOfTheSelectedContact)
{
    windows.click(0);
    EXPECT_EQ(windows.control<QLineEdit>("ItemDetailstxt").text(),
              QString::fromUtf8(marked) + QStringLiteral(" on PC (10.0.0.2)"));
}

TEST(PlainMessageBox, ShowsMarkupAndAnswersWithItsButtons)
{
    MessageBoxes boxes;
    QString shown;
    Qt::TextFormat format = Qt::AutoText;
    const auto press = [&](QMessageBox::StandardButton button) {
        QTimer::singleShot(0, [&shown, &format, button] {
            auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            shown = box->text();
            format = box->textFormat();
            box->button(button)->click();
        });
    };
    press(QMessageBox::Cancel);
    EXPECT_FALSE(boxes.confirm(QStringLiteral("<b>x</b> ?"), QStringLiteral("t")));
    EXPECT_EQ(shown, QStringLiteral("<b>x</b> ?"));
    EXPECT_EQ(format, Qt::PlainText);
    press(QMessageBox::Ok);
    EXPECT_TRUE(boxes.confirm(QStringLiteral("x"), QStringLiteral("t")));
    press(QMessageBox::Ok);
    boxes.tell(QStringLiteral("<i>y</i>"), QStringLiteral("t"));
    EXPECT_EQ(shown, QStringLiteral("<i>y</i>"));
}

TEST(PlainMessageBox, BelongsToTheWindowWhoseDialogIsJustClosing)
{
    MessageBoxes boxes;
    QWidget program, asked;
    boxes.setParentWindow(&program);
    asked.show();
    QDialog files(&asked);
    files.show();
    files.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&files));
    QWidget *owner = nullptr;
    QTimer::singleShot(0, [&owner] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        owner = box->parentWidget();
        box->button(QMessageBox::Ok)->click();
    });
    files.setAttribute(Qt::WA_WState_Visible, false); // as within its own closing
    boxes.tell(QStringLiteral("a bad line"), QStringLiteral("t"));
    files.setAttribute(Qt::WA_WState_Visible, true);
    EXPECT_EQ(owner, &asked);
}

TEST(UnaskedMessageBox, TakesNoFocusAndReturnMeansNo)
{
    MessageBoxes boxes;
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTimer::singleShot(0, [] {
        QMessageBox *box = nullptr;
        for (QWidget *const other : QApplication::topLevelWidgets())
            box = box ? box : qobject_cast<QMessageBox *>(other);
        ASSERT_TRUE(box);
        EXPECT_TRUE(box->testAttribute(Qt::WA_ShowWithoutActivating));
        EXPECT_FALSE(box->isModal()) << "or it would take the keyboard";
        EXPECT_EQ(box->parentWidget(), nullptr);
        QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_EQ(boxes.decideUnasked(QStringLiteral("Send it?"), QStringLiteral("t")), std::optional(false));
    boxes.setUnattended();
    EXPECT_EQ(boxes.decideUnasked(QStringLiteral("Send it?"), QStringLiteral("t")), std::nullopt);
}

TEST(CarefulMessageBox, TakesReturnAndEscForNo)
{
    MessageBoxes boxes;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QTimer::singleShot(0, [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
        EXPECT_EQ(boxes.decideCarefully(QStringLiteral("End it?"), QStringLiteral("t")), std::optional(false));
    }
    QTimer::singleShot(
        0, [] { qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->button(QMessageBox::Yes)->click(); });
    EXPECT_EQ(boxes.decideCarefully(QStringLiteral("End it?"), QStringLiteral("t")), std::optional(true));
}

TEST(UnattendedMessageBox, ClosesWhatIsOpenAsIfCancelled)
{
    MessageBoxes boxes;
    QTimer::singleShot(0, [&boxes] { boxes.setUnattended(); });
    EXPECT_FALSE(boxes.confirm(QStringLiteral("x"), QStringLiteral("t")));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(UnattendedMessageBox, NeverWaits)
{
    MessageBoxes boxes;
    boxes.setUnattended();
    EXPECT_FALSE(boxes.confirm(QStringLiteral("x"), QStringLiteral("t")));
    testing::internal::CaptureStderr();
    boxes.tell(QStringLiteral("The disk is full."), QStringLiteral("NIMB-Chat"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "NIMB-Chat: The disk is full.\n");
}

} // namespace
} // namespace nimb::test
