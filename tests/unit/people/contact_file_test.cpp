#include "people/contact_file.h"

#include "print_qt.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using Entry = ContactFile::Entry;
using Fault = ContactFile::Fault;

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

std::vector<Entry> entriesOf(const QByteArray &bytes)
{
    const auto result = ContactFile::read(bytes);
    if (const auto *const faults = std::get_if<std::vector<Fault>>(&result)) {
        for (const Fault &fault : *faults)
            ADD_FAILURE() << "line " << fault.line << ": " << fault.reason.toStdString();
    }
    return std::holds_alternative<std::vector<Fault>>(result) ? std::vector<Entry>()
                                                              : std::get<std::vector<Entry>>(result);
}

std::vector<Fault> faultsOf(const QByteArray &bytes)
{
    const auto result = ContactFile::read(bytes);
    return std::holds_alternative<std::vector<Fault>>(result) ? std::get<std::vector<Fault>>(result)
                                                              : std::vector<Fault>();
}

/// The only one.
Fault faultOf(const QByteArray &bytes)
{
    const std::vector<Fault> faults = faultsOf(bytes);
    return faults.size() == 1 ? faults.front() : Fault{-1, {}};
}

ContactList &add(ContactList &contacts, const char *ip, const char *nickname, const char *workstation)
{
    EXPECT_TRUE(contacts.add({.nickname = text(nickname),
                              .workstation = text(workstation),
                              .ip = text(ip),
                              .presence = Presence::offline,
                              .sortKey = text(nickname),
                              .avatarNumber = {},
                              .state = {}}));
    return contacts;
}

QByteArray written(const ContactList &contacts)
{
    return ContactFile::write(ContactFile::entriesOf(contacts));
}

const QByteArray header("address,nickname,workstation\r\n");

TEST(ContactFile, HasAHeaderAndALineForEachContact)
{
    ContactList contacts;
    EXPECT_EQ(written(contacts), header);
    add(contacts, "10.0.0.2", "Ann Lee", "PC-ANN");
    add(contacts, "10.0.0.3", "\xD0\x91\xD0\xBE\xD1\x80\xD1\x8F", "PC-BORIS");
    EXPECT_EQ(written(contacts),
              header + "10.0.0.2,Ann Lee,PC-ANN\r\n10.0.0.3,\xD0\x91\xD0\xBE\xD1\x80\xD1\x8F,PC-BORIS\r\n");
}

TEST(ContactFile, QuotesWhatWouldBeMistaken)
{
    ContactList contacts;
    add(contacts, "10.0.0.2", "Lee, \"Ann\"", " PC");
    EXPECT_EQ(written(contacts), header + "10.0.0.2,\"Lee, \"\"Ann\"\"\",\" PC\"\r\n");
}

TEST(ContactFile, WhomNobodyElseWouldReachIsLeftOut)
{
    ContactList contacts;
    add(contacts, "pc-ann", "A name", "PC-ANN");
    add(contacts, "192.168.000.005", "B zeros", "PC");
    add(contacts, "127.0.0.1", "C myself", "HERE");
    add(contacts, "224.0.0.1", "D many", "ALL");
    add(contacts, "127.0.3.1", "E", "E");
    EXPECT_EQ(written(contacts), header + "127.0.3.1,E,E\r\n");
}

TEST(ContactFile, ReadsWhatItWrote)
{
    ContactList contacts;
    add(contacts, "10.0.0.2", "Lee, \"Ann\"", "PC-ANN");
    add(contacts, "10.0.0.3", "Zo\xC3\xAB", "PC;2");
    EXPECT_THAT(entriesOf(written(contacts)),
                ElementsAre(Entry{text("10.0.0.2"), text("Lee, \"Ann\""), text("PC-ANN"), 2},
                            Entry{text("10.0.0.3"), text("Zo\xC3\xAB"), text("PC;2"), 3}));
}

TEST(ContactFile, LinesMayEndAnyWayAndEmptyOnesDoNotCount)
{
    EXPECT_THAT(entriesOf("\xEF\xBB\xBF"
                          "Address,Nickname,Workstation\n10.0.0.2,Ann,A\n\n\n10.0.0.3,Ben,B"),
                ElementsAre(Entry{text("10.0.0.2"), text("Ann"), text("A"), 2},
                            Entry{text("10.0.0.3"), text("Ben"), text("B"), 5}));
    EXPECT_THAT(entriesOf(header), IsEmpty());
}

