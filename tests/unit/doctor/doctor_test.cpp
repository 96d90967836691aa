#include "doctor/doctor.h"

#include "protocol/traced_winsock.h"
#include "recorders.h"
#include "simulated_network.h"
#include "virtual_time.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DoctorTest : public testing::Test, public DoctorView
{
protected:
    DoctorTest()
    {
        common.ownIP = Ipv4Address(192, 168, 1, 5);
        common.ownHostName = QStringLiteral("HERE");
        common.ownNickname = QStringLiteral("Me");
        ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(192, 168, 1, 5), Ipv4Address(192, 168, 1, 255)}};
        EXPECT_TRUE(socket.bind());
        socket.DataArrival = [this](std::size_t byteCount) { socket.GetData(byteCount); };
        Contact ann;
        ann.ip = QStringLiteral("192.168.1.9");
        ann.nickname = QStringLiteral("Ann");
        contacts.add(ann);
    }

    void showFinding(const Finding &) override { ++shown; }
    void examined() override { ++examinations; }

    std::string of(Check check)
    {
        for (const Finding &finding : doctor().findings()) {
            if (finding.check == check)
                return std::string(nameOf(finding.verdict)) + ": " + finding.sentence.toStdString();
        }
        return "nothing";
    }
    Doctor::Parts parts()
    {
        return {.common = common,
                .socket = socket,
                .trace = trace,
                .drops = drops,
                .ownAddresses = ownAddresses,
                .diagnosis = diagnosis,
                .sender = sender,
                .contacts = contacts,
                .timers = time,
                .clock = time,
                .profileElsewhere = profileElsewhere};
    }
    Doctor &doctor()
    {
        if (!m_doctor)
            m_doctor.emplace(parts(), *this);
        return *m_doctor;
    }
    std::vector<To> sent() { return std::exchange(wire.sent, {}); }
    /// All checks end well.
    void examine()
    {
        doctor().examine();
        wire.arrive(QStringLiteral("192.168.1.5"), "?ONLINE 192.168.1.5 HERE Me");
        diagnosis.firewallRead({});
    }
    void ask(const char *ip) { doctor().ask(QString::fromUtf8(ip)); }

    VirtualTime time;
    Common common;
    DropCounts drops;
    DatagramTrace trace;
    SimulatedWinsock wire{QStringLiteral("192.168.1.5"), QStringLiteral("HERE"), nullptr};
    TracedWinsock socket{wire, trace};
    ToldAddresses ownAddresses;
    ToldDiagnosis diagnosis;
    ContactList contacts;
    PresenceSender sender{common, socket};
    std::optional<QString> profileElsewhere;
    int shown = 0, examinations = 0;

private:
    std::optional<Doctor> m_doctor;
};

TEST_F(DoctorTest, FindsNothingWrongWhereNothingIs)
{
    examine();
    EXPECT_EQ(doctor().verdict(), Verdict::fine);
    EXPECT_EQ(examinations, 1);
    std::vector<Check> order;
    for (const Finding &finding : doctor().findings()) {
        order.push_back(finding.check);
        EXPECT_EQ(finding.advice, QString()) << finding.sentence.toStdString();
    }
    EXPECT_THAT(order,
                ElementsAre(Check::network, Check::ownAddress, Check::port, Check::receiveBuffer, Check::ownDatagram,
                            Check::broadcast, Check::firewall, Check::severalWays));
    EXPECT_THAT(sent(), ElementsAre(To{"192.168.1.5", "?ONLINE 192.168.1.5 HERE Me"})) << "and nobody else was asked";
}

