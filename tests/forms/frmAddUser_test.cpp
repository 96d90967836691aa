#include "people/frmAddUser.h"

#include "controls.h"
#include "dialog_recorders.h"
#include "keyboard.h"
#include "print_qt.h"
#include "recorders.h"
#include "widgets/muted_colour.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class FrmAddUser : public testing::Test, protected SearchSurroundings
{
protected:
    FrmAddUser()
    {
        common.ownIP = Ipv4Address(192, 168, 0, 5);
        common.ownHostName = QStringLiteral("HERE");
        parent.show();
        dialog = new frmAddUser(rules, &parent);
        dialog->open();
        EXPECT_TRUE(QTest::qWaitFor([this] { return box("nicktxt").hasFocus(); }, 5000));
    }
    QLineEdit &box(const char *name) { return *dialog->findChild<QLineEdit *>(QLatin1String(name)); }
    QPushButton &button(const char *name) { return *dialog->findChild<QPushButton *>(QLatin1String(name)); }
    void fill(const char *nickname, const char *host, const char *address)
    {
        box("nicktxt").setText(QString::fromUtf8(nickname));
        box("hostname").setText(QString::fromUtf8(host));
        box("ipaddress").setText(QString::fromUtf8(address));
    }
    bool isGone() { return hasGone(dialog); }

    InterruptedPrompts prompts;
    DropCounts drops;
    Admission admission{common, contacts, ownAddresses, drops};
    AddUser rules{common, admission, contacts, search, prompts};
    QWidget parent;
    QPointer<frmAddUser> dialog;
};

