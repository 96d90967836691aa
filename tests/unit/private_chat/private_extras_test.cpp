#include "copy.h"

namespace nimb
{
namespace
{

using test::Copy;
using test::CopySetup;
using test::To;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using namespace std::chrono_literals;

/// A private window with Ann.
class PrivateExtras : public testing::Test
{
protected:
    explicit PrivateExtras(const char *liveType = "1")
        : copy{CopySetup{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}},
                         .settings = {{"Options/LiveType", QLatin1String(liveType)}}}}
    {
        copy.settleStart({"10.0.0.2"});
        copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
        copy.sent();
    }
    PrivateChat &chat() { return *copy.engine.privateWindows().at(1); }
    test::RecorderPrivateView &window() { return copy.window(1); }
    void type(const QString &text)
    {
        window().typed = text;
        chat().intext_Change(text);
    }

    Copy copy;
};

TEST_F(PrivateExtras, TypingIsNoticedEveryThirteenCharacters)
{
    window().liveTypeOn = false;
    for (int length = 1; length <= 12; ++length)
        type(QString(length, u'x'));
    EXPECT_THAT(copy.sent(), IsEmpty());
    type(QString(13, u'x'));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!TYPING")));
    type(QString(25, u'x'));
    EXPECT_THAT(copy.sent(), IsEmpty());
    type(QString(26, u'x'));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!TYPING")));
    copy.advance(60s);
    EXPECT_THAT(copy.sent(), IsEmpty()) << "without live type nothing else goes out";
}

