#include "copy.h"

#include "notify/notify_slide.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// A screen of 1024 by 768 pixels and a window of 200 by 100.
class RecorderNotifyView : public NotifyView
{
public:
    Measures measures() const override { return now; }
    void SetWindowPos(int left, int top) override { places.emplace_back(left, top); }

    Measures now{15360, 11520, 3000, 1500};
    std::vector<std::pair<int, int>> places;
};

class NotifySlideTest : public testing::Test
{
protected:
    using Place = std::pair<int, int>;
    NotifySlideTest() { slide.Form_Load(view); }

    void happen(const char *text)
    {
        slide.add({QLatin1String(text), Presence::online, Ipv4Address(10, 0, 0, 2)});
        slide.startTimer();
    }
    Place place() const { return view.places.back(); }
    std::vector<std::string> rows()
    {
        std::vector<std::string> texts;
        for (int row = 0; row < slide.list().rowCount(); ++row)
            texts.push_back(slide.list().index(row).data().toString().toStdString());
        return texts;
    }

    // 15360 - 3000 - 120 = 12240 twips from the left; parked at 11520 + 120, risen at 11520 - 1500 - 240.
    static constexpr Place parked{816, 776}, risen{816, 652};
    /// From 11640 to 9780 twips at 20 twips a step, and one more step to notice it.
    static constexpr std::chrono::milliseconds rising = 93 * 10ms + 10ms;
    VirtualTime time;
    Common common;
    RecorderNotifyView view;
    NotifySlide slide{common, time};
};

TEST_F(NotifySlideTest, IsParkedBelowTheScreenWhenItIsLoaded)
{
    EXPECT_THAT(view.places, ElementsAre(parked));
    EXPECT_FALSE(time.nextDue()) << "a timer runs";
}

TEST_F(NotifySlideTest, RisesTwentyTwipsEveryTenMilliseconds)
{
    happen("Ann is online");
    time.advance(9ms);
    EXPECT_EQ(place(), parked);
    time.advance(1ms);
    EXPECT_EQ(place(), Place(816, 774)); // 11620 twips, truncated
    time.advance(10ms);
    EXPECT_EQ(place(), Place(816, 773)); // 11600
    time.advance(10ms);
    EXPECT_EQ(place(), Place(816, 772)); // 11580
}

TEST_F(NotifySlideTest, ComesToRestWithItsBottomAboveTheScreensEdge)
{
    happen("Ann is online");
    time.advance(rising - 10ms);
    EXPECT_EQ(place(), risen);
    const std::size_t moves = view.places.size();
    time.advance(10ms);
    EXPECT_EQ(view.places.size(), moves + 1) << "arriving is a move as well";
    time.advance(1000ms);
    EXPECT_EQ(place(), risen);
    EXPECT_EQ(view.places.size(), moves + 1) << "it goes on moving";
}

TEST_F(NotifySlideTest, FiveSecondsAfterItsArrivalItIsEmptiedAndGone)
{
    happen("Ann is online");
    time.advance(rising + 4999ms);
    EXPECT_EQ(place(), risen);
    EXPECT_THAT(rows(), ElementsAre("Ann is online"));
    time.advance(1ms);
    EXPECT_EQ(place(), parked);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(time.nextDue()) << "a timer still runs";
}

TEST_F(NotifySlideTest, ASecondEventThreeSecondsLaterKeepsItForFiveMore)
{
    happen("Ann is online");
    time.advance(rising + 3000ms);
    happen("Ben is offline");
    time.advance(10ms + 4999ms);
    EXPECT_EQ(place(), risen);
    EXPECT_THAT(rows(), ElementsAre("Ann is online", "Ben is offline"));
    time.advance(1ms);
    EXPECT_EQ(place(), parked);
}

TEST_F(NotifySlideTest, WhatComesInTheLastMomentIsShown)
{
    happen("Ann is online");
    time.advance(rising + 4995ms);
    happen("Ben is offline");
    time.advance(10ms);
    EXPECT_EQ(place(), risen);
    EXPECT_THAT(rows(), ElementsAre("Ann is online", "Ben is offline"));
    time.advance(5000ms);
    EXPECT_EQ(place(), parked);
}

TEST_F(NotifySlideTest, EventsWhileItRisesDoNotDelayIt)
{
    for (std::chrono::milliseconds passed = 0ms; passed < rising; passed += 4ms) {
        happen("Ann is online");
        time.advance(4ms);
    }
    EXPECT_EQ(place(), risen);
}

TEST_F(NotifySlideTest, HideDismissesItAtOnceShownOrRising)
{
    happen("Ann is online");
    time.advance(rising + 100ms);
    slide.closebtn_Click();
    EXPECT_EQ(place(), parked);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(time.nextDue());
    happen("Ben is online");
    time.advance(300ms);
    slide.closebtn_Click();
    EXPECT_EQ(place(), parked);
    EXPECT_FALSE(time.nextDue());
}

TEST_F(NotifySlideTest, WhileItIsSwitchedOffItNeverRisesAndKeepsNothing)
{
    common.options.notifyWindow = false;
    for (int i = 0; i < 1000; ++i)
        happen("Ann is online");
    EXPECT_THAT(rows(), testing::SizeIs(100));
    time.advance(10ms);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(time.nextDue()) << "a timer still runs";
    EXPECT_THAT(view.places, ElementsAre(parked));
}

