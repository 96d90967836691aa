// Crowds of whole copies that start within one minute, each at a moment of its own, and use "Find everybody here" at
// once. In the end everybody sees everybody; what that takes is counted.
//
//   NIMB_SIM_COPIES=500 sim_test --gtest_filter='Large*'    with as many copies
//   NIMB_SIM_SEED=17 sim_test --gtest_filter='*Crowd*'      with other moments, and other times under way
#include "shaky_network.h"
#include "silent_log.h"
#include "whole_engine.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::AllOf;
using testing::Ge;
using testing::IsEmpty;
using testing::Le;

constexpr std::chrono::milliseconds minute = 60s;
constexpr std::chrono::milliseconds slowest = 20ms; ///< a datagram is no longer under way
constexpr Ipv4Address everybody(10, 20, 255, 255);

/// Every address, name of a host and nickname has as many characters as the others, and so every datagram of a kind.
Ipv4Address addressOf(int copy)
{
    return {10, 20, static_cast<std::uint8_t>(100 + copy / 100), static_cast<std::uint8_t>(100 + copy % 100)};
}
QString hostOf(int copy)
{
    return QStringLiteral("PC-%1").arg(copy, 4, 10, QLatin1Char('0'));
}
QString nicknameOf(int copy)
{
    return QStringLiteral("User %1").arg(copy, 4, 10, QLatin1Char('0'));
}

/// What a copy has sent. One question to everybody counts once, however many hear it.
struct Traffic {
    int questions = 0;            ///< to a contact
    int questionsToEverybody = 0; ///< on the network
    int answers = 0;
    int states = 0;
    int others = 0;
    std::uint64_t payload = 0; ///< bytes

    int datagrams() const { return questions + questionsToEverybody + answers + states + others; }
    std::uint64_t withHeaders() const { return payload + std::uint64_t{28} * static_cast<std::uint64_t>(datagrams()); }
    void count(const To &datagram)
    {
        payload += datagram.bytes.size();
        const auto is = [&datagram](const char *word) { return datagram.bytes.starts_with(word); };
        ++(is("?ONLINE ")       ? datagram.ip == "10.20.255.255" ? questionsToEverybody : questions
               : is("!ONLINE ") ? answers
               : is("!STATUS ") ? states
                                : others);
    }
};

class CountedWinsock : public SimulatedWinsock
{
public:
    using SimulatedWinsock::SimulatedWinsock;

    void SendData(const std::string &bytes) override
    {
        SimulatedWinsock::SendData(bytes);
        for (const To &datagram : sent)
            traffic.count(datagram);
        sent.clear();
        sources.clear();
    }

    Traffic traffic;
};

/// Whoever is there when a question to everybody is sent hears it, its sender included.
class Hall : public ShakyNetwork
{
public:
    using ShakyNetwork::ShakyNetwork;

    void send(const QString &from, const QString &to, const std::string &bytes) override
    {
        if (to != addressText(everybody))
            return ShakyNetwork::send(from, to, bytes);
        for (const QString &present : attached())
            ShakyNetwork::send(from, present, bytes);
    }
};

struct GuestViews : SilentViews {
    RecorderInvitationsView invitationsView;
};

class Guest : public WholeEngine<CountedWinsock, GuestViews>
{
public:
    Guest(int number, int contacts, Hall &hall, std::shared_ptr<VirtualTime> sharedTime)
        : WholeEngine(std::move(sharedTime),
                      [&](DropCounts &) { return CountedWinsock(addressOf(number), hostOf(number), &hall); })
    {
        common.ownIP = addressOf(number);
        common.ownHostName = hostOf(number);
        common.ownNickname = nicknameOf(number);
        ownAddresses.running = {{QStringLiteral("eth0"), addressOf(number), everybody}};
        ownAddresses.broadcast = {everybody};
        int stored = 0;
        for (int i = 0; i < contacts; ++i) {
            if (i != number)
                settings.putContact(++stored, addressText(addressOf(i)), nicknameOf(i), hostOf(i));
        }
        engine.invitations().Form_Load(invitationsView);
        engine.mainWindow().Form_Load();
        engine.search().findEverybody();
    }

    bool sees(int other)
    {
        const Contact *const contact = engine.contacts().find(addressOf(other));
        return contact && contact->presence == Presence::online && contact->nickname == nicknameOf(other)
            && contact->workstation == hostOf(other);
    }
};

int numberFrom(const char *variable, int otherwise)
{
    const char *const value = std::getenv(variable);
    return value ? std::atoi(value) : otherwise;
}

struct Plan {
    int copies = 0;
    bool acquainted = false; ///< everybody has everybody else in the stored list

    friend std::ostream &operator<<(std::ostream &out, const Plan &plan)
    {
        return out << plan.copies << (plan.acquainted ? " who know each other" : " strangers");
    }
};

class Crowd
{
public:
    explicit Crowd(const Plan &plan) : m_plan(plan)
    {
        m_hall.setWeather({.shortest = 1ms, .longest = slowest});
        Dice dice(m_seed);
        for (int i = 0; i < plan.copies; ++i)
            m_starts.emplace(std::chrono::milliseconds(dice.below(static_cast<int>(minute.count()))), i);
    }

    void meet()
    {
        for (const auto &[moment, number] : m_starts) {
            m_hall.pass(moment - m_time->elapsed());
            m_guests.push_back(std::make_unique<Guest>(number, m_plan.acquainted ? m_plan.copies : 0, m_hall, m_time));
        }
        m_hall.pass(minute + 5s - m_time->elapsed());
    }
    /// Nothing is under way, and no timer runs that could send anything.
    bool isSilent() const { return m_hall.underWay() == 0 && !m_time->nextDue(); }

