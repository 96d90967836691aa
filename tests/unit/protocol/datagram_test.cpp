// The grammar of the datagrams, held against literal bytes.
#include "protocol/datagram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <ostream>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace nimb::wire
{

template <typename Kind>
requires std::is_constructible_v<Datagram, Kind>
void PrintTo(const Kind &kind, std::ostream *out)
{
    *out << "alternative " << Datagram(kind).index() << " of " << testing::PrintToString(serialise(kind));
}

} // namespace nimb::wire

namespace
{

using namespace nimb::wire;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// What bytes mean, when they mean a Kind; a Kind of default values and a failure otherwise.
template <typename Kind> Kind parsed(std::string_view bytes)
{
    Datagram datagram = parse(bytes);
    if (auto *kind = std::get_if<Kind>(&datagram))
        return std::move(*kind);
    ADD_FAILURE() << "another kind came of it: alternative " << datagram.index();
    return {};
}

template <typename Kind> bool isA(std::string_view bytes)
{
    return std::holds_alternative<Kind>(parse(bytes));
}

// ---- Every kind, both ways ----

/// Bytes and what they mean; both follow from each other.
struct Pair {
    std::string name, bytes;
    Datagram datagram;
};

void PrintTo(const Pair &pair, std::ostream *out)
{
    *out << pair.name;
}

std::vector<Pair> everyKind()
{
    return {
        {"PresenceQuestion", "?ONLINE 10.0.0.2 PC-ANN Ann", OnlineQuestion{Identity{"10.0.0.2", "PC-ANN", "Ann"}}},
        {"PresenceQuestionOfNobody", "?ONLINE", OnlineQuestion{}},
        {"PresenceAnswer", "!ONLINE 10.0.0.3 PC-BEN Ben", OnlineAnswer{Identity{"10.0.0.3", "PC-BEN", "Ben"}}},
        {"PresenceAnswerOfNobody", "!ONLINE", OnlineAnswer{}},
        {"Farewell", "!OFFLINE 10.0.0.4 PC-CID Cid", Offline{Identity{"10.0.0.4", "PC-CID", "Cid"}}},
        {"FarewellOfNobody", "!OFFLINE", Offline{}},
        {"PlainState", "!STATUS BUSY", Status{"BUSY", ""}},
        {"PersonalisedState", "!STATUS AWAY Back at five", Status{"AWAY", "Back at five"}},
        {"NoState", "!STATUS ", Status{"", ""}},
        {"Buzz", "!BUZZ", Buzz{}},
        {"SharedContact", "!USER 10.0.0.5 PC-DOT Dot", SharedContact{Identity{"10.0.0.5", "PC-DOT", "Dot"}}},
        {"SharedContactOfNobody", "!USER", SharedContact{}},
        {"Typing", "!TYPING", Typing{}},
        {"AvatarHeadQuestion", "?AVATARHEAD", AvatarHeadQuestion{}},
        {"AvatarHead", "!AVATARHEAD 24/12/2023 18:30:00", AvatarHead{"24/12/2023 18:30:00"}},
        {"PolledPicture", "!AVATARHEAD WEBCAM 17", AvatarHead{"WEBCAM 17"}},
        {"AvatarBodyQuestion", "?AVATARBODY", AvatarBodyQuestion{}},
        {"AvatarOff", "!AVATAROFF", AvatarOff{}},
        {"AvatarBody", "!AVATARBODY \x01\x02\x03", AvatarBody{"\x01\x02\x03"}},
        {"Mood", "!MOOD 12.5", Mood{"12.5"}},
        {"LiveText", "!LIVETYPE see you at", LiveType{"see you at"}},
        {"LiveTextEmptied", "!LIVETYPE ", LiveType{""}},
        {"ConferenceInvitation", "?CONF INVITE #12", ConferenceInvitation{12}},
        {"ConferenceListQuestion", "?CONF USERS #3", ConferenceListQuestion{3}},
        {"ConferenceAgreement", "!CONF INVITE #12 AGREE", ConferenceAnswer{12, true}},
        {"ConferenceRefusal", "!CONF INVITE #12 DENY", ConferenceAnswer{12, false}},
        {"ConferenceList", "!CONF USERS #3 10.0.0.1 10.0.0.2 10.0.0.7",
         ConferenceList{3, {"10.0.0.1", "10.0.0.2", "10.0.0.7"}}},
        {"ConferenceListOfTheHostAlone", "!CONF USERS #3 10.0.0.1", ConferenceList{3, {"10.0.0.1"}}},
        {"ConferenceLeave", "!CONF LEAVE #5", ConferenceLeave{5}},
        {"ConferenceClose", "!CONF CLOSE #1", ConferenceClose{1}},
        {"PrivateMessage", "-hello", PrivateMessage{"hello"}},
        {"EmptyPrivateMessage", "-", PrivateMessage{""}},
        {"ConferenceMessage", "+192.168.0.7 #3 hi all", ConferenceMessage{"192.168.0.7", 3, "hi all"}},
        {"EmptyConferenceMessage", "+192.168.0.7 #3 ", ConferenceMessage{"192.168.0.7", 3, ""}},
        {"LargestConferenceNumber", "?CONF INVITE #32767", ConferenceInvitation{32767}},
        {"SmallestConferenceNumber", "!CONF CLOSE #-32768", ConferenceClose{-32768}},
        {"Incomplete", "?CONF", Incomplete{"?CONF"}},
        {"Unsupported", "!FOO", Unsupported{"!FOO"}},
        {"Garbage", "hello", Garbage{"hello"}},
        {"Nothing", "", Garbage{""}},
    };
}

class EveryKind : public testing::TestWithParam<Pair>
{
};

TEST_P(EveryKind, IsReadFromItsBytes)
{
    EXPECT_EQ(parse(GetParam().bytes), GetParam().datagram);
}

TEST_P(EveryKind, IsWrittenAsItsBytes)
{
    EXPECT_EQ(serialise(GetParam().datagram), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Datagram, EveryKind, testing::ValuesIn(everyKind()),
                         [](const auto &test) { return test.param.name; });

TEST(Datagram, NoKindIsMissingFromTheListAbove)
{
    std::set<std::size_t> covered;
    for (const Pair &pair : everyKind())
        covered.insert(pair.datagram.index());
    EXPECT_THAT(covered, SizeIs(std::variant_size_v<Datagram>));
}

// ---- Presence ----

TEST(PresenceDatagram, WithFewerThanThreeSpacesNamesNobody)
{
    for (const auto *bytes :
         {"?ONLINE", "?ONLINE ", "?ONLINE 10.0.0.2", "?ONLINE 10.0.0.2 ", "?ONLINE 10.0.0.2 PC-ANN"})
        EXPECT_EQ(parse(bytes), Datagram(OnlineQuestion{std::nullopt})) << bytes;
    for (const auto *bytes :
         {"!ONLINE", "!ONLINE ", "!ONLINE 10.0.0.2", "!ONLINE 10.0.0.2 ", "!ONLINE 10.0.0.2 PC-ANN"})
        EXPECT_EQ(parse(bytes), Datagram(OnlineAnswer{std::nullopt})) << bytes;
    for (const auto *bytes : {"!OFFLINE", "!OFFLINE ", "!OFFLINE 10.0.0.2", "!OFFLINE 10.0.0.2 PC-ANN"})
        EXPECT_EQ(parse(bytes), Datagram(Offline{std::nullopt})) << bytes;
}

TEST(PresenceDatagram, NicknameWithSpacesArrivesWhole)
{
    const Identity expected{"10.0.0.2", "PC-ANN", "Ann of  Green Gables "};
    EXPECT_EQ(parsed<OnlineQuestion>("?ONLINE 10.0.0.2 PC-ANN Ann of  Green Gables ").from, expected);
    EXPECT_EQ(parsed<OnlineAnswer>("!ONLINE 10.0.0.2 PC-ANN Ann of  Green Gables ").from, expected);
    EXPECT_EQ(parsed<Offline>("!OFFLINE 10.0.0.2 PC-ANN Ann of  Green Gables ").from, expected);
    EXPECT_EQ(parsed<SharedContact>("!USER 10.0.0.2 PC-ANN Ann of  Green Gables ").contact, expected);
}

TEST(PresenceDatagram, AThirdSpaceAtTheEndMakesAnEmptyNickname)
{
    EXPECT_EQ(parsed<OnlineQuestion>("?ONLINE 10.0.0.2 PC-ANN ").from, (Identity{"10.0.0.2", "PC-ANN", ""}));
}

TEST(PresenceDatagram, AdjacentSpacesMakeEmptyFields)
{
    EXPECT_EQ(parsed<OnlineQuestion>("?ONLINE   ").from, (Identity{"", "", ""}));
    EXPECT_EQ(parsed<OnlineQuestion>("?ONLINE  PC-ANN Ann").from, (Identity{"", "PC-ANN", "Ann"}));
    EXPECT_EQ(parsed<OnlineQuestion>("?ONLINE 10.0.0.2  Ann").from, (Identity{"10.0.0.2", "", "Ann"}));
    EXPECT_EQ(parsed<OnlineQuestion>("?ONLINE 10.0.0.2 PC-ANN  Ann").from, (Identity{"10.0.0.2", "PC-ANN", " Ann"}));
}

TEST(PresenceDatagram, FieldsAreTakenAsTheyStandWhateverAddressTheyClaim)
{
    EXPECT_EQ(parsed<OnlineQuestion>("?ONLINE 127.0.0.1 HERE Me").from, (Identity{"127.0.0.1", "HERE", "Me"}));
    EXPECT_EQ(parsed<OnlineAnswer>("!ONLINE not-an-address HERE Me").from, (Identity{"not-an-address", "HERE", "Me"}));
}

TEST(PresenceDatagram, SeparatesAtSpacesAloneNotAtTabsOrBreaks)
{
    EXPECT_EQ(parsed<OnlineQuestion>("?ONLINE 10.0.0.2\tPC ANN\r\nAnn x").from,
              (Identity{"10.0.0.2\tPC", "ANN\r\nAnn", "x"}));
    EXPECT_EQ(parse("?ONLINE\t10.0.0.2 PC-ANN Ann x"), Datagram(Unsupported{"?ONLINE\t10.0.0.2 PC-ANN Ann x"}));
}

TEST(SharedContactDatagram, WithFewerThanThreeSpacesNamesNobody)
{
    for (const auto *bytes : {"!USER", "!USER ", "!USER 10.0.0.5", "!USER 10.0.0.5 PC-DOT"})
        EXPECT_EQ(parse(bytes), Datagram(SharedContact{std::nullopt})) << bytes;
}

// ---- State ----

TEST(StatusDatagram, IsValidWithAndWithoutPersonalisedText)
{
    EXPECT_EQ(parsed<Status>("!STATUS away"), (Status{"away", ""}));
    EXPECT_EQ(parsed<Status>("!STATUS away Back at five"), (Status{"away", "Back at five"}));
}

TEST(StatusDatagram, TextIsEverythingAfterTheSecondSpace)
{
    EXPECT_EQ(parsed<Status>("!STATUS BUSY  in a  meeting "), (Status{"BUSY", " in a  meeting "}));
}

TEST(StatusDatagram, KeepsTheCaseOfTheStateWord)
{
    EXPECT_EQ(parsed<Status>("!STATUS bUsY").state, "bUsY");
}

TEST(StatusDatagram, WithoutStateWordIsStillAState)
{
    EXPECT_EQ(parsed<Status>("!STATUS"), (Status{"", ""}));
    EXPECT_EQ(parsed<Status>("!STATUS "), (Status{"", ""}));
    EXPECT_EQ(parsed<Status>("!STATUS  text"), (Status{"", "text"}));
}

TEST(StatusDatagram, SpaceAfterTheStateWordMakesNoText)
{
    EXPECT_EQ(parsed<Status>("!STATUS ONLINE "), (Status{"ONLINE", ""}));
}

// ---- Command words ----

TEST(CommandWord, IsComparedWhole)
{
    for (const auto *bytes : {"!TYPINGX", "!TYPIN", "?ONLINEX 10.0.0.2 PC-ANN Ann", "?ONLIN 10.0.0.2 PC-ANN Ann",
                              "!AVATAR", "!AVATARHEADS x", "?AVATAROFF", "!CONFX INVITE #1", "?CON USERS #1", "?CONF:"})
        EXPECT_EQ(parse(bytes), Datagram(Unsupported{bytes})) << bytes;
}

TEST(CommandWord, IsCaseSensitive)
{
    for (const auto *bytes : {"!typing", "!Buzz", "?online 10.0.0.2 PC-ANN Ann", "!Status BUSY", "?conf INVITE #1"})
        EXPECT_EQ(parse(bytes), Datagram(Unsupported{bytes})) << bytes;
}

TEST(CommandWord, AsksAndStatesUnderDifferentFirstCharacters)
{
    for (const auto *bytes : {"?OFFLINE 10.0.0.2 PC-ANN Ann", "?STATUS away", "?BUZZ", "?USER 10.0.0.2 PC-ANN Ann",
                              "?TYPING", "?MOOD 1", "?LIVETYPE x"})
        EXPECT_EQ(parse(bytes), Datagram(Unsupported{bytes})) << bytes;
}

TEST(CommandWord, EndsAtTheFirstSpaceAndNowhereElse)
{
    EXPECT_EQ(parse("!BUZZ\r\n"), Datagram(Unsupported{"!BUZZ\r\n"}));
    EXPECT_EQ(parse("!BUZZ\0"s), Datagram(Unsupported{"!BUZZ\0"s}));
    EXPECT_EQ(parse("!TYPING\t"), Datagram(Unsupported{"!TYPING\t"}));
    EXPECT_EQ(parse(" !BUZZ"), Datagram(Garbage{" !BUZZ"}));
}

TEST(CommandWord, ThatCarriesNothingIgnoresWhatFollows)
{
    EXPECT_TRUE(isA<Buzz>("!BUZZ extra"));
    EXPECT_TRUE(isA<Buzz>("!BUZZ "));
    EXPECT_TRUE(isA<Typing>("!TYPING a letter"));
    EXPECT_TRUE(isA<AvatarHeadQuestion>("?AVATARHEAD please"));
    EXPECT_TRUE(isA<AvatarBodyQuestion>("?AVATARBODY please"));
    EXPECT_TRUE(isA<AvatarOff>("!AVATAROFF at all"));
}

TEST(CommandWord, GoesBeforeTheFirstCharacter)
{
    EXPECT_TRUE(isA<PrivateMessage>("-!BUZZ"));
    EXPECT_TRUE(isA<PrivateMessage>("-"));
    EXPECT_TRUE(isA<ConferenceMessage>("+10.0.0.2 #1 !BUZZ"));
    EXPECT_TRUE(isA<Buzz>("!BUZZ -hello"));
    EXPECT_TRUE(isA<Unsupported>("!-hello"));
}

TEST(CommandWord, UnknownOnesAreQuotedWhole)
{
    EXPECT_EQ(parse("!FOO"), Datagram(Unsupported{"!FOO"}));
    EXPECT_EQ(parse("?WHO ARE YOU"), Datagram(Unsupported{"?WHO ARE YOU"}));
    EXPECT_EQ(parse("!"), Datagram(Unsupported{"!"}));
    EXPECT_EQ(parse("? "), Datagram(Unsupported{"? "}));
}

TEST(GarbageDatagram, IsWhateverBeginsWithNoneOfTheFourMarks)
{
    for (const auto *bytes : {"hello", " ", "   ", "ONLINE 10.0.0.2 PC-ANN Ann", "#1", "\x80\xff", "=hi"})
        EXPECT_EQ(parse(bytes), Datagram(Garbage{bytes})) << bytes;
}

TEST(GarbageDatagram, AnEmptyDatagramIsOne)
{
    EXPECT_EQ(parse(""), Datagram(Garbage{""}));
    EXPECT_EQ(parse(std::string_view{}), Datagram(Garbage{""}));
}

// ---- Mood, live text, avatar ----

TEST(MoodDatagram, KeepsTheNumberAsItWasWritten)
{
    EXPECT_EQ(parsed<Mood>("!MOOD 3.50").value, "3.50");
    EXPECT_EQ(parsed<Mood>("!MOOD  7 and more").value, " 7 and more");
    EXPECT_EQ(parsed<Mood>("!MOOD").value, "");
}

TEST(LiveTypeDatagram, TextIsEverythingAfterTheFirstSpace)
{
    EXPECT_EQ(parsed<LiveType>("!LIVETYPE  two spaces  ").text, " two spaces  ");
    EXPECT_EQ(parsed<LiveType>("!LIVETYPE a\r\nb\tc").text, "a\r\nb\tc");
}

TEST(LiveTypeDatagram, IsEmptyWithAndWithoutItsSpace)
{
    EXPECT_EQ(parsed<LiveType>("!LIVETYPE ").text, "");
    EXPECT_EQ(parsed<LiveType>("!LIVETYPE").text, "");
}

TEST(AvatarDatagram, HeadIsEverythingAfterTheFirstSpace)
{
    EXPECT_EQ(parsed<AvatarHead>("!AVATARHEAD 1/2/2024 10:11:12").data, "1/2/2024 10:11:12");
    EXPECT_EQ(parsed<AvatarHead>("!AVATARHEAD WEBCAM").data, "WEBCAM");
    EXPECT_EQ(parsed<AvatarHead>("!AVATARHEAD ").data, "");
    EXPECT_EQ(parsed<AvatarHead>("!AVATARHEAD").data, "");
}

TEST(AvatarDatagram, BodyKeepsSpacesBreaksNulAndBytesThatAreNoText)
{
    const std::string data = " \r\n\0 !BUZZ\0\xff\xfe\xc3\x28\xed\xa0\x80 "s;
    ASSERT_THAT(data, SizeIs(19));
    EXPECT_EQ(parsed<AvatarBody>("!AVATARBODY  \r\n\0 !BUZZ\0\xff\xfe\xc3\x28\xed\xa0\x80 "s).data, data);
    EXPECT_EQ(serialise(AvatarBody{data}), "!AVATARBODY  \r\n\0 !BUZZ\0\xff\xfe\xc3\x28\xed\xa0\x80 "s);
}

TEST(AvatarDatagram, WholePictureHolds7500BytesOfEveryValue)
{
    std::string picture;
    for (int i = 0; i < 7500; ++i)
        picture += static_cast<char>(i % 256);
    const std::string bytes = "!AVATARBODY " + picture;
    EXPECT_EQ(parsed<AvatarBody>(bytes).data, picture);
    EXPECT_EQ(serialise(AvatarBody{picture}), bytes);
    EXPECT_THAT(bytes, SizeIs(7512));
}

// ---- Conferences ----

TEST(ConferenceDatagram, AnInvitationAndItsTwoAnswersBearItsNumber)
{
    EXPECT_EQ(parsed<ConferenceInvitation>("?CONF INVITE #12").id, 12);
    EXPECT_EQ(parsed<ConferenceAnswer>("!CONF INVITE #12 AGREE"), (ConferenceAnswer{12, true}));
    EXPECT_EQ(parsed<ConferenceAnswer>("!CONF INVITE #12 DENY"), (ConferenceAnswer{12, false}));
}

TEST(ConferenceDatagram, OnlyTheExactWordAgrees)
{
    for (const auto *bytes : {"!CONF INVITE #2", "!CONF INVITE #2 ", "!CONF INVITE #2 agree", "!CONF INVITE #2 AGREE ",
                              "!CONF INVITE #2  AGREE", "!CONF INVITE #2 AGREED", "!CONF INVITE #2 AGRE",
                              "!CONF INVITE #2AGREE", "!CONF INVITE #2 DENY AGREE"})
        EXPECT_EQ(parse(bytes), Datagram(ConferenceAnswer{2, false})) << bytes;
}

TEST(ConferenceDatagram, NumberEndsAtTheNextSpaceOrTheEnd)
{
    EXPECT_EQ(parsed<ConferenceInvitation>("?CONF INVITE #4 come in").id, 4);
    EXPECT_EQ(parsed<ConferenceListQuestion>("?CONF USERS #4 99").id, 4);
    EXPECT_EQ(parsed<ConferenceLeave>("!CONF LEAVE #4 ").id, 4);
    EXPECT_EQ(parsed<ConferenceClose>("!CONF CLOSE #4 5").id, 4);
}

TEST(ConferenceDatagram, TextAfterTheDigitsIsIgnored)
{
    EXPECT_EQ(parsed<ConferenceInvitation>("?CONF INVITE #4th").id, 4);
    EXPECT_EQ(parsed<ConferenceLeave>("!CONF LEAVE #7\r\n").id, 7);
    EXPECT_EQ(parsed<ConferenceClose>("!CONF CLOSE #3.9").id, 3);
    EXPECT_EQ(parsed<ConferenceClose>("!CONF CLOSE #3\0"
                                      "4"s)
                  .id,
              3);
    EXPECT_EQ(parsed<ConferenceAnswer>("!CONF INVITE #12x AGREE"), (ConferenceAnswer{12, true}));
    EXPECT_EQ(parsed<ConferenceMessage>("+10.0.0.2 #6, hi"), (ConferenceMessage{"10.0.0.2", 6, "hi"}));
}

TEST(ConferenceDatagram, NumberWithoutDigitsIsZero)
{
    for (const auto *bytes : {"?CONF INVITE #", "?CONF INVITE #one", "?CONF INVITE # 5", "?CONF INVITE #-",
                              "?CONF INVITE ##5", "?CONF INVITE #--5", "?CONF INVITE #\t5", "?CONF INVITE #-0"})
        EXPECT_EQ(parse(bytes), Datagram(ConferenceInvitation{0})) << bytes;
}

TEST(ConferenceDatagram, NumberMayHaveAMinusAndLeadingZeros)
{
    EXPECT_EQ(parsed<ConferenceLeave>("!CONF LEAVE #-3").id, -3);
    EXPECT_EQ(parsed<ConferenceLeave>("!CONF LEAVE #007").id, 7);
    EXPECT_EQ(parsed<ConferenceLeave>("!CONF LEAVE #00000000000000000000000000000012").id, 12);
}

TEST(ConferenceDatagram, NumberBeyondSixteenBitsIsIncompleteNeverClipped)
{
    for (const auto *bytes :
         {"?CONF INVITE #32768", "!CONF INVITE #32768 AGREE", "?CONF USERS #65537", "!CONF USERS #4294967297 10.0.0.1",
          "!CONF LEAVE #-32769", "!CONF CLOSE #99999999999999999999999999999", "+10.0.0.2 #32768 hi",
          "+10.0.0.2 #65539 hi"})
        EXPECT_EQ(parse(bytes), Datagram(Incomplete{bytes})) << bytes;
}

TEST(ConferenceDatagram, UnknownSubCommandsAreIncomplete)
{
    for (const auto *bytes : {"?CONF", "!CONF", "?CONF ", "!CONF ", "?CONF KICK #1", "!CONF KICK #1", "?CONF invite #1",
                              "!CONF Users #1 10.0.0.1", "?CONF  INVITE #1", "?CONF INVITES #1", "?CONF INVITE  #1",
                              "!CONF LEAVES #1", "?CONF #1"})
        EXPECT_EQ(parse(bytes), Datagram(Incomplete{bytes})) << bytes;
}

TEST(ConferenceDatagram, SubCommandsWithoutNumberSignAreIncomplete)
{
    for (const auto *bytes : {"?CONF INVITE", "?CONF INVITE ", "?CONF INVITE 1", "!CONF INVITE 1 AGREE", "?CONF USERS",
                              "!CONF USERS 3 10.0.0.1", "!CONF LEAVE 3", "!CONF CLOSE", "!CONF CLOSE "})
        EXPECT_EQ(parse(bytes), Datagram(Incomplete{bytes})) << bytes;
}

TEST(ConferenceDatagram, SubCommandsOfStatementsAreNoQuestions)
{
    for (const auto *bytes : {"?CONF LEAVE #1", "?CONF CLOSE #1"})
        EXPECT_EQ(parse(bytes), Datagram(Incomplete{bytes})) << bytes;
    EXPECT_TRUE(isA<ConferenceInvitation>("?CONF INVITE #1 AGREE"));
    EXPECT_TRUE(isA<ConferenceListQuestion>("?CONF USERS #1 10.0.0.1"));
}

TEST(ConferenceDatagram, ListIsSplitAtSpacesAndSkipsEmptyAddresses)
{
    EXPECT_THAT(parsed<ConferenceList>("!CONF USERS #3 10.0.0.1 10.0.0.2").addresses,
                ElementsAre("10.0.0.1", "10.0.0.2"));
    EXPECT_THAT(parsed<ConferenceList>("!CONF USERS #3   10.0.0.1   10.0.0.2 ").addresses,
                ElementsAre("10.0.0.1", "10.0.0.2"));
    EXPECT_THAT(parsed<ConferenceList>("!CONF USERS #3").addresses, IsEmpty());
    EXPECT_THAT(parsed<ConferenceList>("!CONF USERS #3 ").addresses, IsEmpty());
    EXPECT_THAT(parsed<ConferenceList>("!CONF USERS #3     ").addresses, IsEmpty());
}

TEST(ConferenceDatagram, ListKeepsOrderRepetitionsAndWhatIsNoAddress)
{
    EXPECT_THAT(parsed<ConferenceList>("!CONF USERS #3 10.0.0.9 10.0.0.1 10.0.0.9 nobody\r\n").addresses,
                ElementsAre("10.0.0.9", "10.0.0.1", "10.0.0.9", "nobody\r\n"));
}

TEST(ConferenceDatagram, ListOfNobodyIsReadBackAsOne)
{
    EXPECT_EQ(parse(serialise(ConferenceList{3, {}})), Datagram(ConferenceList{3, {}}));
}

// ---- Chat text ----

TEST(PrivateMessageDatagram, IsEverythingAfterTheFirstCharacter)
{
    EXPECT_EQ(parsed<PrivateMessage>("-hello").text, "hello");
    EXPECT_EQ(parsed<PrivateMessage>("- hello  you ").text, " hello  you ");
    EXPECT_EQ(parsed<PrivateMessage>("--hello").text, "-hello");
    EXPECT_EQ(parsed<PrivateMessage>("-two\r\nlines").text, "two\r\nlines");
    EXPECT_EQ(parsed<PrivateMessage>("-").text, "");
}

TEST(PrivateMessageDatagram, KeepsEmbeddedNul)
{
    EXPECT_EQ(parsed<PrivateMessage>("-a\0b\0"s).text, "a\0b\0"s);
    EXPECT_EQ(serialise(PrivateMessage{"a\0b\0"s}), "-a\0b\0"s);
}

TEST(PrivateMessageDatagram, KeepsBytesThatAreNoUtf8)
{
    EXPECT_EQ(parsed<PrivateMessage>("-caf\xe9 \xff").text, "caf\xe9 \xff");
}

TEST(ConferenceMessageDatagram, NamesWriterConferenceAndText)
{
    EXPECT_EQ(parsed<ConferenceMessage>("+192.168.0.7 #3 hi all"), (ConferenceMessage{"192.168.0.7", 3, "hi all"}));
}

TEST(ConferenceMessageDatagram, TextIsEverythingAfterTheSecondSpace)
{
    EXPECT_EQ(parsed<ConferenceMessage>("+10.0.0.2 #3  hi  all ").text, " hi  all ");
    EXPECT_EQ(parsed<ConferenceMessage>("+10.0.0.2 #3 +10.0.0.9 #4 hi").text, "+10.0.0.9 #4 hi");
    EXPECT_EQ(parsed<ConferenceMessage>("+10.0.0.2 #3 \0\xff"s).text, "\0\xff"s);
}

TEST(ConferenceMessageDatagram, WithoutSecondSpaceHasNoText)
{
    EXPECT_EQ(parsed<ConferenceMessage>("+10.0.0.2 #3"), (ConferenceMessage{"10.0.0.2", 3, ""}));
    EXPECT_EQ(parsed<ConferenceMessage>("+10.0.0.2 #"), (ConferenceMessage{"10.0.0.2", 0, ""}));
}

TEST(ConferenceMessageDatagram, WithoutFirstSpaceOrNumberSignIsIncomplete)
{
    for (const auto *bytes : {"+", "+ ", "+10.0.0.2", "+10.0.0.2 ", "+10.0.0.2 3 hi", "+10.0.0.2#3 hi",
                              "+10.0.0.2  #3 hi", "+10.0.0.2 hi #3", "+#3"})
        EXPECT_EQ(parse(bytes), Datagram(Incomplete{bytes})) << bytes;
}

TEST(ConferenceMessageDatagram, WriterMayBeMissing)
{
    EXPECT_EQ(parsed<ConferenceMessage>("+ #3 hi"), (ConferenceMessage{"", 3, "hi"}));
}

// ---- Size ----

TEST(DatagramSize, TheLargestDatagramsPassWhole)
{
    const std::string body(64 * 1024, 'x');
    EXPECT_EQ(parsed<PrivateMessage>("-" + body).text, body);
    EXPECT_EQ(parsed<AvatarBody>("!AVATARBODY " + body).data, body);
    EXPECT_EQ(parsed<OnlineAnswer>("!ONLINE 10.0.0.2 PC-ANN " + body).from, (Identity{"10.0.0.2", "PC-ANN", body}));
    EXPECT_EQ(parsed<Unsupported>("!" + body).bytes, "!" + body);
    EXPECT_EQ(parsed<Garbage>(body).bytes, body);
    EXPECT_EQ(serialise(ConferenceMessage{"10.0.0.2", 3, body}), "+10.0.0.2 #3 " + body);
}

TEST(DatagramSize, ADatagramOfSpacesAloneHoldsNothing)
{
    const std::string spaces(64 * 1024, ' ');
    EXPECT_EQ(parsed<Garbage>(spaces).bytes, spaces);
    EXPECT_THAT(parsed<ConferenceList>("!CONF USERS #1" + spaces).addresses, IsEmpty());
}

TEST(DatagramSize, AListMayNameThousands)
{
    std::string bytes = "!CONF USERS #1";
    for (int i = 0; i < 32000; ++i)
        bytes += " a";
    EXPECT_THAT(parsed<ConferenceList>(bytes).addresses, SizeIs(32000));
}

TEST(DatagramSize, ANumberMayHaveThousandsOfDigits)
{
    EXPECT_TRUE(isA<Incomplete>("?CONF INVITE #" + std::string(60000, '9')));
    EXPECT_EQ(parsed<ConferenceInvitation>("?CONF INVITE #" + std::string(60000, '0') + "5").id, 5);
}

// ---- Round trips ----

/// Makes datagrams whose fields hold what they may: words no space, last fields any byte.
class Maker
{
public:
    explicit Maker(std::uint32_t seed) : m_random(seed) { }

    std::size_t upTo(std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(m_random); }

    std::string anyBytes(std::size_t most)
    {
        std::string bytes(upTo(most), '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(upTo(255));
        return bytes;
    }

    std::string anyWord(std::size_t most)
    {
        std::string bytes = anyBytes(most);
        for (char &byte : bytes)
            byte = byte == ' ' ? '_' : byte;
        return bytes;
    }

    /// Bytes made of pieces of the grammar, so that most of them are almost a datagram.
    std::string almostADatagram()
    {
        static const std::vector<std::string> pieces{
            " ",           " ",           " ",          "#",           "-",     "+",         "!",        "?",
            "?ONLINE",     "!ONLINE",     "!OFFLINE",   "!STATUS",     "!BUZZ", "!USER",     "!TYPING",  "?AVATARHEAD",
            "!AVATARHEAD", "?AVATARBODY", "!AVATAROFF", "!AVATARBODY", "!MOOD", "!LIVETYPE", "?CONF",    "!CONF",
            "INVITE #",    "USERS #",     "LEAVE #",    "CLOSE #",     "AGREE", "DENY",      "10.0.0.2", "7",
            "32767",       "32768",       "\r\n",       "\t",          "\0"s,   "\xff"};
        std::string bytes;
        for (std::size_t left = upTo(8); left > 0; --left)
            bytes += pieces[upTo(pieces.size() - 1)];
        return bytes;
    }

    std::vector<Datagram> oneOfEachKind()
    {
        return {OnlineQuestion{identity()},
                OnlineAnswer{identity()},
                Offline{identity()},
                Status{anyWord(12), anyBytes(40)},
                Buzz{},
                SharedContact{identity()},
                Typing{},
                AvatarHeadQuestion{},
                AvatarHead{anyBytes(40)},
                AvatarBodyQuestion{},
                AvatarOff{},
                AvatarBody{anyBytes(200)},
                Mood{anyBytes(12)},
                LiveType{anyBytes(200)},
                ConferenceInvitation{number()},
                ConferenceListQuestion{number()},
                ConferenceAnswer{number(), upTo(1) == 0},
                ConferenceList{number(), addresses()},
                ConferenceLeave{number()},
                ConferenceClose{number()},
                PrivateMessage{anyBytes(200)},
                ConferenceMessage{anyWord(16), number(), anyBytes(200)}};
    }

private:
    std::optional<Identity> identity()
    {
        if (upTo(9) == 0)
            return std::nullopt;
        return Identity{anyWord(16), anyWord(16), anyBytes(40)};
    }

    ConferenceNumber number()
    {
        using Limits = std::numeric_limits<ConferenceNumber>;
        return std::uniform_int_distribution<ConferenceNumber>(Limits::min(), Limits::max())(m_random);
    }

    std::vector<std::string> addresses()
    {
        std::vector<std::string> all(upTo(8));
        for (std::string &address : all)
            address = anyWord(15) + "x";
        return all;
    }

    std::mt19937 m_random;
};

TEST(DatagramRoundTrip, EveryDatagramWithWellFormedFieldsComesBackEqual)
{
    Maker make(20240229);
    for (int round = 0; round < 2000; ++round) {
        for (const Datagram &made : make.oneOfEachKind())
            ASSERT_EQ(parse(serialise(made)), made) << "round " << round;
    }
}

TEST(DatagramRoundTrip, WhateverArrivesIsWrittenInAFormThatMeansTheSame)
{
    Maker make(19991231);
    std::set<std::size_t> seen;
    for (int round = 0; round < 50000; ++round) {
        const std::string bytes = make.almostADatagram();
        const Datagram meant = parse(bytes);
        seen.insert(meant.index());
        ASSERT_EQ(parse(serialise(meant)), meant) << testing::PrintToString(bytes);
    }
    EXPECT_THAT(seen, SizeIs(std::variant_size_v<Datagram>)) << "the pieces no longer reach every kind";
}

TEST(DatagramRoundTrip, BytesOfNoKnownKindAreKeptAsTheyCame)
{
    Maker make(4711);
    for (int round = 0; round < 5000; ++round) {
        const std::string bytes = make.anyBytes(60);
        const Datagram meant = parse(bytes);
        if (std::holds_alternative<Garbage>(meant) || std::holds_alternative<Unsupported>(meant)
            || std::holds_alternative<Incomplete>(meant)) {
            ASSERT_EQ(serialise(meant), bytes);
        }
    }
}

} // namespace
