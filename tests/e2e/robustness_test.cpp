// Whatever arrives, the program lives, answers and ends well.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>
#include <regex>

#include <random>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t largestDatagram = 65507;

class Robustness : public testing::Test
{
protected:
    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.36.2", port};
    WirePeer guard{"127.0.36.250", port};

    /// Two contacts: Ann, who sends anything, and the guard, who only ever asks whether the copy is there.
    Rows withAnn(const Rows &further = {}) const
    {
        return profile(port, {{"127.0.36.2", "Ann", "ANN-PC"}, {"127.0.36.250", "Guard", "GUARD-PC"}}, further);
    }

    void start(RunningCopy &copy)
    {
        copy.start({"Bob"});
        ann.hearUntil("!STATUS Online");
        guard.hearUntil("!STATUS Online");
    }

    /// Whether the copy answers the guard, whatever waits from Ann.
    bool stillAnswers()
    {
        guard.send("127.0.36.1", "?ONLINE");
        return guard.hearUntil("!STATUS Online")
            == std::vector<std::string>{"!ONLINE 127.0.36.1 BOB-PC Bob", "!STATUS Online"};
    }
};

/// Makes datagrams out of the real ones: bytes changed, cut, doubled, glued together, made up.
class Mutator
{
public:
    explicit Mutator(unsigned seed) : m_random(seed) { }

    std::string next()
    {
        if (below(10) == 0)
            return noise(below(below(20) == 0 ? 3000 : 60));
        std::string datagram = seed();
        for (std::size_t changes = below(4); changes > 0; --changes)
            change(datagram);
        return datagram;
    }

    std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }

    std::string noise(std::size_t size)
    {
        std::string bytes(size, '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(below(256));
        return bytes;
    }

private:
    std::string seed()
    {
        static const std::vector<std::string> seeds = {
            "?ONLINE 127.0.36.2 ANN-PC Ann",
            "!ONLINE 127.0.36.2 ANN-PC Ann of Green Gables",
            "!ONLINE 10.0.0.1 FORGED Somebody",
            "!OFFLINE 127.0.36.2 ANN-PC Ann",
            "!STATUS BUSY",
            "!STATUS away Back at five",
            "!BUZZ",
            "!TYPING",
            "!LIVETYPE what I am just wri",
            "!MOOD 7.5",
            "?AVATARHEAD",
            "!AVATARHEAD " + std::string(7500, '\xAA'),
            "!AVATARHEAD WEBCAM",
            "?AVATARBODY",
            "!AVATARBODY " + std::string(7500, '\x01'),
            "!AVATAROFF",
            "!USER 10.1.2.3 SOME-PC Some Body",
            "-hello",
            "-two\r\nlines \xF0\x9F\x98\x80 and http://example.org/?a=b&c :-) ;)",
            "+127.0.36.9 #3 hi all",
            "?CONF INVITE #12",
            "!CONF INVITE #12 AGREE",
            "?CONF USERS #1",
            "!CONF USERS #1 127.0.36.2 127.0.36.3",
            "!CONF LEAVE #1",
            "!CONF CLOSE #99999999999999999999",
        };
        return seeds[below(seeds.size())];
    }

    void change(std::string &datagram)
    {
        static const std::vector<std::string> pieces = {" ",      "  ",   "\r\n", "\t",       std::string(1, '\0'),
                                                        "%1",     "[*]",  "<b>",  "&amp;",    "\xE2\x80\xAE",
                                                        "\xFF",   "\xC3", "-",    "+",        "#",
                                                        "!",      "?",    "-1",   "1e999",    "255.255.255.255",
                                                        "\\",     "'",    "\"",   "%n%s%x%d", "../../etc",
                                                        "\x1B[2J"};
        const std::size_t place = below(datagram.size() + 1);
        switch (below(6)) {
        case 0:
            datagram.insert(place, pieces[below(pieces.size())]);
            break;
        case 1:
            datagram.resize(place);
            break;
        case 2:
            if (place < datagram.size())
                datagram[place] = static_cast<char>(below(256));
            break;
        case 3:
            datagram += datagram.substr(place);
            break;
        case 4:
            datagram += seed();
            break;
        default:
            datagram.erase(0, below(3));
        }
    }

    std::mt19937 m_random;
};