TEST_F(NotifySlideTest, SwitchedOffWhileItIsShownItGoesInTheEnd)
{
    happen("Ann is online");
    time.advance(rising + 4995ms);
    common.options.notifyWindow = false;
    happen("Ben is online");
    time.advance(10ms);
    EXPECT_EQ(place(), parked);
    EXPECT_FALSE(time.nextDue());
}

TEST_F(NotifySlideTest, SwitchedOffWhileItRisesItParks)
{
    happen("Ann is online");
    time.advance(300ms);
    ASSERT_NE(place(), parked);
    common.options.notifyWindow = false;
    time.advance(10ms);
    EXPECT_EQ(place(), parked);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(time.nextDue()) << "a timer still runs";
}

TEST_F(NotifySlideTest, SwitchedOffWhileItIsShownItParksWithTheNextEvent)
{
    happen("Ann is online");
    time.advance(rising + 1000ms);
    common.options.notifyWindow = false;
    happen("Ben is online");
    time.advance(10ms);
    EXPECT_EQ(place(), parked) << "an empty window stands there";
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(time.nextDue()) << "a timer still runs";
}

TEST_F(NotifySlideTest, KeepsTheNewestHundredRows)
{
    for (int i = 1; i <= 105; ++i)
        slide.add({QStringLiteral("N%1 is online").arg(i), Presence::online,
                   Ipv4Address(10, 0, 0, static_cast<std::uint8_t>(i))});
    EXPECT_EQ(slide.list().rowCount(), 100);
    EXPECT_EQ(slide.list().index(0).data().toString(), QStringLiteral("N6 is online"));
    EXPECT_EQ(slide.list().index(99).data(Qt::UserRole + 1).toString(), QStringLiteral("10.0.0.105"));
    EXPECT_EQ(slide.list().index(99).data(Qt::UserRole + 2).toString(), QStringLiteral("green"));
}

class NotifySlideNotices : public NotifySlideTest
{
protected:
    static NoticePlace from(std::uint8_t last) { return {NoticeWindow::privateChat, Ipv4Address(10, 0, 0, last)}; }
    void show(std::uint8_t sender, const char *line)
    {
        slide.show({.place = from(sender), .line = QString::fromUtf8(line), .picture = QStringLiteral("message")});
    }
};

TEST_F(NotifySlideNotices, ANoticeRisesWithItsLineAndPicture)
{
    show(2, "Ann: hello");
    time.advance(rising);
    EXPECT_EQ(place(), risen);
    EXPECT_THAT(rows(), ElementsAre("Ann: hello"));
    EXPECT_EQ(slide.list().index(0).data(Qt::UserRole + 2).toString(), QStringLiteral("message"));
    EXPECT_EQ(slide.list().placeOf(0), from(2));
}

TEST_F(NotifySlideNotices, ANewerNoticeOfTheSamePlaceTakesTheEndOfTheList)
{
    show(2, "Ann: hello");
    happen("Ann is offline");
    show(3, "Ben: hi");
    show(2, "Ann (2): are you there?");
    EXPECT_THAT(rows(), ElementsAre("Ann is offline", "Ben: hi", "Ann (2): are you there?"));
}

TEST_F(NotifySlideNotices, AWindowWithoutAnythingLeftGoesAtOnce)
{
    show(2, "Ann: hello");
    show(3, "Ben: hi");
    time.advance(rising);
    slide.withdraw(from(2));
    EXPECT_EQ(place(), risen);
    EXPECT_THAT(rows(), ElementsAre("Ben: hi"));
    slide.withdraw(from(3));
    EXPECT_EQ(place(), parked);
    EXPECT_FALSE(time.nextDue()) << "a timer still runs";
}

TEST_F(NotifySlideNotices, WhatIsNotThereIsNotWithdrawn)
{
    happen("Ann is online");
    time.advance(rising);
    slide.withdraw(from(2));
    slide.withdraw({NoticeWindow::main, Ipv4Address(10, 0, 0, 2)});
    EXPECT_EQ(place(), risen);
    EXPECT_THAT(rows(), ElementsAre("Ann is online"));
}

TEST_F(NotifySlideNotices, AfterItsWindowIsGoneANoticeMovesNothing)
{
    slide.Form_Unload();
    show(2, "Ann: hello");
    slide.withdraw(from(2));
    time.advance(10000ms);
    EXPECT_THAT(view.places, ElementsAre(parked));
}

TEST_F(NotifySlideTest, AnotherResolutionBetweenTwoEventsIsPickedUp)
{
    view.now.screenWidth = 19200; // 1280 pixels
    happen("Ann is online");
    time.advance(10ms);
    EXPECT_EQ(place().first, 1280 - 200 - 8);
}

TEST_F(NotifySlideTest, AParkedOrShownWindowFollowsTheScreen)
{
    view.now = {19200, 15360, 3000, 1500}; // 1280 by 1024 pixels
    slide.screenChanged();
    EXPECT_EQ(place(), Place(1072, 1032));
    happen("Ann is online");
    time.advance(1500ms);
    EXPECT_EQ(place(), Place(1072, 908));
    view.now = {15360, 11520, 3000, 1500};
    slide.screenChanged();
    EXPECT_EQ(place(), risen);
}

TEST_F(NotifySlideTest, AfterItsWindowIsGoneNothingMoves)
{
    happen("Ann is online");
    slide.Form_Unload();
    happen("Ben is online");
    slide.screenChanged();
    time.advance(10000ms);
    EXPECT_THAT(view.places, ElementsAre(parked));
}

} // namespace
} // namespace nimb::test
