#include "protocol/arrival_queue.h"

#include <gmock/gmock.h>

#include <string>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
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

TEST(ArrivalQueueTest, NeverHoldsMoreThanItsCapacity)
{
    ArrivalQueue queue(10'000);
    std::uint64_t pushed = 0, lost = 0, taken = 0;
    for (std::uint32_t i = 0; i < 5000; ++i) {
        queue.push(Ipv4Address::of(0x0A000000 + i * 7919 % 97), std::string(i % 200, 'x'));
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
