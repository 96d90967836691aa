#include "copy.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(PortWatch, ATakenPortIsSaidInTheLogAndTheStatusBar)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}, .portTaken = true});
    EXPECT_EQ(copy.view.log.lines().size(), 2u);
    EXPECT_THAT(copy.view.log.lastLine(), HasSubstr("Port 5549 is used by another program"));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x0000FFu);
    EXPECT_EQ(copy.view.trouble, QStringLiteral("Port 5549 is taken"));
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST(PortWatch, TriesAgainEveryFiveSecondsAndThenAnnounces)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}, .portTaken = true});
    copy.advance(14999ms);
    EXPECT_EQ(copy.view.log.lines().size(), 2u);
    copy.socket.portTaken = false;
    EXPECT_FALSE(copy.socket.isBound());
    copy.advance(1ms);
    EXPECT_TRUE(copy.socket.isBound());
    EXPECT_EQ(copy.view.trouble, QString());
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!STATUS Online"}));
    copy.advance(60000ms);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST(PortWatch, AnnouncesNobodyWhoIsInvisible)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}, .portTaken = true});
    copy.engine.ownState().choose(4);
    copy.socket.portTaken = false;
    copy.advance(5000ms);
    EXPECT_TRUE(copy.socket.isBound());
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST(PortWatch, SaysWhatKeepsItFromListening)
{
    Copy copy({.portTaken = true, .loaded = false});
    copy.socket.failure = BindFailure::addressNotHere;
    copy.engine.mainWindow().Form_Load();
    EXPECT_THAT(copy.view.log.lastLine(), HasSubstr("does not have the address"));
    EXPECT_EQ(copy.view.trouble, QStringLiteral("No port 5549"));
    Copy other({.portTaken = true, .loaded = false});
    other.socket.failure = BindFailure::notAllowed;
    other.engine.mainWindow().Form_Load();
    EXPECT_THAT(other.view.log.lastLine(), HasSubstr("does not let NIMB-Chat use port 5549"));
}

TEST(PortWatch, NamesThePortOfThisRunWhateverIsChosenForTheNextOne)
{
    Copy copy({.portTaken = true});
    copy.common.udpPort = 6000;
    copy.socket.portTaken = false;
    copy.advance(5000ms);
    EXPECT_THAT(copy.view.log.lastLine(), HasSubstr("Port 5549 is free now"));
}

TEST(PortWatch, SaysNothingWhenThePortIsFree)
{
    Copy copy;
    EXPECT_EQ(copy.view.log.lines().size(), 1u);
    EXPECT_EQ(copy.view.trouble, QString());
}

} // namespace
} // namespace nimb::test