TEST_F(FrmAddUser, AsksForNicknameWorkstationAndAddress)
{
    EXPECT_EQ(dialog->objectName(), QStringLiteral("frmAddUser"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Add offline user"));
    EXPECT_EQ(dialog->findChild<QGroupBox *>()->title(), QStringLiteral("Insert user information"));
    std::vector<std::string> captions;
    for (const char *const label : {"Label1", "Label2", "Label3"})
        captions.push_back(dialog->findChild<QLabel *>(QLatin1String(label))->text().remove(u'&').toStdString());
    EXPECT_THAT(captions, ElementsAre("Nickname", "Workstation", "IP Address"));
    EXPECT_EQ(button("CmdOK").text(), QStringLiteral("OK"));
    EXPECT_EQ(button("Command1").text(), QStringLiteral("Cancel"));
    EXPECT_EQ(button("Resolvebtn").text(), QStringLiteral("Resolve"));
    EXPECT_EQ(box("nicktxt").text() + box("hostname").text() + box("ipaddress").text(), QString());
}

TEST_F(FrmAddUser, WhatIsTypedAndConfirmedByEnterIsAdded)
{
    type("Ann");
    press(Qt::Key_Tab);
    type("PC-ANN");
    press(Qt::Key_Tab);
    type("192.168.0.7");
    press(Qt::Key_Return);
    ASSERT_EQ(contacts.rowCount(), 1);
    EXPECT_EQ(contacts.at(0).nickname, QStringLiteral("Ann"));
    EXPECT_EQ(contacts.at(0).workstation, QStringLiteral("PC-ANN"));
    EXPECT_EQ(contacts.at(0).ip, QStringLiteral("192.168.0.7"));
    EXPECT_EQ(contacts.at(0).sortKey, QStringLiteral("B_Ann"));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmAddUser, ARefusalLeavesTheDialogWithItsFieldsAsTyped)
{
    fill("Me", "HERE", "192.168.0.7");
    QTest::mouseClick(&button("CmdOK"), Qt::LeftButton);
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: You can't add yourself..."));
    ASSERT_FALSE(isGone());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(box("nicktxt").text(), QStringLiteral("Me"));
    EXPECT_EQ(box("hostname").text(), QStringLiteral("HERE"));
    EXPECT_EQ(box("ipaddress").text(), QStringLiteral("192.168.0.7"));
    EXPECT_EQ(contacts.rowCount(), 0);
}

TEST_F(FrmAddUser, AUsedAddressWithAnEmptyNicknameReportsTheAddress)
{
    Contact ann;
    ann.ip = QStringLiteral("192.168.0.7");
    contacts.add(ann);
    fill("", "PC-ANN", "192.168.0.7");
    press(Qt::Key_Return);
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: IP Address already used by another user"));
    EXPECT_FALSE(isGone());
}

TEST_F(FrmAddUser, MayBeGoneBeforeTheRefusalHasBeenRead)
{
    prompts.whileTelling = [this] {
        dialog->close();
        delete dialog;
    };
    press(Qt::Key_Return);
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: Please fill all the fields"));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmAddUser, ResolveDoesNothing)
{
    fill("Ann", "localhost", "");
    QTest::mouseClick(&button("Resolvebtn"), Qt::LeftButton);
    button("Resolvebtn").setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(button("Resolvebtn").isEnabled());
    EXPECT_EQ(box("hostname").text(), QStringLiteral("localhost"));
    EXPECT_EQ(box("ipaddress").text(), QString());
    EXPECT_THAT(prompts.told, IsEmpty());
    EXPECT_FALSE(isGone());
}

TEST_F(FrmAddUser, CancelAndEscapeCloseWithoutAdding)
{
    fill("Ann", "PC-ANN", "192.168.0.7");
    QTest::mouseClick(&button("Command1"), Qt::LeftButton);
    EXPECT_TRUE(isGone());
    dialog = new frmAddUser(rules, &parent);
    dialog->open();
    fill("Ann", "PC-ANN", "192.168.0.7");
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_TRUE(isGone());
    EXPECT_EQ(contacts.rowCount(), 0);
}

TEST_F(FrmAddUser, AWrongAddressIsMarkedInItsBoxWhileItIsTyped)
{
    const auto &remark = *dialog->findChild<QLabel *>(QStringLiteral("addressRemark"));
    const auto &mark = *box("ipaddress").actions().front();
    const QSize size = dialog->size();
    EXPECT_FALSE(mark.isVisible());
    box("ipaddress").setFocus();
    type("192.168.0.5");
    EXPECT_TRUE(mark.isVisible());
    EXPECT_EQ(remark.text(), QStringLiteral("You can't add yourself..."));
    EXPECT_EQ(box("ipaddress").accessibleDescription(), remark.text());
    type("6");
    EXPECT_FALSE(mark.isVisible());
    EXPECT_EQ(remark.text(), QString());
    EXPECT_EQ(dialog->size(), size);
    EXPECT_THAT(prompts.told, IsEmpty());
}

TEST_F(FrmAddUser, WhatIsWrongCanBeRead)
{
    const QPalette &colours = dialog->findChild<QLabel *>(QStringLiteral("addressRemark"))->palette();
    const QColor remark = colours.color(QPalette::WindowText);
    EXPECT_GE(contrast(remark, colours.color(QPalette::Window)), 4.5) << remark.name().toStdString();
    EXPECT_EQ(remark.hue(), 0) << "it is red";
}

TEST_F(FrmAddUser, PastedLineBreaksBecomeBlanks)
{
    fill("Ann\nof the\tbasement", "PC-ANN", "192.168.0.7");
    press(Qt::Key_Return);
    ASSERT_EQ(contacts.rowCount(), 1);
    EXPECT_EQ(contacts.at(0).nickname, QStringLiteral("Ann of the basement"));
}

TEST_F(FrmAddUser, ABoxTakesAtMost255Characters)
{
    for (const char *const name : {"nicktxt", "hostname", "ipaddress"}) {
        box(name).insert(QString(300, u'x'));
        EXPECT_EQ(box(name).text().size(), 255) << name;
    }
}

TEST_F(FrmAddUser, TheKeyboardReachesEverything)
{
    EXPECT_THAT(accessKeys(*dialog), UnorderedElementsAre("Alt+N", "Alt+W", "Alt+I"));
    EXPECT_THAT(tabStops(*dialog), ElementsAre("nicktxt", "hostname", "ipaddress", "Resolvebtn", "CmdOK", "Command1"));
    EXPECT_TRUE(button("CmdOK").isDefault());
    press(Qt::Key_I, Qt::AltModifier);
    EXPECT_TRUE(box("ipaddress").hasFocus());
    press(Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(box("hostname").hasFocus());
    press(Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(box("nicktxt").hasFocus());
}

} // namespace
} // namespace nimb::test
