#include "protocol/receive_dispatcher.h"

#include "protocol/address_text.h"

#include <gmock/gmock.h>

namespace nimb
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// Knows 10.0.0.2, and writes down in one line each what it is told.
class Everyone : public Senders,
                 public PresenceHandler,
                 public PrivateMessageHandler,
                 public PeerSignalHandler,
                 public AvatarHandler,
                 public SharedContactHandler,
                 public ConferenceHandler,
                 public UnknownDatagramHandler
{
public:
    bool isContact(Ipv4Address ip) const override { return ip == Ipv4Address(10, 0, 0, 2); }

    void strangerSeen(Ipv4Address ip, const PeerIdentity &peer, bool online) override
    {
        note(QStringLiteral("stranger %1 %2 %3")
                 .arg(addressText(ip), online ? QStringLiteral("on") : QStringLiteral("off"), who(peer)));
    }
    void cameOnline(Ipv4Address, const std::optional<PeerIdentity> &peer, bool asks) override
    {
        note(QStringLiteral("online %1 %2")
                 .arg(asks ? QStringLiteral("asks") : QStringLiteral("answers"),
                      peer ? who(*peer) : QStringLiteral("?")));
    }
    void wentOffline(Ipv4Address) override { note(QStringLiteral("offline")); }
    void changedState(Ipv4Address, const QString &state, const QString &text) override
    {
        note(QStringLiteral("state [%1] [%2]").arg(state, text));
    }
    void privateMessage(Ipv4Address, const QString &text) override { note(QStringLiteral("message [%1]").arg(text)); }
    void buzz(Ipv4Address) override { note(QStringLiteral("buzz")); }
    void typing(Ipv4Address) override { note(QStringLiteral("typing")); }
    void liveType(Ipv4Address, const QString &text) override { note(QStringLiteral("live [%1]").arg(text)); }
    void mood(Ipv4Address, const QString &value) override { note(QStringLiteral("mood [%1]").arg(value)); }
    void avatarHeadQuestion(Ipv4Address) override { note(QStringLiteral("head?")); }
    void avatarBodyQuestion(Ipv4Address) override { note(QStringLiteral("body?")); }
    void avatarHead(Ipv4Address, const std::string &head) override { told.push_back("head [" + head + "]"); }
    void avatarBody(Ipv4Address, const std::string &body) override { told.push_back("body [" + body + "]"); }
    void avatarOff(Ipv4Address) override { note(QStringLiteral("avatar off")); }
    void sharedContact(Ipv4Address, const PeerIdentity &contact) override
    {
        note(QLatin1String("user ") + who(contact));
    }
    void conferenceDatagram(Ipv4Address, const wire::Datagram &datagram) override
    {
        told.push_back("conference " + wire::serialise(datagram));
    }
    void unsupportedCommand(Ipv4Address, const QString &data) override
    {
        note(QStringLiteral("unsupported [%1]").arg(data));
    }
    void garbage(Ipv4Address, const QString &data) override { note(QStringLiteral("garbage [%1]").arg(data)); }

    std::vector<std::string> told;

private:
    static QString who(const PeerIdentity &peer)
    {
        return QStringLiteral("%1/%2/%3").arg(peer.ip, peer.host, peer.nick);
    }
    void note(const QString &what) { told.push_back(what.toStdString()); }
};

class Dispatcher : public testing::Test
{
protected:
    std::vector<std::string> contactSends(std::string_view bytes)
    {
        everyone.told.clear();
        dispatcher.receive(Ipv4Address(10, 0, 0, 2), bytes);
        return everyone.told;
    }
    std::vector<std::string> strangerSends(std::string_view bytes)
    {
        everyone.told.clear();
        dispatcher.receive(Ipv4Address(10, 0, 0, 9), bytes);
        return everyone.told;
    }

    Everyone everyone;
    DropCounts drops;
    ReceiveDispatcher dispatcher{
        everyone, {&everyone, &everyone, &everyone, &everyone, &everyone, &everyone, &everyone}, drops};
};

