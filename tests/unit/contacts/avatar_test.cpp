#include "copy.h"

#include "base/picture_source.h"

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

/// Frames that a test hands out.
class FrameSource : public PictureSource
{
public:
    struct State {
        std::optional<QByteArray> frame;
        std::optional<QString> problem;
    };
    explicit FrameSource(State &state) : m_state(state) { }
    std::optional<QByteArray> frame() override { return m_state.frame; }
    std::optional<QString> problem() const override { return m_state.problem; }
    PolledPicture origin() const override { return Camera{}; }

private:
    State &m_state;
};

class AvatarTest : public testing::Test
{
protected:
    AvatarTest()
    {
        copy.settleStart({"10.0.0.2"});
        copy.common.avatarHead = QStringLiteral("14.05.2026 10:00");
        copy.common.avatarBody = still;
    }
    void openWindow()
    {
        copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
        copy.sent();
    }
    test::RecorderPrivateView &window() { return copy.window(1); }
    const Avatar &kept(const char *ip = "10.0.0.2") { return copy.engine.avatars().of(QString::fromLatin1(ip)); }

    const QByteArray still = QByteArray(7500, 'a');
    Copy copy{CopySetup{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}}};
};

TEST_F(AvatarTest, PicturesOfStrangersAreBoundedAndThoseOfOthersAreNot)
{
    const std::string body = "!AVATARBODY " + std::string(7500, 'x');
    const auto address = [](int i) { return "10.1." + std::to_string(i / 250) + '.' + std::to_string(i % 250 + 1); };
    const auto introduce = [&](int i) { copy.arrive(address(i).c_str(), "!ONLINE " + address(i) + " PC N"); };
    for (int i = 0; i < 1001; ++i) {
        introduce(i);
        copy.arrive(address(i).c_str(), body);
    }
    EXPECT_THAT(kept(address(999).c_str()).body, SizeIs(7500));
    EXPECT_THAT(kept(address(1000).c_str()).body, SizeIs(0));
    EXPECT_EQ(copy.drops.of(Drop::tooManyAvatars), 1u);
    copy.arrive(address(7).c_str(), body);
    EXPECT_EQ(copy.drops.of(Drop::tooManyAvatars), 1u) << "a new one takes the place of the old one";
    copy.arrive("10.0.0.2", body);
    EXPECT_THAT(kept().body, SizeIs(7500)) << "whom the user knows";
    copy.arrive(address(8).c_str(), "!AVATAROFF");
    copy.arrive(address(1000).c_str(), body);
    EXPECT_THAT(kept(address(1000).c_str()).body, SizeIs(7500)) << "who has none any more leaves room";
    introduce(1001);
    copy.arrive(address(1001).c_str(), "-hello");
    copy.arrive(address(1001).c_str(), body);
    EXPECT_THAT(kept(address(1001).c_str()).body, SizeIs(7500)) << "who has a window";
    EXPECT_EQ(copy.drops.of(Drop::tooManyAvatars), 1u);
}

TEST_F(AvatarTest, QuestionsAreAnsweredWithHeadAndBody)
{
    copy.arrive("10.0.0.2", "?AVATARHEAD");
    copy.arrive("10.0.0.2", "?AVATARBODY");
    EXPECT_THAT(copy.sent(),
                ElementsAre(To("10.0.0.2", "!AVATARHEAD 14.05.2026 10:00"),
                            To("10.0.0.2", "!AVATARBODY " + std::string(7500, 'a'))));
}

TEST_F(AvatarTest, WithoutAnAvatarBothQuestionsAreAnsweredOff)
{
    copy.common.avatarHead.clear();
    copy.arrive("10.0.0.2", "?AVATARHEAD");
    copy.arrive("10.0.0.2", "?AVATARBODY");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!AVATAROFF"), To("10.0.0.2", "!AVATAROFF")));
}

TEST_F(AvatarTest, TheHeadAloneSaysWhetherThereIsABody)
{
    copy.common.avatarBody.clear();
    copy.arrive("10.0.0.2", "?AVATARBODY");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!AVATARBODY ")));
}