TEST_F(DoctorTest, WhatIsNotKnownYetIsUnderWay)
{
    doctor().examine();
    EXPECT_EQ(of(Check::ownDatagram), "underWay: A datagram is on its way to yourself.");
    EXPECT_EQ(of(Check::firewall), "underWay: Looking for a firewall.");
    EXPECT_EQ(examinations, 0);
    diagnosis.firewallRead({});
    EXPECT_EQ(examinations, 0);
    time.advance(1s);
    EXPECT_EQ(examinations, 1);
    EXPECT_EQ(of(Check::ownDatagram), "wrong: A datagram to 192.168.1.5, yourself, did not come back within a second.");
    EXPECT_EQ(doctor().verdict(), Verdict::wrong);
}

TEST_F(DoctorTest, OnlyTheOwnQuestionFromTheOwnAddressHasComeBack)
{
    doctor().examine();
    wire.arrive(QStringLiteral("192.168.1.9"), "?ONLINE 192.168.1.5 HERE Me");
    wire.arrive(QStringLiteral("192.168.1.5"), "-hello");
    EXPECT_EQ(of(Check::ownDatagram), "underWay: A datagram is on its way to yourself.");
    wire.arrive(QStringLiteral("192.168.1.5"), "?ONLINE 192.168.1.5 HERE Me");
    EXPECT_EQ(of(Check::ownDatagram), "fine: A datagram to 192.168.1.5, yourself, came back.");
    time.advance(1s);
    EXPECT_EQ(of(Check::ownDatagram), "fine: A datagram to 192.168.1.5, yourself, came back.");
}

TEST_F(DoctorTest, WithoutThePortNothingIsSentAndTheHolderIsNamed)
{
    wire.portTaken = true;
    EXPECT_FALSE(socket.bind());
    diagnosis.holder = PortHolder{QStringLiteral("otherd"), 4711};
    doctor().examine();
    EXPECT_EQ(of(Check::port), "wrong: Port 5549 is used by the program otherd (process 4711).");
    EXPECT_EQ(of(Check::ownDatagram), "doubtful: No datagram was sent to yourself, for nothing listens for it.");
    diagnosis.firewallRead({});
    EXPECT_EQ(examinations, 1);
}

TEST_F(DoctorTest, AnotherCopyThatHasThePortIsTroubleForACopyAndWhatAConsoleLooksFor)
{
    wire.portTaken = true;
    EXPECT_FALSE(socket.bind());
    diagnosis.holder = PortHolder{QStringLiteral("nimb-chat"), 4711};
    doctor().examine();
    EXPECT_EQ(of(Check::port), "wrong: Port 5549 is used by the program nimb-chat (process 4711).");
}