TEST_F(Robustness, TwentyThousandBentDatagramsChangeNothingThatTheyMustNot)
{
    RunningCopy bob({"127.0.36.1", "BOB-PC"}, withAnn());
    start(bob);
    std::vector<WirePeer> strangers;
    for (int i = 1; i <= 50; ++i)
        strangers.emplace_back("127.0.37." + std::to_string(i), port);

    Mutator mutator(20260721);
    constexpr int rounds = 200;
    constexpr int aRound = 100; // small enough to fit the buffers, so that none is lost
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < aRound; ++i) {
            const std::string datagram = mutator.next();
            const bool fromStranger = mutator.below(3) == 0;
            const WirePeer &sender = fromStranger ? strangers[mutator.below(strangers.size())] : ann;
            sender.send("127.0.36.1", datagram);
        }
        ASSERT_TRUE(stillAnswers()) << "round " << round;
    }

    EXPECT_EQ(bob.end(), 0);
    // Contacts are those who sent something and the hosts whom Ann named, whatever else stood in their places.
    const std::regex dotted("([1-9][0-9]{0,2})([.](0|[1-9][0-9]{0,2})){3}");
    for (const StoredContact &contact : bob.storedContacts()) {
        EXPECT_TRUE(std::regex_match(contact.ip, dotted)) << contact;
        EXPECT_LE(QString::fromStdString(contact.nickname).size(), 255) << contact;
        EXPECT_EQ(contact.nickname.find_first_of("\r\n\t"), std::string::npos) << contact;
        EXPECT_EQ(contact.nickname.find('\0'), std::string::npos) << contact;
    }
}

TEST_F(Robustness, EmptyAndLargestDatagramsPassThrough)
{
    RunningCopy bob({"127.0.36.1", "BOB-PC"}, withAnn());
    start(bob);
    const WirePeer stranger("127.0.36.3", port);
    for (int i = 0; i < 200; ++i) {
        ann.send("127.0.36.1", "");
        stranger.send("127.0.36.1", "");
    }
    ASSERT_TRUE(stillAnswers());

    Mutator mutator(7);
    for (const std::string beginning : {"", "-", "!ONLINE 127.0.36.2 ANN-PC ", "!STATUS ", "!STATUS away ", "!FOO ",
                                        "+1 #1 ", "!AVATARHEAD ", "!LIVETYPE ", "!USER ", "?ONLINE "}) {
        std::string plain = beginning;
        plain.resize(largestDatagram, 'x');
        std::string blanks = beginning;
        blanks.resize(largestDatagram, ' ');
        std::string breaks = beginning;
        breaks.resize(largestDatagram, '\n');
        for (const std::string &datagram :
             {plain, blanks, breaks, beginning + mutator.noise(largestDatagram - beginning.size())})
            ann.send("127.0.36.1", datagram);
        ASSERT_TRUE(stillAnswers()) << beginning;
    }
    ann.send("127.0.36.1", "!ONLINE 127.0.36.2 ANN-PC Ann"); // her name has become noise
    stranger.send("127.0.36.1", "!ONLINE 127.0.36.3 " + std::string(30000, 'h') + ' ' + std::string(30000, 'n'));
    ASSERT_TRUE(stillAnswers());

    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(),
                ElementsAre(StoredContact{"127.0.36.2", "Ann", "ANN-PC"},
                            StoredContact{"127.0.36.250", "Guard", "GUARD-PC"},
                            StoredContact{"127.0.36.3", std::string(255, 'n'), std::string(255, 'h')}));
}

TEST_F(Robustness, TheUserCanWorkWhileDatagramsPourIn)
{
    RunningCopy bob({"127.0.36.1", "BOB-PC"},
                    profile(port, {{"127.0.36.2", "Ann", "ANN-PC"}, {"127.0.36.4", "Flo", "FLO-PC"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    const WirePeer flo("127.0.36.4", port);
    ann.send("127.0.36.1", "-hello");
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_EQ(ann.next(), "?AVATARHEAD");
    window.activate();
    for (const char letter : std::string("flood")) {
        for (int i = 0; i < 400; ++i)
            flo.send("127.0.36.1", i % 2 == 0 ? "-blah blah" : "!ONLINE 127.0.36.4 FLO-PC Flo");
        type(std::string(1, letter));
    }
    press("Return");
    EXPECT_EQ(ann.next(), "-flood");
    // To the very end.
    for (int i = 0; i < 400; ++i)
        flo.send("127.0.36.1", "-and another thing");
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(Robustness, AWindowMayBeClosedForGoodWhileMessagesPourIntoIt)
{
    RunningCopy bob({"127.0.36.1", "BOB-PC"},
                    withAnn({{{"Options", "DontDestroyWindow"}, "1"}, {{"Options", "PrivateBehaviour"}, "1"}}));
    start(bob);
    for (int round = 0; round < 8; ++round) {
        ann.send("127.0.36.1", "-hello");
        const PrivateWindow window = PrivateWindow::with("Ann");
        for (int i = 0; i < 50; ++i)
            ann.send("127.0.36.1", "-blah blah");
        window.close();
        for (int i = 0; i < 50; ++i)
            ann.send("127.0.36.1", "-blah blah");
        ASSERT_TRUE(window.becomes(Window::State::hidden)) << "round " << round;
        ASSERT_TRUE(stillAnswers()) << "round " << round;
    }
    EXPECT_EQ(bob.end(), 0);
}

} // namespace
} // namespace nimb::test