TEST_F(AvatarTest, WhoIsInvisibleAnswersNeitherQuestion)
{
    copy.common.ownPresence.base = BaseState::invisible;
    copy.arrive("10.0.0.2", "?AVATARHEAD");
    copy.arrive("10.0.0.2", "?AVATARBODY");
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(AvatarTest, EveryHeadIsAnsweredByTheQuestionForItsBody)
{
    for (int time = 0; time < 2; ++time)
        copy.arrive("10.0.0.2", "!AVATARHEAD yesterday");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARBODY"), To("10.0.0.2", "?AVATARBODY")));
}

TEST_F(AvatarTest, IsKeptWithoutAWindowAndNumberedInItsRow)
{
    EXPECT_EQ(copy.contact("10.0.0.3").avatarNumber, QString());
    copy.arrive("10.0.0.3", "!AVATARHEAD today");
    copy.arrive("10.0.0.2", "!AVATARHEAD yesterday");
    copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, '\x7F'));
    EXPECT_EQ(copy.contact("10.0.0.3").avatarNumber, QStringLiteral("1"));
    EXPECT_EQ(copy.contact("10.0.0.2").avatarNumber, QStringLiteral("2"));
    EXPECT_EQ(kept().head, "yesterday");
    EXPECT_EQ(kept().body, QByteArray(7500, '\x7F'));
    EXPECT_THAT(copy.privateForms.views, IsEmpty());
}

TEST_F(AvatarTest, ItsBytesMayBeAnything)
{
    std::string bytes;
    for (int i = 0; i < 7500; ++i)
        bytes += static_cast<char>(i * 7 % 256);
    copy.arrive("10.0.0.2", "!AVATARHEAD x");
    copy.arrive("10.0.0.2", "!AVATARBODY " + bytes);
    EXPECT_EQ(kept().body.toStdString(), bytes);
}

TEST_F(AvatarTest, AWrongLengthIsKeptAsNoPicture)
{
    openWindow();
    copy.arrive("10.0.0.2", "!AVATARHEAD x");
    copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'b'));
    EXPECT_TRUE(window().picture);
    for (const std::size_t length : {0U, 7499U, 7501U, 60000U}) {
        copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(length, 'b'));
        EXPECT_FALSE(window().picture) << length;
        EXPECT_TRUE(kept().body.isEmpty());
        copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'b'));
        EXPECT_TRUE(window().picture);
    }
}

TEST_F(AvatarTest, EachBodyIsAChangeOfTheWindowEvenUnderTheSameHead)
{
    openWindow();
    copy.arrive("10.0.0.2", "!AVATARHEAD x");
    EXPECT_EQ(window().avatarChanges, 0) << "a head alone shows nothing";
    for (const char byte : {'b', 'c'}) {
        copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, byte));
        EXPECT_EQ(window().picture, QByteArray(7500, byte));
    }
    EXPECT_EQ(window().avatarChanges, 2);
    EXPECT_EQ(window().marker, QStringLiteral("x"));
}

TEST_F(AvatarTest, ABodyWithoutAHeadIsNotShown)
{
    openWindow();
    copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'b'));
    EXPECT_FALSE(window().picture);
    EXPECT_EQ(window().marker, QString());
}

TEST_F(AvatarTest, OffClearsThePicture)
{
    openWindow();
    copy.arrive("10.0.0.2", "!AVATARHEAD x");
    copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'b'));
    copy.arrive("10.0.0.2", "!AVATAROFF");
    EXPECT_FALSE(window().picture);
    EXPECT_EQ(window().marker, QString());
    EXPECT_TRUE(kept().head.empty());
}

