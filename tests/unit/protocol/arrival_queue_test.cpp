#include "protocol/arrival_queue.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

namespace nimb::test
{
namespace
{

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Ne;
using testing::Not;
using testing::Pair;

constexpr Ipv4Address ann(10, 0, 0, 1), ben(10, 0, 0, 2), cleo(10, 0, 0, 3);
constexpr std::size_t plenty = 1'000'000;

std::vector<std::string> texts(const std::vector<Arrival> &arrivals)
{
    std::vector<std::string> texts;
    for (const Arrival &one : arrivals)
        texts.push_back(one.source.toText() + " " + one.bytes);
    return texts;
}

TEST(ArrivalQueueTest, GivesTheDatagramsOfOneSenderInTheirOrder)
{
    ArrivalQueue queue(plenty);
    for (const char *bytes : {"-1", "", "-2"})
        queue.push(ann, bytes);

    EXPECT_THAT(texts(queue.take(64)), ElementsAre("10.0.0.1 -1", "10.0.0.1 ", "10.0.0.1 -2"));
    EXPECT_TRUE(queue.isEmpty());
    EXPECT_EQ(queue.bytes(), 0U);
}

TEST(ArrivalQueueTest, ASenderWhoFloodsLetsEveryOtherHaveItsTurn)
{
    ArrivalQueue queue(plenty);
    for (int i = 0; i < 1000; ++i)
        queue.push(ann, "junk");
    queue.push(ben, "-one");
    queue.push(ben, "-two");
    queue.push(cleo, "-three");

    EXPECT_THAT(texts(queue.take(6)),
                ElementsAre("10.0.0.1 junk", "10.0.0.2 -one", "10.0.0.3 -three", "10.0.0.1 junk", "10.0.0.2 -two",
                            "10.0.0.1 junk"));
}

TEST(ArrivalQueueTest, TurnsGoOnFromOneBatchToTheNext)
{
    ArrivalQueue queue(plenty);
    for (const char *bytes : {"1", "2"})
        queue.push(ann, bytes);
    for (const char *bytes : {"3", "4"})
        queue.push(ben, bytes);

    EXPECT_THAT(texts(queue.take(1)), ElementsAre("10.0.0.1 1"));
    EXPECT_THAT(texts(queue.take(1)), ElementsAre("10.0.0.2 3"));
    EXPECT_THAT(texts(queue.take(1)), ElementsAre("10.0.0.1 2"));
    EXPECT_FALSE(queue.isEmpty());
    EXPECT_THAT(texts(queue.take(9)), ElementsAre("10.0.0.2 4"));
}

TEST(ArrivalQueueTest, AnAcquaintanceGoesBeforeStrangersWhoCameEarlier)
{
    ArrivalQueue queue(plenty, {cleo});
    queue.push(ann, "-one");
    queue.push(ben, "-two");
    queue.push(cleo, "?ONLINE");

    EXPECT_THAT(texts(queue.take(9)), ElementsAre("10.0.0.3 ?ONLINE", "10.0.0.1 -one", "10.0.0.2 -two"));
    EXPECT_TRUE(queue.isEmpty());
}

TEST(ArrivalQueueTest, AcquaintancesHaveTheirTurnsAmongThemselves)
{
    ArrivalQueue queue(plenty, {ann, ben});
    queue.push(cleo, "-stranger");
    for (const char *bytes : {"1", "2", "3"})
        queue.push(ann, bytes);
    queue.push(ben, "4");

    EXPECT_THAT(texts(queue.take(9)),
                ElementsAre("10.0.0.1 1", "10.0.0.2 4", "10.0.0.1 2", "10.0.0.1 3", "10.0.0.3 -stranger"));
}

TEST(ArrivalQueueTest, AStrangerHasItsTurnAfterSevenOfAcquaintances)
{
    ArrivalQueue queue(plenty, {ann});
    for (int i = 0; i < 20; ++i)
        queue.push(ann, "a");
    queue.push(ben, "b1");
    queue.push(ben, "b2");
    queue.push(cleo, "c1");

    EXPECT_THAT(texts(queue.take(7)), Each("10.0.0.1 a"));
    EXPECT_THAT(texts(queue.take(1)), ElementsAre("10.0.0.2 b1"));
    EXPECT_THAT(texts(queue.take(7)), Each("10.0.0.1 a"));
    EXPECT_THAT(texts(queue.take(9)),
                ElementsAre("10.0.0.3 c1", "10.0.0.1 a", "10.0.0.1 a", "10.0.0.1 a", "10.0.0.1 a", "10.0.0.1 a",
                            "10.0.0.1 a", "10.0.0.2 b2"));
}

TEST(ArrivalQueueTest, WhoBecomesAnAcquaintanceGoesFirstWithWhatWaitsInItsOrder)
{
    ArrivalQueue queue(plenty);
    for (const char *bytes : {"1", "2"})
        queue.push(ann, bytes);
    for (const char *bytes : {"3", "4"})
        queue.push(ben, bytes);

    queue.setAcquainted(ben, true);
    EXPECT_THAT(texts(queue.take(9)), ElementsAre("10.0.0.2 3", "10.0.0.2 4", "10.0.0.1 1", "10.0.0.1 2"));
    queue.push(ann, "5");
    queue.push(ben, "6");
    EXPECT_THAT(texts(queue.take(9)), ElementsAre("10.0.0.2 6", "10.0.0.1 5"));
}

TEST(ArrivalQueueTest, WhoIsNoAcquaintanceAnyMoreGoesBehindTheStrangersWhoWait)
{
    ArrivalQueue queue(plenty, {ben});
    queue.push(ann, "1");
    for (const char *bytes : {"2", "3"})
        queue.push(ben, bytes);

    queue.setAcquainted(ben, false);
    EXPECT_THAT(texts(queue.take(9)), ElementsAre("10.0.0.1 1", "10.0.0.2 2", "10.0.0.2 3"));
    queue.push(ann, "4");
    queue.push(ben, "5");
    EXPECT_THAT(texts(queue.take(9)), ElementsAre("10.0.0.1 4", "10.0.0.2 5"));
}

TEST(ArrivalQueueTest, AnAcquaintanceWhoFloodsLosesAsAStrangerDoes)
{
    ArrivalQueue queue(5 * ArrivalQueue::overhead, {ann});
    for (const char *bytes : {"", "", ""})
        queue.push(ann, bytes);
    queue.push(ben, "");

    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(ann, 1U)));
    EXPECT_THAT(texts(queue.take(9)), ElementsAre("10.0.0.1 ", "10.0.0.1 ", "10.0.0.2 "));
}