TEST_F(DoctorTest, OnAConsoleTheRunningCopyIsThePatient)
{
    profileElsewhere = QStringLiteral("/people/me/.config/NIMB-Chat");
    wire.portTaken = true;
    EXPECT_FALSE(socket.bind());
    diagnosis.holder = PortHolder{QStringLiteral("nimb-chat"), 4711, QStringLiteral("/people/me/.config/NIMB-Chat")};
    doctor().examine();
    EXPECT_EQ(of(Check::port), "fine: NIMB-Chat runs (process 4711) and listens on UDP port 5549.");
    EXPECT_THAT(of(Check::ownDatagram), HasSubstr("fine: No datagram was sent to yourself"));
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(DoctorTest, OnAConsoleACopyWithOtherSettingsIsAnotherProgram)
{
    profileElsewhere = QStringLiteral("/people/me/.config/NIMB-Chat");
    wire.portTaken = true;
    EXPECT_FALSE(socket.bind());
    diagnosis.holder = PortHolder{QStringLiteral("nimb-chat"), 4711, QStringLiteral("/tmp/trial")};
    doctor().examine();
    EXPECT_EQ(of(Check::port), "wrong: Port 5549 is used by the program nimb-chat (process 4711).");
    diagnosis.holder = PortHolder{QStringLiteral("nimb-chat"), 4711};
    doctor().examine();
    EXPECT_EQ(of(Check::port), "wrong: Port 5549 is used by the program nimb-chat (process 4711).")
        << "and one of which the system tells nothing";
}

TEST_F(DoctorTest, OnAConsoleAFreePortIsFine)
{
    profileElsewhere = QStringLiteral("/people/me/.config/NIMB-Chat");
    examine();
    EXPECT_EQ(of(Check::port), "fine: UDP port 5549 is free for NIMB-Chat, which does not run.");
    EXPECT_EQ(doctor().verdict(), Verdict::fine);
}

TEST_F(DoctorTest, AsksThroughEveryCardOnWhichSomebodyIs)
{
    ownAddresses.running.push_back({QStringLiteral("wlan0"), Ipv4Address(10, 7, 0, 1), Ipv4Address(10, 7, 0, 255)});
    ownAddresses.running.push_back({QStringLiteral("docker0"), Ipv4Address(172, 17, 0, 1), std::nullopt});
    diagnosis.mute = {QStringLiteral("wlan0")};
    examine();
    EXPECT_EQ(of(Check::broadcast), "doubtful: The system refuses to send to everybody: 10.7.0.255 (wlan0).");
}

TEST_F(DoctorTest, ACopyWithAFixedAddressSendsNothingThroughOtherCards)
{
    ownAddresses.fixed = true;
    ownAddresses.running.push_back({QStringLiteral("wlan0"), Ipv4Address(10, 7, 0, 1), Ipv4Address(10, 7, 0, 255)});
    examine();
    EXPECT_EQ(of(Check::broadcast), "fine: A question to everybody leaves: 192.168.1.255 (eth0).");
}

TEST_F(DoctorTest, AsksNobodyWithoutAPort)
{
    wire.portTaken = true;
    EXPECT_FALSE(socket.bind());
    ask("192.168.1.9");
    EXPECT_EQ(of(Check::contact), "doubtful: Ann was not asked, for nothing listens for an answer.");
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_THAT(trace.datagrams(), IsEmpty());
}

TEST_F(DoctorTest, NamesAFirewallWhenItHasBeenFound)
{
    doctor().examine();
    diagnosis.firewallRead(
        {Firewall::Verdict::blocks, QStringLiteral("ufw"), QStringLiteral("sudo ufw allow 5549/udp")});
    EXPECT_EQ(of(Check::firewall), "wrong: The firewall ufw is on and keeps UDP port 5549 out: nobody reaches you.");
}

TEST_F(DoctorTest, WhatAnEarlierExaminationFindsOutLateChangesNothing)
{
    doctor().examine();
    const auto late = diagnosis.firewallRead;
    doctor().examine();
    late({Firewall::Verdict::blocks, QStringLiteral("ufw"), {}});
    EXPECT_EQ(of(Check::firewall), "underWay: Looking for a firewall.");
    diagnosis.firewallRead({});
    time.advance(1s);
    EXPECT_EQ(examinations, 1);
}

TEST_F(DoctorTest, WhoClosesTheWindowEarlyHearsNothingMore)
{
    std::function<void(const Firewall &)> late;
    {
        Doctor closed(parts(), *this);
        closed.examine();
        late = diagnosis.firewallRead;
    }
    shown = 0;
    late({});
    wire.arrive(QStringLiteral("192.168.1.5"), "?ONLINE 192.168.1.5 HERE Me");
    time.advance(5s);
    EXPECT_EQ(shown, 0);
}

TEST_F(DoctorTest, TellsAfterWhatTimeAContactAnswers)
{
    ask("192.168.1.9");
    EXPECT_EQ(of(Check::contact), "underWay: Waiting for an answer of Ann.");
    EXPECT_THAT(sent(), ElementsAre(To{"192.168.1.9", "?ONLINE 192.168.1.5 HERE Me"}));
    time.advance(17ms);
    wire.arrive(QStringLiteral("192.168.1.8"), "!ONLINE 192.168.1.8 PC Ben");
    EXPECT_EQ(of(Check::contact), "underWay: Waiting for an answer of Ann.");
    wire.arrive(QStringLiteral("192.168.1.9"), "!ONLINE 192.168.1.9 PC Ann");
    EXPECT_EQ(of(Check::contact), "fine: Ann answered after 17 ms.");
    time.advance(5s);
    EXPECT_EQ(of(Check::contact), "fine: Ann answered after 17 ms.");
}

TEST_F(DoctorTest, AsksTheTableOfNeighboursAboutASilentContact)
{
    diagnosis.neighbours[Ipv4Address(192, 168, 1, 9)] = Neighbour::known;
    ask("192.168.1.9");
    time.advance(1999ms);
    EXPECT_EQ(of(Check::contact), "underWay: Waiting for an answer of Ann.");
    time.advance(1ms);
    EXPECT_EQ(of(Check::contact),
              "wrong: Ann did not answer, but the computer at 192.168.1.9 is there, or was a moment ago.");
    EXPECT_EQ(doctor().verdict(), Verdict::wrong);
}

TEST_F(DoctorTest, TellsThatTheChosenCardIsNotTheWayToASilentContact)
{
    const QString wifi = QStringLiteral("wlan0");
    const Ipv4Address ann(192, 168, 1, 9);
    ownAddresses.running.push_back({wifi, common.ownIP, std::nullopt});
    ownAddresses.source = Ipv4Address(10, 0, 0, 1);
    diagnosis.neighbours[ann] = Neighbour::known;
    ask("192.168.1.9");
    time.advance(2s);
    EXPECT_THAT(of(Check::contact), HasSubstr("the computer at 192.168.1.9 is there")) << "nothing was chosen";
    common.ownCard = wifi;
    ask("192.168.1.9");
    time.advance(2s);
    EXPECT_EQ(of(Check::contact),
              "wrong: Ann did not answer. The way to 192.168.1.9 is that of your address 10.0.0.1, but the options "
              "name the card wlan0, whose address 192.168.1.5 may not be reached from there.");
    ownAddresses.source = common.ownIP;
    ask("192.168.1.9");
    time.advance(2s);
    EXPECT_THAT(of(Check::contact), HasSubstr("the computer at 192.168.1.9 is there"));
}

TEST_F(DoctorTest, AskingAnotherContactForgetsTheFirst)
{
    Contact ben;
    ben.ip = QStringLiteral("192.168.1.8");
    ben.nickname = QStringLiteral("Ben");
    contacts.add(ben);
    ask("192.168.1.9");
    time.advance(1s);
    ask("192.168.1.8");
    wire.arrive(QStringLiteral("192.168.1.9"), "!ONLINE 192.168.1.9 PC Ann");
    time.advance(1500ms);
    EXPECT_EQ(of(Check::contact), "underWay: Waiting for an answer of Ben.");
}

TEST_F(DoctorTest, WhoIsInvisibleAsksNobody)
{
    common.ownPresence.base = BaseState::invisible;
    ask("192.168.1.9");
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(of(Check::contact),
              "doubtful: Ann was not asked: you are invisible, and the question would show that you are here.");
}

TEST_F(DoctorTest, SaysWhereNoQuestionCanGo)
{
    Contact odd;
    odd.ip = QStringLiteral("192.168.000.005");
    odd.nickname = QStringLiteral("Odd");
    contacts.add(odd);
    ask("192.168.000.005");
    EXPECT_THAT(of(Check::contact), HasSubstr("192.168.000.005 is no address"));
    ownAddresses.unreachable = {Ipv4Address(192, 168, 1, 9)};
    ask("192.168.1.9");
    EXPECT_EQ(of(Check::contact), "doubtful: No network of this computer leads to 192.168.1.9.");
    contacts.remove(QStringLiteral("192.168.1.9"));
    ask("192.168.1.9");
    EXPECT_EQ(of(Check::contact), "doubtful: 192.168.1.9 is no contact any more.");
    EXPECT_THAT(sent(), IsEmpty());
}

} // namespace
} // namespace nimb::test