TEST_F(AvatarTest, APolledPictureIsAskedForUntilAStillOneComes)
{
    openWindow();
    const std::string body = "!AVATARBODY " + std::string(7500, 'b');
    copy.arrive("10.0.0.2", "!AVATARHEAD WEBCAM 1");
    copy.arrive("10.0.0.2", body);
    copy.sent();
    copy.advance(1099ms);
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.advance(1ms);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARHEAD")));
    copy.arrive("10.0.0.2", "!AVATARHEAD WEBCAM 2");
    copy.arrive("10.0.0.2", body);
    copy.sent();
    copy.advance(2200ms);
    EXPECT_THAT(copy.sent(), SizeIs(2)) << "polling goes on, also when an answer is lost";
    copy.arrive("10.0.0.2", "!AVATARHEAD still");
    copy.arrive("10.0.0.2", body);
    copy.sent();
    copy.advance(60s);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(AvatarTest, PollingEndsWithOffAndWithTheWindow)
{
    openWindow();
    const auto startPolling = [this] {
        copy.arrive("10.0.0.2", "!AVATARHEAD WEBCAM");
        copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'b'));
        copy.sent();
    };
    startPolling();
    copy.arrive("10.0.0.2", "!AVATAROFF");
    copy.advance(60s);
    EXPECT_THAT(copy.sent(), IsEmpty());
    startPolling();
    copy.engine.privateWindows().unloadAll();
    copy.advance(60s);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(AvatarTest, IsDroppedWithItsContact)
{
    copy.arrive("10.0.0.2", "!AVATARHEAD x");
    copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'b'));
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.2"));
    EXPECT_TRUE(kept().head.empty());
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    EXPECT_EQ(copy.contact("10.0.0.2").avatarNumber, QString());
    copy.arrive("10.0.0.2", "!AVATARHEAD y");
    EXPECT_EQ(copy.contact("10.0.0.2").avatarNumber, QStringLiteral("2")) << "numbers are not used again";
}

TEST_F(AvatarTest, NobodyPollsARemovedContact)
{
    openWindow();
    copy.arrive("10.0.0.2", "!AVATARHEAD WEBCAM");
    copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'b'));
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.2"));
    EXPECT_FALSE(window().picture);
    copy.sent();
    copy.advance(60s);
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_EQ(copy.engine.privateWindows().at(1)->Form_QueryUnload(UnloadMode::closeBox), CloseDecision::unload)
        << "hidden, it could never be found again";
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
    EXPECT_EQ(copy.engine.privateWindows().at(1)->Form_QueryUnload(UnloadMode::closeBox), CloseDecision::hide);
}

TEST_F(AvatarTest, WhoIsInvisibleAsksForThePictureOnlyOfAnAvatarThatTheUserWanted)
{
    copy.engine.ownState().choose(4);
    copy.sent();
    copy.arrive("10.0.0.2", "!AVATARHEAD 2026-11-21 10:00:00");
    EXPECT_EQ(kept().head, "2026-11-21 10:00:00");
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARHEAD")));
    copy.arrive("10.0.0.2", "!AVATARHEAD 2026-11-21 10:00:00");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARBODY")));
    copy.arrive("10.0.0.2", "!AVATARHEAD 2026-11-21 10:00:00");
    EXPECT_THAT(copy.sent(), IsEmpty()) << "one question, one answer";
}

TEST_F(AvatarTest, WhoIsInvisibleDoesNotPollAMovingPicture)
{
    copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
    copy.arrive("10.0.0.2", "!AVATARHEAD WEBCAM1");
    copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'x'));
    copy.sent();
    copy.advance(1100ms);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARHEAD")));
    copy.engine.ownState().choose(4);
    copy.sent();
    copy.advance(1100ms);
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.engine.ownState().choose(1);
    copy.advance(0ms);
    copy.sent();
    copy.advance(1100ms);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARHEAD")));
}