TEST(ArrivalQueueTest, WithoutRoomTheLoudestSenderLosesTheNewest)
{
    ArrivalQueue queue(4 * ArrivalQueue::overhead + 2 * ArrivalQueue::overhead + 40);
    for (const char *bytes : {"1234567890", "2234567890", "3234567890"})
        queue.push(ann, bytes);

    queue.push(ben, "4234567890");
    EXPECT_THAT(queue.takeLosses(), IsEmpty());
    queue.push(ben, "5234567890");

    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(ann, 1U)));
    EXPECT_THAT(
        texts(queue.take(9)),
        ElementsAre("10.0.0.1 1234567890", "10.0.0.2 4234567890", "10.0.0.1 2234567890", "10.0.0.2 5234567890"));
}

TEST(ArrivalQueueTest, WhoIsLoudestIsFoundAnewWhenThatSendersDatagramsWereTaken)
{
    constexpr std::size_t three = 3 * ArrivalQueue::overhead + 2 * ArrivalQueue::overhead;
    ArrivalQueue queue(three);
    for (int i = 0; i < 9; ++i)
        queue.push(ann, "");
    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(ann, 5U)));
    queue.take(4);
    for (int i = 0; i < 4; ++i)
        queue.push(ben, "");

    queue.push(cleo, "");

    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(ben, 2U)));
    EXPECT_THAT(texts(queue.take(9)), ElementsAre("10.0.0.2 ", "10.0.0.3 ", "10.0.0.2 "));
}

