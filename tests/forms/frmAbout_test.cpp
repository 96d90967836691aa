#include "welcome/frmAbout.h"

#include "controls.h"
#include "dialog_recorders.h"
#include "keyboard.h"
#include "labels.h"
#include "print_qt.h"

#include <gmock/gmock.h>

#include <QPointer>
#include <QPushButton>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class FrmAbout : public testing::Test
{
protected:
    FrmAbout()
    {
        parent.show();
        dialog = new frmAbout(system, prompts, QStringLiteral("1.2.0"), &parent);
        dialog->open();
        EXPECT_TRUE(QTest::qWaitFor([this] { return button("cmdOK").hasFocus(); }, 5000));
    }
    QLabel &label(const char *name) { return *dialog->findChild<QLabel *>(QLatin1String(name)); }
    QPushButton &button(const char *name) { return *dialog->findChild<QPushButton *>(QLatin1String(name)); }
    bool isGone() { return hasGone(dialog); }

    RecorderSystemInformation system;
    InterruptedPrompts prompts;
    QWidget parent;
    QPointer<frmAbout> dialog;
};

TEST_F(FrmAbout, ShowsTitleVersionAndDescription)
{
    EXPECT_EQ(dialog->objectName(), QStringLiteral("frmAbout"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("About NIMB-Chat"));
    EXPECT_EQ(label("lblTitle").text(), QStringLiteral("NIMB-Chat"));
    EXPECT_EQ(label("lblVersion").text(), QStringLiteral("Version 1.2.0"));
    EXPECT_EQ(
        label("lblDescription").text(),
        QStringLiteral("A simple messenger that works with UDP/IP and it's been intended for use on a small LAN"));
    EXPECT_FALSE(label("lblDisclaimer").text().isEmpty());
    EXPECT_THAT(badLabels(*dialog), IsEmpty());
}

TEST_F(FrmAbout, ShowsThePictureOfTheProgramAndNamesIt)
{
    EXPECT_EQ(label("picIcon").pixmap().deviceIndependentSize(), QSizeF(64, 64));
    EXPECT_FALSE(label("picIcon").accessibleName().isEmpty());
}

TEST_F(FrmAbout, TheButtonStartsTheSystemInformation)
{
    EXPECT_EQ(button("cmdSysInfo").text(), QStringLiteral("&System Info..."));
    QTest::mouseClick(&button("cmdSysInfo"), Qt::LeftButton);
    EXPECT_EQ(system.starts, 1);
    EXPECT_THAT(prompts.told, IsEmpty());
    EXPECT_FALSE(isGone());
}

TEST_F(FrmAbout, SaysWhenThereIsNoSystemInformation)
{
    system.available = false;
    press(Qt::Key_S, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return system.starts == 1; }, 5000));
    EXPECT_THAT(prompts.told, ElementsAre("About NIMB-Chat: System Information Is Unavailable At This Time"));
    EXPECT_FALSE(isGone());
}

TEST_F(FrmAbout, MayBeGoneBeforeTheRefusalHasBeenRead)
{
    system.available = false;
    prompts.whileTelling = [this] { delete dialog; };
    QTest::mouseClick(&button("cmdSysInfo"), Qt::LeftButton);
    EXPECT_EQ(prompts.told.size(), 1U);
    EXPECT_TRUE(isGone());
}

TEST_F(FrmAbout, OkCloses)
{
    EXPECT_EQ(button("cmdOK").text(), QStringLiteral("OK"));
    QTest::mouseClick(&button("cmdOK"), Qt::LeftButton);
    EXPECT_TRUE(isGone());
    EXPECT_EQ(system.starts, 0);
}

TEST_F(FrmAbout, EnterCloses)
{
    press(Qt::Key_Return);
    EXPECT_TRUE(isGone());
    EXPECT_EQ(system.starts, 0);
}

TEST_F(FrmAbout, EscapeCloses)
{
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone());
}

TEST_F(FrmAbout, TheKeyboardReachesEverything)
{
    EXPECT_THAT(accessKeys(*dialog), UnorderedElementsAre("Alt+S"));
    EXPECT_THAT(tabStops(*dialog), UnorderedElementsAre("cmdOK", "cmdSysInfo"));
    EXPECT_TRUE(button("cmdOK").isDefault());
}

} // namespace
} // namespace nimb::test