    /// Who does not see whom.
    std::vector<std::string> unseen() const
    {
        std::vector<std::string> list;
        for (const auto &guest : m_guests) {
            const std::string who = addressText(guest->common.ownIP).toStdString();
            if (guest->engine.contacts().rowCount() != m_plan.copies - 1)
                list.push_back(who + " has " + std::to_string(guest->engine.contacts().rowCount()) + " contacts");
            for (int other = 0; other < m_plan.copies; ++other) {
                if (addressOf(other) != guest->common.ownIP && !guest->sees(other))
                    list.push_back(who + " does not see " + nicknameOf(other).toStdString());
            }
        }
        return list;
    }

    std::vector<Traffic> traffic() const
    {
        std::vector<Traffic> list;
        for (const auto &guest : m_guests)
            list.push_back(guest->socket.traffic);
        return list;
    }

    /// How many answers there are in all where whoever came no longer than this after a question was sent hears it.
    int answersWhen(std::chrono::milliseconds underWay) const
    {
        int answers = 0;
        for (auto asker = m_starts.begin(); asker != m_starts.end(); ++asker) {
            for (auto other = m_starts.begin(); other != m_starts.end(); ++other) {
                if (asker != other)
                    answers += answersTo(asker->first, other->first - underWay);
            }
        }
        return answers;
    }

private:
    /// A contact answers the question of the announcement and both of the search; a stranger takes note of the asker at
    /// the first that it hears.
    int answersTo(std::chrono::milliseconds started, std::chrono::milliseconds hearsFrom) const
    {
        const int hearsFirst = started >= hearsFrom, hearsSecond = started + 1s >= hearsFrom;
        return m_plan.acquainted ? 2 * hearsFirst + hearsSecond : hearsFirst;
    }

    Plan m_plan;
    std::uint64_t m_seed = static_cast<std::uint64_t>(numberFrom("NIMB_SIM_SEED", 1));
    std::shared_ptr<VirtualTime> m_time = std::make_shared<VirtualTime>();
    Hall m_hall{m_time, m_seed};
    std::multimap<std::chrono::milliseconds, int> m_starts; ///< by moment
    std::vector<std::unique_ptr<Guest>> m_guests;
};

/// Mean and largest of something that everybody has, in whole numbers.
template <class Value> std::string meanAndLargest(const std::vector<Traffic> &all, const Value &value)
{
    std::uint64_t sum = 0, largest = 0;
    for (const Traffic &one : all) {
        sum += static_cast<std::uint64_t>(value(one));
        largest = std::max(largest, static_cast<std::uint64_t>(value(one)));
    }
    return std::to_string((sum + all.size() / 2) / all.size()) + " (at most " + std::to_string(largest) + ")";
}

class CrowdTest : public testing::TestWithParam<Plan>
{
};

TEST_P(CrowdTest, EverybodySeesEverybodyAndNobodySendsMoreThanThatTakes)
{
    const auto [copies, acquainted] = GetParam();
    const int others = copies - 1;
    const auto bytesOf = [](int namings, int states) { return static_cast<std::uint64_t>(39 * namings + 14 * states); };
    Crowd crowd(GetParam());
    crowd.meet();
    ASSERT_TRUE(crowd.isSilent());
    EXPECT_THAT(crowd.unseen(), IsEmpty());

    int answers = 0;
    for (const Traffic &one : crowd.traffic()) {
        EXPECT_EQ(one.questions, acquainted ? others : 0);
        EXPECT_EQ(one.questionsToEverybody, 2);
        EXPECT_LE(one.answers, acquainted ? 3 * others : others);
        EXPECT_EQ(one.states, one.questions + one.answers) << "one behind each, and none for everybody";
        EXPECT_EQ(one.others, 0);
        EXPECT_LE(one.datagrams(), acquainted ? 8 * others + 2 : 2 * others + 2);
        EXPECT_EQ(one.payload, bytesOf(one.questions + one.questionsToEverybody + one.answers, one.states));
        EXPECT_LE(one.payload, acquainted ? bytesOf(4 * others + 2, 4 * others) : bytesOf(others + 2, others));
        answers += one.answers;
    }
    EXPECT_THAT(answers, AllOf(Ge(crowd.answersWhen(-1ms)), Le(crowd.answersWhen(slowest))));

    const std::vector<Traffic> all = crowd.traffic();
    std::cout << GetParam() << ", each: " << meanAndLargest(all, [](const Traffic &one) { return one.datagrams(); })
              << " datagrams, " << meanAndLargest(all, [](const Traffic &one) { return one.payload; })
              << " bytes of payload, " << meanAndLargest(all, [](const Traffic &one) { return one.withHeaders(); })
              << " bytes with headers\n";
}

int largeCrowd()
{
#ifdef __SANITIZE_ADDRESS__
    constexpr int copies = 100; // each takes several times as long there
#else
    constexpr int copies = 200;
#endif
    return numberFrom("NIMB_SIM_COPIES", copies);
}

INSTANTIATE_TEST_SUITE_P(Fifty, CrowdTest, testing::Values(Plan{50, true}, Plan{50, false}));
INSTANTIATE_TEST_SUITE_P(Large, CrowdTest, testing::Values(Plan{largeCrowd(), true}, Plan{largeCrowd(), false}));

} // namespace
} // namespace nimb::test