TEST(ArrivalQueueTest, TheOnlyDatagramOfASenderIsNeverLostToOthers)
{
    constexpr std::size_t threeSenders = 6 * ArrivalQueue::overhead + 2000 + 2 * 30;
    ArrivalQueue queue(threeSenders);
    queue.push(ann, std::string(2000, 'a'));
    queue.push(ben, std::string(30, 'b'));
    queue.push(cleo, std::string(30, 'c'));

    for (std::uint8_t i = 1; i <= 100; ++i)
        queue.push(Ipv4Address(10, 0, 1, i), std::string(30, 'x'));

    const ArrivalQueue::Losses losses = queue.takeLosses();
    EXPECT_EQ(losses.size(), 100U);
    EXPECT_THAT(losses, Each(Pair(AllOf(Ne(ann), Ne(ben), Ne(cleo)), 1U)));
    EXPECT_THAT(texts(queue.take(9)),
                ElementsAre("10.0.0.1 " + std::string(2000, 'a'), "10.0.0.2 " + std::string(30, 'b'),
                            "10.0.0.3 " + std::string(30, 'c')));
}

TEST(ArrivalQueueTest, OfThoseWithTwoOrMoreWaitingTheOneWithTheMostBytesLoses)
{
    constexpr Ipv4Address dora(10, 0, 0, 4), eve(10, 0, 0, 5), fay(10, 0, 0, 6);
    ArrivalQueue queue(8 * ArrivalQueue::overhead + 2000 + 2 * 100 + 2 * 200);
    queue.push(ann, std::string(2000, 'a'));
    for (const Ipv4Address sender : {cleo, cleo, ben, ben})
        queue.push(sender, std::string(sender == cleo ? 200 : 100, 'x'));
    EXPECT_THAT(queue.takeLosses(), IsEmpty());

    queue.push(dora, "");
    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(cleo, 1U)));
    queue.push(eve, "");
    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(ben, 1U)));
    queue.push(fay, "");
    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(fay, 1U)));
    EXPECT_EQ(queue.take(9).size(), 5U);
}

TEST(ArrivalQueueTest, StrangersWhoFillItMakeRoomForAnAcquaintance)
{
    constexpr std::uint8_t fitting = 50;
    ArrivalQueue queue(fitting * (2 * ArrivalQueue::overhead + 10), {ann});
    for (std::uint8_t i = 1; i <= 2 * fitting; ++i)
        queue.push(Ipv4Address(10, 0, 1, i), std::string(10, 'x'));
    queue.takeLosses();

    queue.push(ann, std::string(10, 'a'));

    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(Ipv4Address(10, 0, 1, fitting), 1U)));
    EXPECT_THAT(texts(queue.take(1)), ElementsAre("10.0.0.1 aaaaaaaaaa"));
    EXPECT_EQ(queue.take(1000).size(), fitting - 1U);
}

TEST(ArrivalQueueTest, AnAcquaintanceWithSeveralLosesNothingToStrangersWithOneEach)
{
    constexpr std::uint8_t fitting = 50;
    ArrivalQueue queue(fitting * (2 * ArrivalQueue::overhead + 10), {ann});
    for (int i = 0; i < 8; ++i)
        queue.push(ann, std::string(10, 'a'));
    for (std::uint8_t i = 1; i <= 2 * fitting; ++i)
        queue.push(Ipv4Address(10, 0, 1, i), std::string(10, 'x'));

    EXPECT_THAT(queue.takeLosses(), Not(Contains(Pair(ann, testing::_))));
    EXPECT_THAT(texts(queue.take(7)), Each("10.0.0.1 aaaaaaaaaa"));
}

TEST(ArrivalQueueTest, AcquaintancesWhoFillHalfOfItLoseBeforeStrangers)
{
    ArrivalQueue queue(10 * ArrivalQueue::overhead, {ann});
    for (int i = 0; i < 9; ++i)
        queue.push(ann, "");
    EXPECT_THAT(queue.takeLosses(), IsEmpty());
    queue.push(ben, "");
    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(ann, 2U)));
    EXPECT_EQ(queue.take(20).size(), 8U);
}

TEST(ArrivalQueueTest, WhoBecomesAnAcquaintanceInAFullOneIsSparedFromThenOn)
{
    constexpr std::uint8_t fitting = 50;
    ArrivalQueue queue(fitting * (2 * ArrivalQueue::overhead + 10));
    queue.push(ann, std::string(10, 'a'));
    for (int i = 0; i < 3; ++i)
        queue.push(ben, std::string(10, 'b'));
    for (std::uint8_t i = 1; i <= 2 * fitting; ++i)
        queue.push(Ipv4Address(10, 0, 1, i), std::string(10, 'x'));
    queue.takeLosses();
    queue.setAcquainted(ann, true);
    queue.push(ann, std::string(10, 'a'));
    queue.push(ann, std::string(10, 'a'));
    EXPECT_THAT(queue.takeLosses(), Not(Contains(Pair(ann, testing::_))));
    EXPECT_THAT(texts(queue.take(3)), Each("10.0.0.1 aaaaaaaaaa"));
}

