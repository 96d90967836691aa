#include "recorders.h"
#include "simulated_network.h"
#include "welcome/frmLogin.h"

#include <gmock/gmock.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace nimb::test
{
namespace
{

class FrmLogin : public testing::Test
{
protected:
    void open()
    {
        dialog.emplace(login, prompts);
        dialog->open();
        EXPECT_TRUE(QTest::qWaitFor([this] { return box().hasFocus(); }, 5000));
    }
    QLineEdit &box() { return *dialog->findChild<QLineEdit *>(QStringLiteral("txtUserName")); }
    QPushButton &ok() { return *dialog->findChild<QPushButton *>(QStringLiteral("CmdOK")); }

    Common common;
    MemoryStore store;
    RecorderPrompts prompts;
    SimulatedWinsock socket{QStringLiteral("10.0.0.1"), QStringLiteral("HERE"), nullptr};
    Login login{common, store, socket};
    std::optional<frmLogin> dialog;
};

TEST_F(FrmLogin, OffersTheHostNameAndTakesTheFocusAtOnce)
{
    open();
    EXPECT_EQ(dialog->objectName(), QStringLiteral("frmLogin"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("NIMB-Chat"));
    EXPECT_EQ(box().text(), QStringLiteral("HERE"));
}

TEST_F(FrmLogin, TypingReplacesTheOfferAndEnterAccepts)
{
    open();
    QTest::keyClicks(&box(), QStringLiteral("Bob the Builder"));
    QTest::keyClick(&box(), Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(common.ownNickname, QStringLiteral("Bob the Builder"));
}

TEST_F(FrmLogin, AnEmptyBoxTakesTheHostName)
{
    open();
    box().clear();
    QTest::mouseClick(&ok(), Qt::LeftButton);
    EXPECT_EQ(common.ownNickname, QStringLiteral("HERE"));
}

TEST_F(FrmLogin, TheCloseBoxLeavesTheNicknameEmpty)
{
    open();
    dialog->close();
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(common.ownNickname, QString());
    EXPECT_EQ(store.saves, 0);
}

TEST_F(FrmLogin, EndedWhileTellingItDoesNotAccept)
{
    class EndingPrompts : public RecorderPrompts
    {
    public:
        bool tell(const QString &, const QString &) override
        {
            ended->reject();
            return true;
        }
        QDialog *ended = nullptr;
    } ending;
    store.failure = QStringLiteral("The disk is full.");
    frmLogin closing(login, ending);
    ending.ended = &closing;
    closing.open();
    closing.findChild<QPushButton *>(QStringLiteral("CmdOK"))->click();
    EXPECT_EQ(closing.result(), QDialog::Rejected);
}

TEST_F(FrmLogin, AFailedSaveIsToldAndTheNicknameHolds)
{
    open();
    store.failure = QStringLiteral("The disk is full.");
    QTest::mouseClick(&ok(), Qt::LeftButton);
    EXPECT_THAT(prompts.told, testing::ElementsAre("NIMB-Chat: The disk is full."));
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

} // namespace
} // namespace nimb::test
