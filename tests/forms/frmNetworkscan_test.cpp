#include "people/frmNetworkscan.h"

#include "controls.h"
#include "dialog_recorders.h"
#include "keyboard.h"
#include "labels.h"
#include "print_qt.h"
#include "recorders.h"
#include "simulated_network.h"
#include "virtual_time.h"

#include <gmock/gmock.h>

#include <QComboBox>
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

class FrmNetworkscan : public testing::Test, protected ScanSurroundings
{
protected:
    FrmNetworkscan()
    {
        parent.show();
        ownAddresses.running.clear();
        open();
    }
    void open()
    {
        dialog = new frmNetworkscan(scan, &parent);
        dialog->open();
        EXPECT_TRUE(QTest::qWaitFor([this] { return text().hasFocus(); }, 5000));
    }
    QLineEdit &text() { return *dialog->findChild<QLineEdit *>(QStringLiteral("Text1")); }
    QPushButton &button(const char *name) { return *dialog->findChild<QPushButton *>(QLatin1String(name)); }
    bool isGone() { return hasGone(dialog); }

    QWidget parent;
    QPointer<frmNetworkscan> dialog;
};

TEST_F(FrmNetworkscan, OffersTheOwnAddressAndTellsOfBroadcasts)
{
    EXPECT_EQ(dialog->objectName(), QStringLiteral("frmNetworkscan"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("NIMB-Chat - Network Scan"));
    EXPECT_EQ(text().text(), QStringLiteral("192.168.1.5"));
    EXPECT_EQ(dialog->findChild<QGroupBox *>()->title(),
              QStringLiteral("Scan/search the network for new NIMB-Chat users"));
    EXPECT_EQ(dialog->findChild<QLabel *>(QStringLiteral("Label1"))->text().remove(u'&'),
              QStringLiteral("Workstation name / IP Address:"));
    EXPECT_EQ(dialog->findChild<QLabel *>(QStringLiteral("Label2"))->text(),
              QStringLiteral("Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address "
                             "is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is "
                             "192.168.1.255)"));
    EXPECT_EQ(button("Command1").text(), QStringLiteral("Scan"));
    EXPECT_EQ(button("Command2").text(), QStringLiteral("Cancel"));
    EXPECT_THAT(badLabels(*dialog), IsEmpty());
}

TEST_F(FrmNetworkscan, TypingReplacesTheOfferAndEnterScans)
{
    type("192.168.1.255");
    press(Qt::Key_Return);
    EXPECT_THAT(socket.sent, ElementsAre(To{"192.168.1.255", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmNetworkscan, TheButtonScansTheOwnAddressAsItIs)
{
    QTest::mouseClick(&button("Command1"), Qt::LeftButton);
    EXPECT_THAT(socket.sent, ElementsAre(To{"192.168.1.5", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmNetworkscan, ClosesAtOnceAndTheAnswerComesLater)
{
    type("PC-ANN");
    press(Qt::Key_Enter);
    EXPECT_TRUE(isGone());
    EXPECT_THAT(socket.sent, IsEmpty());
    resolver.answer(0, Ipv4Address(10, 0, 0, 2));
    EXPECT_THAT(socket.sent, ElementsAre(To{"10.0.0.2", "?ONLINE 192.168.1.5 HERE Me"}));
}

TEST_F(FrmNetworkscan, AnEmptyBoxAsksNobodyAndCloses)
{
    press(Qt::Key_Delete);
    press(Qt::Key_Return);
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(resolver.names, IsEmpty());
    EXPECT_TRUE(isGone());
}

TEST_F(FrmNetworkscan, CancelClosesWithoutAsking)
{
    QTest::mouseClick(&button("Command2"), Qt::LeftButton);
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_TRUE(isGone());
}

TEST_F(FrmNetworkscan, EscapeClosesWithoutAsking)
{
    press(Qt::Key_Escape);
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_TRUE(isGone());
}

TEST_F(FrmNetworkscan, OffersTheBroadcastAddressesOfThisComputer)
{
    EXPECT_FALSE(dialog->findChild<QComboBox *>(QStringLiteral("networksCombo"))->isVisible()) << "there is none";
    dialog->close();
    ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(192, 168, 1, 5), Ipv4Address(192, 168, 1, 255)},
                            {QStringLiteral("wlan0"), Ipv4Address(10, 7, 0, 1), Ipv4Address(10, 7, 3, 255)}};
    open();
    auto &networks = *dialog->findChild<QComboBox *>(QStringLiteral("networksCombo"));
    EXPECT_TRUE(networks.isVisible());
    EXPECT_EQ(networks.currentIndex(), -1);
    EXPECT_EQ(text().text(), QStringLiteral("192.168.1.5")) << "the own address stays the offer";
    EXPECT_EQ(networks.count(), 2);
    EXPECT_EQ(networks.itemText(0), QStringLiteral("192.168.1.255 (eth0)"));
    EXPECT_THAT(tabStops(*dialog), ElementsAre("Text1", "networksCombo", "Command1", "Command2"));
    EXPECT_THAT(badLabels(*dialog), IsEmpty());
    networks.setFocus();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_THAT(socket.sent, ElementsAre(To{"10.7.3.255", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmNetworkscan, WithoutANetworkItSaysSoAndLeadsToTheDoctor)
{
    auto &sentence = *dialog->findChild<QLabel *>(QStringLiteral("noNetworkLabel"));
    EXPECT_TRUE(sentence.isVisible());
    EXPECT_FALSE(dialog->findChild<QComboBox *>(QStringLiteral("networksCombo"))->isVisible());
    int wanted = 0;
    QObject::connect(dialog, &frmNetworkscan::doctorWanted, &parent, [&wanted] { ++wanted; });
    QTest::mouseClick(&button("doctorBtn"), Qt::LeftButton);
    EXPECT_EQ(wanted, 1);
    EXPECT_TRUE(isGone());
    EXPECT_THAT(socket.sent, IsEmpty());
    ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(192, 168, 1, 5), Ipv4Address(192, 168, 1, 255)}};
    open();
    EXPECT_FALSE(dialog->findChild<QLabel *>(QStringLiteral("noNetworkLabel"))->isVisible());
}

TEST_F(FrmNetworkscan, TakesAtMost255Characters)
{
    text().clear();
    text().insert(QString(300, u'x'));
    EXPECT_EQ(text().text().size(), 255);
}

TEST_F(FrmNetworkscan, TheKeyboardReachesEverything)
{
    EXPECT_THAT(accessKeys(*dialog), UnorderedElementsAre("Alt+W", "Alt+D"));
    EXPECT_THAT(tabStops(*dialog), ElementsAre("Text1", "doctorBtn", "Command1", "Command2"));
    EXPECT_TRUE(button("Command1").isDefault());
    button("Command2").setFocus();
    press(Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(text().hasFocus());
}

} // namespace
} // namespace nimb::test
