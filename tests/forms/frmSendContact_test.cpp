#include "people/frmSendContact.h"

#include "controls.h"
#include "keyboard.h"
#include "labels.h"
#include "recorders.h"
#include "simulated_network.h"
#include "virtual_time.h"

#include <gmock/gmock.h>

#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class FrmSendContact : public testing::Test
{
protected:
    FrmSendContact()
    {
        socket.bind();
        for (const char *const name : {"Ann", "Ben", "Cleo", "Dora", "Emil"})
            add(name);
    }
    ~FrmSendContact() override
    {
        delete dialog;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void add(const QString &name)
    {
        Contact contact;
        contact.ip = QStringLiteral("10.0.0.%1").arg(contacts.rowCount() + 2);
        contact.nickname = name;
        contact.workstation = QStringLiteral("PC");
        contact.setPresence(Presence::online);
        contacts.add(std::move(contact));
    }
    /// For Ben, who is at 10.0.0.3.
    void open(const QString &nickname = QStringLiteral("Ben"))
    {
        dialog = new frmSendContact(
            std::make_unique<ContactTransfer>(socket, contacts, log, QStringLiteral("10.0.0.3")), nickname, nullptr);
        dialog->show();
        QCoreApplication::processEvents();
    }
    template <class Widget> Widget &control(const char *name) { return controlOf<Widget>(*dialog, name); }
    QTreeView &offered() { return control<QTreeView>("ListView1"); }
    QTreeView &chosen() { return control<QTreeView>("ListView2"); }
    static std::vector<std::string> names(const QTreeView &list)
    {
        std::vector<std::string> texts;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            texts.push_back(list.model()->index(row, 0).data().toString().toStdString());
        return texts;
    }
    static QPoint placeOf(const QTreeView &list, int row)
    {
        return list.visualRect(list.model()->index(row, 0)).center();
    }
    static void doubleClick(QTreeView &list, int row)
    {
        select(list, row);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, placeOf(list, row));
    }
    static void select(QTreeView &list, int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, placeOf(list, row));
    }
    void click(const char *button) { QTest::mouseClick(&control<QPushButton>(button), Qt::LeftButton); }
    bool isGone() { return hasGone(dialog); }

    ContactList contacts;
    SimulatedWinsock socket{QStringLiteral("10.0.0.1"), QStringLiteral("HERE"), nullptr};
    VirtualTime time;
    RecorderLog written;
    MainLog log{written, time};
    QPointer<frmSendContact> dialog;
};

