#include "protocol/drop_counts.h"

#include "print_qt.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

TEST(DropCounts, SayNothingWhenNothingWasDropped)
{
    EXPECT_EQ(DropCounts().summary(), "");
    DropCounts counts;
    counts.count(Drop::stranger, 0);
    EXPECT_EQ(counts.summary(), "");
}

TEST(DropCounts, AddUpEachReasonByItself)
{
    DropCounts counts;
    counts.count(Drop::stranger);
    counts.count(Drop::stranger);
    counts.count(Drop::notReceived, 5'000'000'000);
    EXPECT_EQ(counts.of(Drop::stranger), 2U);
    EXPECT_EQ(counts.of(Drop::notReceived), 5'000'000'000U);
    EXPECT_EQ(counts.of(Drop::notSent), 0U);
}

TEST(DropCounts, SummaryHasOneLineForEachReasonThatOccurred)
{
    DropCounts counts;
    counts.count(Drop::notReceived, 12345);
    counts.count(Drop::stranger);
    EXPECT_EQ(counts.summary(),
              "From addresses that are no contacts: 1\n"
              "Datagrams lost before they could be read: 12345");
}

TEST(DropCounts, SummaryKnowsEveryReason)
{
    DropCounts counts;
    counts.count(Drop::stranger, 1);
    counts.count(Drop::incomplete, 2);
    counts.count(Drop::noFeature, 3);
    counts.count(Drop::noWindow, 4);
    counts.count(Drop::noConference, 5);
    counts.count(Drop::badAddress, 6);
    counts.count(Drop::tooManyContacts, 7);
    counts.count(Drop::tooManyWaiting, 8);
    counts.count(Drop::tooManyInvitations, 9);
    counts.count(Drop::tooManyAvatars, 10);
    counts.count(Drop::madeRoom, 11);
    counts.count(Drop::tooOften, 12);
    counts.count(Drop::notSent, 13);
    counts.count(Drop::notReceived, 14);
    counts.count(Drop::tooLoud, 15);
    EXPECT_EQ(counts.summary(),
              "From addresses that are no contacts: 1\n"
              "Incomplete commands: 2\n"
              "Commands that nothing here takes: 3\n"
              "For private windows that are not open: 4\n"
              "For conferences that are not there, or not to be had so: 5\n"
              "Addresses that cannot become contacts: 6\n"
              "New contacts while the list was full: 7\n"
              "Messages while too many waited to be read: 8\n"
              "Invitations while too many waited: 9\n"
              "Avatars while those of too many strangers were kept: 10\n"
              "Contacts that made room in a full list: 11\n"
              "Avatars and lists asked for or sent too often: 12\n"
              "Datagrams that could not be sent: 13\n"
              "Datagrams lost before they could be read: 14\n"
              "More than could wait, of the loudest senders: 15");
}

TEST(DropCounts, SummaryNamesTheSenderWhoLostMost)
{
    DropCounts counts;
    counts.countLoud(Ipv4Address(10, 0, 0, 2), 3);
    counts.countLoud(Ipv4Address(10, 0, 0, 3), 2);
    counts.countLoud(Ipv4Address(10, 0, 0, 3), 2);
    counts.countLoud(Ipv4Address(), 9); // of more senders than are told apart

    EXPECT_EQ(counts.of(Drop::tooLoud), 16U);
    EXPECT_EQ(counts.summary(),
              "More than could wait, of the loudest senders: 16\n"
              "of them from 10.0.0.3: 4");
}

} // namespace
} // namespace nimb::test