// The next two take an hour where every datagram makes the queue search all senders.

TEST(ArrivalQueueTest, SendersWithoutEndAreNotSearchedForTheLoudest)
{
    constexpr std::uint32_t fitting = 100'000;
    ArrivalQueue queue(fitting * (2 * ArrivalQueue::overhead + 1));
    for (std::uint32_t i = 0; i < 2 * fitting; ++i)
        queue.push(Ipv4Address::of(0x0A000000 + i), "x");

    EXPECT_EQ(queue.take(2 * fitting).size(), fitting);
    const ArrivalQueue::Losses losses = queue.takeLosses();
    EXPECT_EQ(losses.size(), 1001U) << "a thousand senders, and the rest together";
    EXPECT_EQ(losses.at(Ipv4Address::of(0x0A000000 + fitting)), 1U);
    EXPECT_EQ(losses.at(Ipv4Address()), fitting - 1000);
}

TEST(ArrivalQueueTest, SendersWithoutEndWhoHaveTwoWaitingAreNotSearchedEither)
{
    constexpr std::uint32_t fitting = 100'000;
    ArrivalQueue queue(fitting * (3 * ArrivalQueue::overhead + 2));
    for (std::uint32_t i = 0; i < 2 * fitting; ++i)
        queue.push(Ipv4Address::of(0x0A000000 + i % fitting), "x");
    EXPECT_THAT(queue.takeLosses(), IsEmpty());

    for (std::uint32_t i = 0; i < fitting; ++i)
        queue.push(Ipv4Address::of(0x0B000000 + i), "x");

    const std::vector<Arrival> arrivals = queue.take(fitting);
    EXPECT_TRUE(std::ranges::all_of(arrivals, [](const Arrival &one) {
        return one.source < Ipv4Address::of(0x0A000000 + fitting);
    })) << "each of the first has one waiting still";
    EXPECT_GT(queue.take(fitting).size(), fitting / 3) << "and newcomers took the place of the others";
}

TEST(ArrivalQueueTest, NeverHoldsMoreThanItsCapacity)
{
    ArrivalQueue queue(10'000);
    std::uint64_t pushed = 0, lost = 0, taken = 0;
    for (std::uint32_t i = 0; i < 5000; ++i) {
        queue.push(Ipv4Address::of(0x0A000000 + i * 7919 % 97), std::string(i % 200, 'x'));
        queue.setAcquainted(Ipv4Address::of(0x0A000000 + i * 31 % 97), i % 3 == 0);
        ++pushed;
        ASSERT_LE(queue.bytes(), 10'000U);
        if (i % 50 == 0)
            taken += queue.take(20).size();
    }
    taken += queue.take(plenty).size();
    for (const auto &[sender, count] : queue.takeLosses())
        lost += count;

    EXPECT_EQ(taken + lost, pushed);
    EXPECT_GT(lost, 0U);
    EXPECT_EQ(queue.bytes(), 0U);
}

TEST(ArrivalQueueTest, ADatagramLargerThanAllRoomIsLostAlone)
{
    ArrivalQueue queue(1000);
    queue.push(ann, "small");
    queue.push(ben, std::string(2000, 'x'));

    EXPECT_THAT(queue.takeLosses(), ElementsAre(Pair(ben, 1U)));
    EXPECT_THAT(texts(queue.take(9)), ElementsAre("10.0.0.1 small"));
}

TEST(ArrivalQueueTest, LossesOfForgedAddressesWithoutEndTakeNoRoomWithoutEnd)
{
    ArrivalQueue queue(0);
    for (std::uint32_t i = 0; i < 5000; ++i)
        queue.push(Ipv4Address::of(0x0A000001 + i), "x");

    const ArrivalQueue::Losses losses = queue.takeLosses();

    EXPECT_EQ(losses.size(), 1001U);
    EXPECT_EQ(losses.at(Ipv4Address()), 4000U);
}

} // namespace
} // namespace nimb::test
