#include "people/frmInvite.h"

#include "controls.h"
#include "dialog_recorders.h"
#include "keyboard.h"
#include "labels.h"
#include "print_qt.h"
#include "recorders.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class FrmInvite : public testing::Test
{
protected:
    FrmInvite()
    {
        common.ownNickname = QStringLiteral("Bob");
        addContact("192.168.0.7", QStringLiteral("Ann"), QStringLiteral("PC-ANN"));
        parent.show();
    }
    ~FrmInvite() override { delete dialog; }

    void addContact(const char *ip, const QString &nickname, const QString &workstation)
    {
        Contact contact;
        contact.nickname = nickname;
        contact.workstation = workstation;
        contact.ip = QString::fromLatin1(ip);
        contacts.add(contact);
    }
    void open(const char *selected = "192.168.0.7")
    {
        dialog = new frmInvite(invite, QLatin1String(selected), &parent);
        dialog->open();
        EXPECT_TRUE(QTest::qWaitFor([this] { return option(1).hasFocus(); }, 5000));
    }
    QRadioButton &option(int number)
    {
        return *dialog->findChild<QRadioButton *>(QStringLiteral("Option%1").arg(number));
    }
    /// Only the circle and the caption of an option button take a click.
    void choose(int number)
    {
        QTest::mouseClick(&option(number), Qt::LeftButton, {}, QPoint(8, option(number).height() / 2));
    }
    QLineEdit &text() { return *dialog->findChild<QLineEdit *>(QStringLiteral("Text1")); }
    QString label(const char *name) { return dialog->findChild<QLabel *>(QLatin1String(name))->text(); }
    QPushButton &button(const char *name) { return *dialog->findChild<QPushButton *>(QLatin1String(name)); }
    bool isGone() { return hasGone(dialog); }

    Common common;
    ContactList contacts;
    RecorderNetSend netSend;
    InterruptedPrompts prompts;
    const Invite invite{common, contacts, netSend, prompts};
    QWidget parent;
    QPointer<frmInvite> dialog;
};

TEST_F(FrmInvite, WithLargeLettersTheStandardTextIsNotCut)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(16);
    QApplication::setFont(large);
    common.ownNickname = QStringLiteral("Somebody Else");
    open();
    const auto &standard = *dialog->findChild<QLabel *>(QStringLiteral("stdtext"));
    EXPECT_LE(standard.fontMetrics().horizontalAdvance(standard.text()), standard.width());
    QApplication::setFont(usual);
}

TEST_F(FrmInvite, SaysToWhomAndOffersTheStandardText)
{
    open();
    EXPECT_EQ(dialog->objectName(), QStringLiteral("frmInvite"));
    EXPECT_EQ(label("Label1"), QStringLiteral("Send to the computer PC-ANN, for Ann"));
    EXPECT_EQ(label("stdtext"), QStringLiteral("Bob wants you to join him in NIMB-Chat"));
    EXPECT_TRUE(option(1).isChecked());
    EXPECT_FALSE(option(2).isChecked());
    EXPECT_NE(dialog->findChild<QGroupBox *>(QStringLiteral("Frame1")), nullptr);
    EXPECT_THAT(prompts.told, IsEmpty());
}

TEST_F(FrmInvite, EnterSendsTheStandardText)
{
    open();
    press(Qt::Key_Return);
    EXPECT_THAT(netSend.sent, ElementsAre("PC-ANN <- Bob wants you to join him in NIMB-Chat"));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmInvite, GoingToTheTextBoxChoosesTheOwnText)
{
    open();
    text().setFocus();
    EXPECT_TRUE(option(2).isChecked());
    EXPECT_FALSE(option(1).isChecked());
    type("Come in, \"Ann\"");
    press(Qt::Key_Return);
    EXPECT_THAT(netSend.sent, ElementsAre("PC-ANN <- Come in, \"Ann\""));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmInvite, TheStandardTextCanBeChosenAgain)
{
    open();
    text().setFocus();
    type("Come in");
    choose(1);
    EXPECT_TRUE(option(1).isChecked());
    QTest::mouseClick(&button("sendbtn"), Qt::LeftButton);
    EXPECT_THAT(netSend.sent, ElementsAre("PC-ANN <- Bob wants you to join him in NIMB-Chat"));
}