TEST_F(FrmSendContact, OffersTheOtherContacts)
{
    open();
    EXPECT_EQ(dialog->objectName(), QStringLiteral("frmSendContact"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("NIMB-Chat - Send Contacts to 'Ben'"));
    EXPECT_FALSE(dialog->windowIcon().isNull());
    EXPECT_FALSE(dialog->isModal());
    EXPECT_EQ(control<QLabel>("Label1").text(), QStringLiteral("Select the contacts you want to send"));
    EXPECT_THAT(names(offered()), ElementsAre("Ann", "Cleo", "Dora", "Emil"));
    EXPECT_THAT(names(chosen()), IsEmpty());
    for (const QTreeView *const list : {&offered(), &chosen()}) {
        EXPECT_EQ(list->model()->columnCount(), 1);
        EXPECT_EQ(list->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Nickname"));
        EXPECT_FALSE(list->isHeaderHidden());
    }
}

TEST_F(FrmSendContact, ANicknameStaysPlainInTheCaption)
{
    open(QStringLiteral("<b>%1[*]&"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("NIMB-Chat - Send Contacts to '<b>%1[*][*]&'"))
        << "two place markers are one that is shown";
}

TEST_F(FrmSendContact, SeveralContactsAreSelectedChosenAndSent)
{
    open();
    select(offered(), 3);
    select(offered(), 1, Qt::ControlModifier);
    click("btnsendone");
    EXPECT_THAT(names(offered()), ElementsAre("Ann", "Dora"));
    EXPECT_THAT(names(chosen()), ElementsAre("Cleo", "Emil"));
    click("sendbtn");
    EXPECT_THAT(socket.sent,
                ElementsAre(To("10.0.0.3", "!USER 10.0.0.4 PC Cleo"), To("10.0.0.3", "!USER 10.0.0.6 PC Emil")));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmSendContact, ARangeIsTakenBack)
{
    open();
    click("btnsendall");
    EXPECT_THAT(names(offered()), IsEmpty());
    select(chosen(), 1);
    select(chosen(), 3, Qt::ShiftModifier);
    click("btnRemoveOne");
    EXPECT_THAT(names(offered()), ElementsAre("Cleo", "Dora", "Emil"));
    EXPECT_THAT(names(chosen()), ElementsAre("Ann"));
    click("btnremoveall");
    EXPECT_THAT(names(offered()), ElementsAre("Cleo", "Dora", "Emil", "Ann"));
    EXPECT_THAT(names(chosen()), IsEmpty());
}

TEST_F(FrmSendContact, AnEmptyListSaysWhatItIsFor)
{
    open();
    EXPECT_FALSE(control<QLabel>("noneOffered").isVisible());
    EXPECT_TRUE(control<QLabel>("noneChosen").isVisible());
    click("btnsendall");
    EXPECT_TRUE(control<QLabel>("noneOffered").isVisible());
    EXPECT_FALSE(control<QLabel>("noneChosen").isVisible());
    EXPECT_THAT(badLabels(*dialog), IsEmpty());
}

TEST_F(FrmSendContact, WithoutASelectionNothingMoves)
{
    open();
    click("btnsendone");
    click("btnRemoveOne");
    EXPECT_THAT(names(offered()), ElementsAre("Ann", "Cleo", "Dora", "Emil"));
    select(offered(), 0);
    click("btnsendone");
    click("btnsendone");
    EXPECT_THAT(names(chosen()), ElementsAre("Ann")) << "what stood below is not selected by itself";
}

TEST_F(FrmSendContact, ADoubleClickMovesThatRowAlone)
{
    open();
    doubleClick(offered(), 2);
    EXPECT_THAT(names(offered()), ElementsAre("Ann", "Cleo", "Emil"));
    EXPECT_THAT(names(chosen()), ElementsAre("Dora"));
    doubleClick(chosen(), 0);
    EXPECT_THAT(names(offered()), ElementsAre("Ann", "Cleo", "Emil", "Dora"));
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(FrmSendContact, AnEmptyListSendsNothingAndCloses)
{
    open();
    select(offered(), 0);
    click("sendbtn");
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_TRUE(isGone());
}

TEST_F(FrmSendContact, CancellingSendsNothing)
{
    const std::vector<std::pair<const char *, std::function<void()>>> ways = {
        {"button", [this] { click("cancelbtn"); }},
        {"Esc", [this] { QTest::keyClick(&offered(), Qt::Key_Escape); }},
        {"close box", [this] { dialog->close(); }},
    };
    for (const auto &[name, leave] : ways) {
        open();
        click("btnsendall");
        leave();
        EXPECT_TRUE(isGone()) << name;
        EXPECT_THAT(socket.sent, IsEmpty()) << name;
    }
}

TEST_F(FrmSendContact, TheKeyboardAloneChoosesAndSends)
{
    open();
    EXPECT_EQ(dialog->focusWidget(), &offered());
    QTest::keyClick(&offered(), Qt::Key_Home);
    QTest::keyClick(&offered(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&offered(), Qt::Key_Tab);
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Space);
    EXPECT_THAT(names(chosen()), ElementsAre("Ann", "Cleo"));
    chosen().setFocus();
    QTest::keyClick(&chosen(), Qt::Key_Return);
    EXPECT_THAT(socket.sent,
                ElementsAre(To("10.0.0.3", "!USER 10.0.0.2 PC Ann"), To("10.0.0.3", "!USER 10.0.0.4 PC Cleo")));
    EXPECT_TRUE(isGone());
}

TEST_F(FrmSendContact, TheKeyboardReachesEverythingAndIsTrappedNowhere)
{
    open();
    EXPECT_THAT(tabStops(*dialog),
                ElementsAre("ListView1", "btnsendone", "btnsendall", "btnRemoveOne", "btnremoveall", "ListView2",
                            "sendbtn", "cancelbtn"));
    EXPECT_THAT(accessKeys(*dialog), UnorderedElementsAre("Alt+S", "Alt+C"));
    EXPECT_THAT(withoutAccessibleName(*dialog), IsEmpty());
    EXPECT_TRUE(control<QPushButton>("sendbtn").isDefault());
}

TEST_F(FrmSendContact, TheArrowsSayWhatTheyDo)
{
    open();
    std::vector<std::string> arrows;
    for (const char *const name : {"btnsendone", "btnsendall", "btnRemoveOne", "btnremoveall"}) {
        const auto &button = control<QPushButton>(name);
        arrows.push_back(button.text().toStdString());
        EXPECT_FALSE(button.toolTip().isEmpty()) << name;
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&control<QPushButton>(name))->text(QAccessible::Name),
                  button.toolTip());
    }
    EXPECT_THAT(arrows, ElementsAre(">", ">>", "<", "<<"));
}

TEST_F(FrmSendContact, ALongNameIsPaintedWithAnEllipsis)
{
    const QString whole(255, QLatin1Char('x'));
    const auto paintedWidth = [this](const QString &name) {
        add(name);
        open();
        doubleClick(offered(), 4);
        EXPECT_THAT(names(chosen()), ElementsAre(name.toStdString())) << "the row keeps its text";
        const int width = chosen().itemDelegate()->sizeHint({}, chosen().model()->index(0, 0)).width();
        delete dialog;
        contacts.remove(QStringLiteral("10.0.0.7"));
        return width;
    };
    EXPECT_EQ(paintedWidth(whole), paintedWidth(whole.left(64) + QChar(0x2026)));
}

} // namespace
} // namespace nimb::test