TEST_F(PrivateExtras, LiveTextFollowsANoticeWithinItsInterval)
{
    type(QStringLiteral("what I am typing"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!TYPING")));
    window().typed = QStringLiteral("what I am typing now");
    copy.advance(749ms);
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.advance(1ms);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!LIVETYPE what I am typing now")));
    copy.advance(60s);
    EXPECT_THAT(copy.sent(), IsEmpty()) << "only a further notice brings more of it";
}

TEST_F(PrivateExtras, AnEmptiedBoxIsSentAsAnEmptyText)
{
    type(QStringLiteral("what I am typing"));
    type(QString());
    copy.sent();
    copy.advance(750ms);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!LIVETYPE ")));
}

TEST_F(PrivateExtras, ALongTextIsSentWithItsEndOnOneLine)
{
    QString text;
    for (int line = 0; line < 50; ++line)
        text += QStringLiteral("line %1\r\n").arg(line, 3);
    type(text);
    copy.sent();
    copy.advance(750ms);
    const std::vector<To> sent = copy.sent();
    ASSERT_THAT(sent, SizeIs(1));
    EXPECT_EQ(sent.front().bytes.size(), std::string("!LIVETYPE ").size() + 199);
    EXPECT_EQ(sent.front().bytes.substr(sent.front().bytes.size() - 17), "line  48 line  49");
}

TEST_F(PrivateExtras, SwitchedOffBeforeTheIntervalEndsItWaitsUntilItIsOnAgain)
{
    type(QStringLiteral("what I am typing"));
    copy.sent();
    window().liveTypeOn = false;
    chat().livetypebtn_Click();
    copy.advance(60s);
    EXPECT_THAT(copy.sent(), IsEmpty());
    window().liveTypeOn = true;
    chat().livetypebtn_Click();
    copy.advance(750ms);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!LIVETYPE what I am typing")));
    EXPECT_EQ(window().inputFocused, 2);
}

TEST_F(PrivateExtras, SwitchedOnLaterItWaitsForTheNextNotice)
{
    window().liveTypeOn = false;
    type(QStringLiteral("what I am typing"));
    window().liveTypeOn = true;
    chat().livetypebtn_Click();
    copy.sent();
    copy.advance(60s);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(PrivateExtras, LiveTypeBeginsAsTheOptionSays)
{
    EXPECT_TRUE(window().liveTypeOn);
    for (const std::int16_t off : std::initializer_list<std::int16_t>{0, 2, -1}) {
        copy.common.options.liveType = Switch::ofNumber(off);
        copy.engine.privateWindows().unloadAll();
        copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
        EXPECT_FALSE(copy.privateForms.views.back()->liveTypeOn) << off;
    }
}

TEST_F(PrivateExtras, ReceivedLiveTextShowsUntilTheMessageComes)
{
    copy.arrive("10.0.0.2", "!LIVETYPE how\r\nare\tyou");
    EXPECT_EQ(window().liveType, QStringLiteral("how are you"));
    copy.arrive("10.0.0.2", "!LIVETYPE ");
    EXPECT_EQ(window().liveType, QString());
    copy.arrive("10.0.0.2", "!LIVETYPE how");
    copy.arrive("10.0.0.2", "-how are you");
    EXPECT_EQ(window().liveType, QString());
}

TEST_F(PrivateExtras, LiveTextGoesWithWhoeverGoes)
{
    copy.arrive("10.0.0.2", "!LIVETYPE how");
    copy.arrive("10.0.0.2", "!STATUS AWAY");
    EXPECT_EQ(window().liveType, QStringLiteral("how")) << "whoever is away is there";
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC-ANN Ann");
    EXPECT_EQ(window().liveType, QString());
    const int hidden = window().liveTypeHidden;
    copy.advance(31s);
    EXPECT_EQ(window().liveTypeHidden, hidden) << "there is nothing whose age is measured";
}

TEST_F(PrivateExtras, LiveTextGoesWithAContactThatIsRemoved)
{
    copy.arrive("10.0.0.2", "!LIVETYPE how");
    chat().setContact(false);
    EXPECT_EQ(window().liveType, QString());
}

TEST_F(PrivateExtras, WithoutAWindowLiveTextAndMoodAreDropped)
{
    copy.arrive("10.0.0.3", "!LIVETYPE hello");
    copy.arrive("10.0.0.3", "!MOOD 12");
    EXPECT_THAT(copy.privateForms.views, SizeIs(1)) << "they open no window";
    EXPECT_EQ(copy.drops.of(Drop::noWindow), 2u);
}

TEST_F(PrivateExtras, TheBuzzButtonSendsLogsAndReturnsToTheInput)
{
    chat().BuzzBtn_Click();
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!BUZZ")));
    EXPECT_EQ(window().log.lastLine(), "BUZZ!");
    EXPECT_EQ(window().log.colourOfLastPiece(), 0x808080u);
    EXPECT_EQ(window().inputFocused, 1);
    EXPECT_EQ(copy.sound.alarms, 0);
    EXPECT_EQ(window().peerActivity, QString());
}

TEST_F(PrivateExtras, TheOwnBuzzIsHeardWhereThatIsOnAndNotMuted)
{
    copy.common.options.playOwnBuzz = true;
    chat().BuzzBtn_Click();
    EXPECT_EQ(copy.sound.alarms, 1);
    copy.common.buzzmute = true;
    chat().BuzzBtn_Click();
    EXPECT_EQ(copy.sound.alarms, 1);
}

TEST_F(PrivateExtras, AClickOnTheGaugeSendsTheMood)
{
    chat().mymoodpct_MouseDown(40);
    chat().mymoodpct_MouseDown(12.5F);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!MOOD 40"), To("10.0.0.2", "!MOOD 12.5")));
    ASSERT_TRUE(window().ownMood);
    EXPECT_EQ(window().ownMood->name, QStringLiteral("Light green"));
    EXPECT_FALSE(window().peersMood);
    chat().mymoodpct_MouseDown(64);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(PrivateExtras, TheReceivedMoodIsRounded)
{
    copy.arrive("10.0.0.2", "!MOOD 3.5");
    EXPECT_EQ(window().peersMood->value, 4);
    copy.arrive("10.0.0.2", "!MOOD 2.5");
    EXPECT_EQ(window().peersMood->value, 2);
    copy.arrive("10.0.0.2", "!MOOD 0");
    EXPECT_EQ(window().peersMood->name, QStringLiteral("Perfect white"));
    copy.arrive("10.0.0.2", "!MOOD 63");
    EXPECT_EQ(window().peersMood->name, QStringLiteral("Black"));
}

TEST_F(PrivateExtras, AMoodOutsideTheScaleIsIgnored)
{
    copy.arrive("10.0.0.2", "!MOOD 7");
    for (const char *value : {"64", "-1", "99999", "1e30", "-0.6", "63.5"}) {
        copy.arrive("10.0.0.2", std::string("!MOOD ") + value);
        EXPECT_EQ(window().peersMood->value, 7) << value;
    }
}

} // namespace
} // namespace nimb