TEST_F(FrmInvite, AnEmptyOwnTextIsSentEmpty)
{
    open();
    choose(2);
    QTest::mouseClick(&button("sendbtn"), Qt::LeftButton);
    EXPECT_THAT(netSend.sent, ElementsAre("PC-ANN <- "));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmInvite, WithoutASelectedContactTheUserIsToldAndThisMachineIsTheTarget)
{
    open("");
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: No user selected!"));
    EXPECT_EQ(label("Label1"), QStringLiteral("Send to the computer localhost, for unknown"));
    press(Qt::Key_Return);
    EXPECT_THAT(netSend.sent, ElementsAre("localhost <- Bob wants you to join him in NIMB-Chat"));
}

TEST_F(FrmInvite, WithoutTheServiceItStaysWithItsText)
{
    netSend.missing = QStringLiteral("Install the package smbclient.");
    open();
    text().setFocus();
    type("Come in");
    press(Qt::Key_Return);
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: Install the package smbclient."));
    ASSERT_FALSE(isGone());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(text().text(), QStringLiteral("Come in"));
}

TEST_F(FrmInvite, MayBeGoneBeforeTheAdviceHasBeenRead)
{
    netSend.missing = QStringLiteral("Install the package smbclient.");
    open();
    prompts.whileTelling = [this] {
        dialog->close();
        delete dialog;
    };
    press(Qt::Key_Return);
    EXPECT_EQ(prompts.told.size(), 1U);
    EXPECT_TRUE(isGone());
}

TEST_F(FrmInvite, CancelAndEscapeSendNothing)
{
    open();
    QTest::mouseClick(&button("Command1"), Qt::LeftButton);
    EXPECT_TRUE(isGone());
    open();
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone());
    EXPECT_THAT(netSend.sent, IsEmpty());
}

TEST_F(FrmInvite, EveryDialogKeepsItsOwnTarget)
{
    addContact("192.168.0.8", QStringLiteral("Ben"), QStringLiteral("PC-BEN"));
    open();
    const QPointer<frmInvite> other = new frmInvite(invite, QStringLiteral("192.168.0.8"), &parent);
    press(Qt::Key_Return);
    other->findChild<QPushButton *>(QStringLiteral("sendbtn"))->click();
    EXPECT_THAT(netSend.sent,
                ElementsAre("PC-ANN <- Bob wants you to join him in NIMB-Chat",
                            "PC-BEN <- Bob wants you to join him in NIMB-Chat"));
}

TEST_F(FrmInvite, NamesAreNoMarkupAndLongOnesDoNotWidenIt)
{
    open();
    const int usual = dialog->width();
    delete dialog;
    common.ownNickname = QString(255, u'W');
    addContact("192.168.0.9", QStringLiteral("<b>Cleo</b> && %1 ") + QString(240, u'W'), QString(255, u'W'));
    open("192.168.0.9");
    EXPECT_EQ(dialog->width(), usual);
    EXPECT_TRUE(label("Label1").startsWith(QStringLiteral("Send to the computer WWW")));
    EXPECT_TRUE(label("Label1").contains(QStringLiteral("for <b>Cleo</b> && %1 WWW")));
    EXPECT_THAT(badLabels(*dialog), IsEmpty());
    for (const char *const name : {"Label1", "stdtext"}) {
        const QLabel &line = *dialog->findChild<QLabel *>(QLatin1String(name));
        EXPECT_EQ(line.textFormat(), Qt::PlainText) << name;
        EXPECT_LE(line.width(), usual) << name;
    }
    EXPECT_TRUE(dialog->findChild<QLabel *>(QStringLiteral("Label1"))->toolTip().contains(QString(255, u'W')));
    press(Qt::Key_Return);
    const std::string name(255, 'W');
    EXPECT_THAT(netSend.sent, ElementsAre(name + " <- " + name + " wants you to join him in NIMB-Chat"));
}

TEST_F(FrmInvite, TheKeyboardReachesEverything)
{
    open();
    EXPECT_THAT(accessKeys(*dialog), UnorderedElementsAre("Alt+T", "Alt+O", "Alt+S"));
    EXPECT_THAT(tabStops(*dialog), ElementsAre("Option1", "Text1", "sendbtn", "Command1"));
    EXPECT_TRUE(button("sendbtn").isDefault());
    EXPECT_FALSE(text().accessibleName().isEmpty());
    for (const auto &[key, number] : {std::pair(Qt::Key_T, 1), std::pair(Qt::Key_O, 2)}) {
        press(key, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&, chosen = number] { return option(chosen).isChecked(); }, 5000)) << number;
    }
}

} // namespace
} // namespace nimb::test