TEST(ContactFile, ANameOfTwoLinesBecomesOneAndCountsAsTwo)
{
    EXPECT_THAT(entriesOf(header + "10.0.0.2,\"Ann\r\nLee\",A\r\n10.0.0.3,Ben,B\r\n"),
                ElementsAre(Entry{text("10.0.0.2"), text("Ann Lee"), text("A"), 2},
                            Entry{text("10.0.0.3"), text("Ben"), text("B"), 4}));
}

TEST(ContactFile, TheFirstLineMustNameTheColumns)
{
    const Fault fault{1, text("it must be: address,nickname,workstation")};
    for (const char *const file :
         {"", "\xEF\xBB\xBF", "\r\n\r\n", "10.0.0.2,Ann,A\r\n", "address;nickname;workstation\r\n",
          "address,nickname\r\n", "address,nickname,workstation,more\r\n", "address,address,nickname\r\n",
          "address,nickname,\"workstation\"x\r\n"})
        EXPECT_EQ(faultOf(file), fault) << file;
    EXPECT_EQ(faultOf("\r\nname,ip,pc\r\n").line, 2);
}

TEST(ContactFile, TheColumnsMayStandInAnyOrder)
{
    EXPECT_THAT(entriesOf("Workstation, Nickname ,\"ADDRESS\"\r\nA,Ann,10.0.0.2\r\n"),
                ElementsAre(Entry{text("10.0.0.2"), text("Ann"), text("A"), 2}));
}

TEST(ContactFile, WhatIsMalformedIsNamedByItsLine)
{
    EXPECT_EQ(faultOf(header + "10.0.0.2,Ann,A\r\n10.0.0.3,Ben\r\n"), (Fault{3, text("it has not three fields")}));
    EXPECT_EQ(faultOf(header + "10.0.0.2,Ann,A,more\r\n"), (Fault{2, text("it has not three fields")}));
    EXPECT_EQ(faultOf(header + "pc-ann,Ann,A\r\n"), (Fault{2, text("\"pc-ann\" is not the address of one computer")}));
    EXPECT_EQ(faultOf(header + "224.0.0.1,Ann,A\r\n"),
              (Fault{2, text("\"224.0.0.1\" is not the address of one computer")}));
    EXPECT_EQ(faultOf(header + "10.0.0.2,,A\r\n"), (Fault{2, text("a name is empty")}));
    EXPECT_EQ(faultOf(header + "10.0.0.2,Ann,A\r\n10.0.0.2,Ben,B\r\n"), (Fault{3, text("10.0.0.2 was there before")}));
    EXPECT_EQ(faultOf(header + "10.0.0.2,An\"n,A\r\n"), (Fault{2, text("its quotation marks do not fit")}));
    EXPECT_EQ(faultOf(header + "10.0.0.2,\"Ann\"x,A\r\n"), (Fault{2, text("its quotation marks do not fit")}));
    EXPECT_EQ(faultOf(header + "10.0.0.2,\"Ann,A\r\n"), (Fault{2, text("its quotation marks do not fit")}));
}

TEST(ContactFile, WhatIsNotUtf8IsRefusedAsAWhole)
{
    EXPECT_EQ(faultOf(header + "10.0.0.2,Zo\xEB,A\r\n"), (Fault{0, text("it is not written in UTF-8")}));
}

TEST(ContactFileTest, EveryFaultIsFoundUpToQuotationMarksThatDoNotFit)
{
    const QByteArray lines
        = "10.0.0.2,,A\r\n10.0.0.3,Ben,B\r\npc,Cid,C\r\n10.0.0.4,Dan\r\n10.0.0.5,D\"an,D\r\n10.0.0.6,,F\r\n";
    EXPECT_THAT(faultsOf(header + lines),
                testing::ElementsAre(
                    Fault{2, text("a name is empty")}, Fault{4, text("\"pc\" is not the address of one computer")},
                    Fault{5, text("it has not three fields")}, Fault{6, text("its quotation marks do not fit")}));
}

} // namespace
} // namespace nimb::test