TEST_F(Dispatcher, HandsEachKindToItsFeature)
{
    EXPECT_THAT(contactSends("?ONLINE 10.0.0.2 PC-ANN Ann B"), ElementsAre("online asks 10.0.0.2/PC-ANN/Ann B"));
    EXPECT_THAT(contactSends("!ONLINE 10.0.0.2 PC-ANN Ann"), ElementsAre("online answers 10.0.0.2/PC-ANN/Ann"));
    EXPECT_THAT(contactSends("!OFFLINE 10.0.0.2 PC-ANN Ann"), ElementsAre("offline"));
    EXPECT_THAT(contactSends("!STATUS away Back at five"), ElementsAre("state [away] [Back at five]"));
    EXPECT_THAT(contactSends("!BUZZ"), ElementsAre("buzz"));
    EXPECT_THAT(contactSends("!USER 10.0.0.5 PC-ED Ed"), ElementsAre("user 10.0.0.5/PC-ED/Ed"));
    EXPECT_THAT(contactSends("!TYPING"), ElementsAre("typing"));
    EXPECT_THAT(contactSends("?AVATARHEAD"), ElementsAre("head?"));
    EXPECT_THAT(contactSends("!AVATARHEAD WEBCAM 1"), ElementsAre("head [WEBCAM 1]"));
    EXPECT_THAT(contactSends("?AVATARBODY"), ElementsAre("body?"));
    EXPECT_THAT(contactSends("!AVATAROFF"), ElementsAre("avatar off"));
    EXPECT_THAT(contactSends("!AVATARBODY \xC3\xA4"), ElementsAre("body [\xC3\xA4]"));
    EXPECT_THAT(contactSends("!MOOD 3.5"), ElementsAre("mood [3.5]"));
    EXPECT_THAT(contactSends("!LIVETYPE so far"), ElementsAre("live [so far]"));
    EXPECT_THAT(contactSends("?CONF INVITE #3"), ElementsAre("conference ?CONF INVITE #3"));
    EXPECT_THAT(contactSends("!CONF INVITE #3 AGREE"), ElementsAre("conference !CONF INVITE #3 AGREE"));
    EXPECT_THAT(contactSends("?CONF USERS #3"), ElementsAre("conference ?CONF USERS #3"));
    EXPECT_THAT(contactSends("!CONF USERS #3 10.0.0.1"), ElementsAre("conference !CONF USERS #3 10.0.0.1"));
    EXPECT_THAT(contactSends("!CONF LEAVE #3"), ElementsAre("conference !CONF LEAVE #3"));
    EXPECT_THAT(contactSends("!CONF CLOSE #3"), ElementsAre("conference !CONF CLOSE #3"));
    EXPECT_THAT(contactSends("-hello"), ElementsAre("message [hello]"));
    EXPECT_THAT(contactSends("+10.0.0.2 #3 hi all"), ElementsAre("conference +10.0.0.2 #3 hi all"));
    EXPECT_THAT(contactSends("!FOO"), ElementsAre("unsupported [!FOO]"));
    EXPECT_THAT(contactSends("hello"), ElementsAre("garbage [hello]"));
    EXPECT_EQ(drops.summary(), QString());
}

TEST_F(Dispatcher, ADatagramWithoutSpaceArrivesWhole)
{
    EXPECT_THAT(contactSends("hello"), ElementsAre("garbage [hello]"));
    EXPECT_THAT(contactSends(""), ElementsAre("garbage []"));
}

TEST_F(Dispatcher, EncodingIsRecognisedFieldByField)
{
    EXPECT_THAT(contactSends("!ONLINE 10.0.0.2 PC-J\xD6RG \xD0\xAF"), ElementsAre("online answers 10.0.0.2/PC-JÖRG/Я"));
}

TEST_F(Dispatcher, PresenceWithFewerThanThreeSpacesCountsFromAContactOnly)
{
    EXPECT_THAT(contactSends("?ONLINE 10.0.0.2 PC-ANN"), ElementsAre("online asks ?"));
    EXPECT_THAT(contactSends("!ONLINE"), ElementsAre("online answers ?"));
    EXPECT_THAT(strangerSends("?ONLINE 10.0.0.9 PC-ZOE"), IsEmpty());
    EXPECT_EQ(drops.of(Drop::stranger), 1u);
}

TEST_F(Dispatcher, OnlyWellFormedPresenceOfStrangersIsHandedOver)
{
    EXPECT_THAT(strangerSends("?ONLINE 1.2.3.4 PC-ZOE Zoe"), ElementsAre("stranger 10.0.0.9 on 1.2.3.4/PC-ZOE/Zoe"));
    EXPECT_THAT(strangerSends("!ONLINE 1.2.3.4 PC-ZOE Zoe"), ElementsAre("stranger 10.0.0.9 on 1.2.3.4/PC-ZOE/Zoe"));
    EXPECT_THAT(strangerSends("!OFFLINE 1.2.3.4 PC-ZOE Zoe"), ElementsAre("stranger 10.0.0.9 off 1.2.3.4/PC-ZOE/Zoe"));
    for (const char *other :
         {"-hello", "!STATUS BUSY", "!BUZZ", "?CONF INVITE #1", "+1.2.3.4 #1 x", "!FOO", "hello", ""})
        EXPECT_THAT(strangerSends(other), IsEmpty()) << other;
    EXPECT_EQ(drops.of(Drop::stranger), 8u);
}

TEST_F(Dispatcher, UnknownConferenceCommandsAreDroppedAndCounted)
{
    EXPECT_THAT(contactSends("?CONF DANCE #1"), IsEmpty());
    EXPECT_THAT(contactSends("!CONF"), IsEmpty());
    EXPECT_THAT(contactSends("!USER 10.0.0.5 PC-ED"), IsEmpty());
    EXPECT_EQ(drops.of(Drop::incomplete), 3u);
}

TEST(DispatcherWithoutFeatures, KnownCommandsAreDroppedAndCountedNotCalledUnsupported)
{
    Everyone everyone;
    DropCounts drops;
    ReceiveDispatcher dispatcher(everyone, {.presence = &everyone, .unknown = &everyone}, drops);
    for (const char *known : {"-hello", "!BUZZ", "!TYPING", "!MOOD 1", "!LIVETYPE x", "?AVATARHEAD", "!AVATARBODY x",
                              "!USER 1.2.3.4 PC Ed", "?CONF INVITE #1", "+1.2.3.4 #1 x"})
        dispatcher.receive(Ipv4Address(10, 0, 0, 2), known);
    EXPECT_THAT(everyone.told, IsEmpty());
    EXPECT_EQ(drops.of(Drop::noFeature), 10u);
}

} // namespace
} // namespace nimb