TEST_F(AvatarTest, AContactGetsThePictureOnceASecond)
{
    copy.common.avatarHead = QStringLiteral("mine");
    copy.common.avatarBody = QByteArray(7500, 'm');
    const To body("10.0.0.2", "!AVATARBODY " + std::string(7500, 'm'));
    for (int i = 0; i < 1000; ++i)
        copy.arrive("10.0.0.2", "?AVATARBODY");
    EXPECT_THAT(copy.sent(), ElementsAre(body));
    EXPECT_EQ(copy.drops.of(Drop::tooOften), 998u);
    copy.arrive("10.0.0.3", "?AVATARBODY");
    EXPECT_EQ(copy.sent().size(), 1u) << "others are not concerned";
    copy.advance(999ms);
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.advance(1ms);
    EXPECT_THAT(copy.sent(), ElementsAre(body)) << "one of the further questions waited";
    copy.advance(10s);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(AvatarTest, AHugeHeadIsCut)
{
    copy.arrive("10.0.0.2", "!AVATARHEAD WEBCAM" + std::string(60000, 'x'));
    EXPECT_EQ(kept().head.size(), 255u);
}

TEST_F(AvatarTest, AWindowAsksForItWhenItOpensAndWhenItsPanelDoes)
{
    copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARHEAD")));
    copy.engine.privateWindows().at(1)->avatarWanted();
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARHEAD")));
}

class OwnPolledPicture : public AvatarTest
{
protected:
    OwnPolledPicture() { copy.engine.ownAvatar().setSource(std::make_unique<FrameSource>(source)); }
    std::string answer(const char *question)
    {
        copy.arrive("10.0.0.2", question);
        const std::vector<To> sent = copy.sent();
        return sent.size() == 1 ? sent.front().bytes : "(not one answer)";
    }

    FrameSource::State source{QByteArray(7500, 'f'), std::nullopt};
};

TEST_F(OwnPolledPicture, ReplacesTheStillOneWhileItIsOn)
{
    EXPECT_EQ(answer("?AVATARHEAD").substr(0, 18), "!AVATARHEAD WEBCAM");
    EXPECT_EQ(answer("?AVATARBODY"), "!AVATARBODY " + std::string(7500, 'f'));
    EXPECT_EQ(copy.common.avatarHead, QStringLiteral("14.05.2026 10:00")) << "what is saved stays the still one";
    copy.engine.ownAvatar().setSource(nullptr);
    copy.advance(1s);
    EXPECT_EQ(answer("?AVATARHEAD"), "!AVATARHEAD 14.05.2026 10:00");
    EXPECT_EQ(answer("?AVATARBODY"), "!AVATARBODY " + std::string(7500, 'a'));
}

TEST_F(OwnPolledPicture, EveryHeadHasItsFramesTime)
{
    const std::string first = answer("?AVATARHEAD");
    copy.advance(1100ms);
    EXPECT_NE(answer("?AVATARHEAD"), first);
}

TEST_F(OwnPolledPicture, TheBodyIsTheFrameOfTheLastHead)
{
    answer("?AVATARHEAD");
    source.frame = QByteArray(7500, 'g');
    EXPECT_EQ(answer("?AVATARBODY"), "!AVATARBODY " + std::string(7500, 'f'));
    copy.advance(1s);
    answer("?AVATARHEAD");
    EXPECT_EQ(answer("?AVATARBODY"), "!AVATARBODY " + std::string(7500, 'g'));
}

TEST_F(OwnPolledPicture, BeforeTheFirstFrameTheStillOneIsShown)
{
    source.frame.reset();
    EXPECT_EQ(answer("?AVATARHEAD"), "!AVATARHEAD 14.05.2026 10:00");
    source.frame = QByteArray(7499, 'x');
    EXPECT_EQ(answer("?AVATARHEAD"), "!AVATARHEAD 14.05.2026 10:00") << "half a frame is none";
}

TEST_F(OwnPolledPicture, AFailureIsSaidOnceAndTheStillOneReturns)
{
    answer("?AVATARHEAD");
    source.problem = QStringLiteral("The camera was unplugged.");
    EXPECT_EQ(answer("?AVATARHEAD"), "!AVATARHEAD 14.05.2026 10:00");
    EXPECT_EQ(answer("?AVATARBODY"), "!AVATARBODY " + std::string(7500, 'a'));
    EXPECT_EQ(copy.view.log.lastLine(), "The camera was unplugged.");
    EXPECT_FALSE(copy.engine.ownAvatar().source());
}

TEST_F(OwnPolledPicture, WithoutAStillOneAFailureTurnsTheAvatarOff)
{
    copy.common.avatarHead.clear();
    EXPECT_EQ(answer("?AVATARHEAD").substr(0, 18), "!AVATARHEAD WEBCAM");
    source.problem = QStringLiteral("The camera is busy.");
    EXPECT_EQ(answer("?AVATARHEAD"), "!AVATAROFF");
    EXPECT_EQ(answer("?AVATARBODY"), "!AVATAROFF");
}

TEST_F(OwnPolledPicture, IsNotShownToAnybodyWhileInvisible)
{
    copy.common.ownPresence.base = BaseState::invisible;
    EXPECT_EQ(answer("?AVATARHEAD"), "(not one answer)");
}

} // namespace
} // namespace nimb
