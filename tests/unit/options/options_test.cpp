#include "copy.h"

#include "options/options.h"

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

class OptionValuesTest : public testing::Test
{
protected:
    OptionValuesTest() { copy.settleStart({"10.0.0.2"}); }

    /// What the peer hears when it asks for the avatar.
    std::vector<To> answers()
    {
        copy.sent();
        copy.arrive("10.0.0.2", "?AVATARHEAD");
        return copy.sent();
    }
    Options &options() { return copy.common.options; }

    Copy copy{{.contacts = {{QStringLiteral("10.0.0.2"), QStringLiteral("Ann")}}}};
    RecorderPictureSources sources;
    RecorderAutostart autostart;
    OptionValues values{
        {.common = copy.common,
         .ownAvatar = copy.engine.ownAvatar(),
         .ownState = copy.engine.ownState(),
         .sources = sources,
         .clock = *copy.time,
         .ownAddresses = copy.ownAddresses,
         .autostart = autostart,
         .changeNickname = [this](const QString &name) { copy.engine.mainWindow().changeNickname(name); },
         .keepHistory = [this](KeepHistory keep) { copy.engine.history().choose(keep); },
         .taken = [this] { copy.engine.recovery().settingsChanged(); }}};
};

TEST_F(OptionValuesTest, AtFirstTheControlsShowTheDefaults)
{
    const OptionControls controls = values.Form_Load();
    EXPECT_TRUE(controls.options.presenceLines);
    EXPECT_FALSE(controls.options.playOwnBuzz);
    EXPECT_TRUE(controls.options.playReceivedBuzz);
    EXPECT_FALSE(controls.options.privateWindowsOnTop);
    EXPECT_FALSE(controls.options.closedWindowsGo);
    EXPECT_TRUE(controls.options.notifyWindow);
    EXPECT_TRUE(controls.options.liveType);
    EXPECT_FALSE(controls.options.closeBoxHides);
    EXPECT_EQ(controls.UDPPorttxt, QStringLiteral("5549"));
    EXPECT_EQ(controls.avatar, AvatarChoice::none);
    EXPECT_EQ(controls.font, LogFont());
}

TEST_F(OptionValuesTest, WhatIsTakenIsKeptWithinTwoSecondsAndWhatIsRefusedIsNot)
{
    copy.settleStart();
    OptionControls controls = values.Form_Load();
    controls.options.notifyWindow = false;
    controls.UDPPorttxt = QStringLiteral("none");
    EXPECT_TRUE(values.CmdOK_Click(controls));
    EXPECT_EQ(copy.time->nextDue(), std::nullopt);
    controls.UDPPorttxt = QStringLiteral("6000");
    EXPECT_FALSE(values.CmdOK_Click(controls));
    copy.advance(std::chrono::milliseconds(2000));
    EXPECT_EQ(copy.settings.kept.size(), 2u);
    EXPECT_EQ(copy.settings.read("Options", "NotifyWin", {}), QStringLiteral("0"));
    EXPECT_EQ(copy.settings.read("Settings", "UDPPort", {}), QStringLiteral("6000"));
    EXPECT_EQ(copy.settings.saves, 0);
}

TEST_F(OptionValuesTest, AnotherNicknameIsKeptAndToldAsAfterALogin)
{
    OptionControls controls = values.Form_Load();
    EXPECT_EQ(controls.nickname, copy.common.ownNickname);
    copy.sent();
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    EXPECT_THAT(copy.sent(), testing::IsEmpty()) << "it is the same";
    controls.nickname = QStringLiteral("Robert");
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    EXPECT_EQ(copy.view.shownCaption, QStringLiteral("NIMB-Chat 1.2 - Robert"));
    EXPECT_EQ(readSetting(copy.settings, QLatin1String("MyNickName")), QStringLiteral("Robert"));
    copy.advance(std::chrono::seconds(2));
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Robert"}, To{"10.0.0.2", "!STATUS Online"}));
    controls.nickname.clear();
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    EXPECT_EQ(copy.common.ownNickname, copy.common.ownHostName);
}

TEST_F(OptionValuesTest, WhoIsInvisibleChangesTheNicknameInSilence)
{
    copy.engine.ownState().choose(4);
    copy.sent();
    OptionControls controls = values.Form_Load();
    controls.nickname = QStringLiteral("Robert");
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    copy.advance(std::chrono::seconds(2));
    EXPECT_THAT(copy.sent(), testing::IsEmpty());
}

TEST_F(OptionValuesTest, TheDesktopStartsTheProgramUnderTheNicknameThatIsChosen)
{
    OptionControls controls = values.Form_Load();
    EXPECT_FALSE(controls.startsWithDesktop);
    controls.startsWithDesktop = true;
    EXPECT_FALSE(values.CmdOK_Click(controls));
    EXPECT_EQ(autostart.nickname, copy.common.ownNickname);
    controls = values.Form_Load();
    EXPECT_TRUE(controls.startsWithDesktop);
    controls.nickname = QStringLiteral("Somebody else");
    EXPECT_FALSE(values.CmdOK_Click(controls));
    EXPECT_EQ(autostart.nickname, QStringLiteral("Somebody else"));
    controls.startsWithDesktop = false;
    EXPECT_FALSE(values.CmdOK_Click(controls));
    EXPECT_FALSE(autostart.isOn());
}

TEST_F(OptionValuesTest, WhereTheDesktopCannotBeToldNothingIsTaken)
{
    autostart.problem = QStringLiteral("Permission denied");
    OptionControls controls = values.Form_Load();
    controls.startsWithDesktop = true;
    controls.options.liveType = false;
    EXPECT_EQ(values.CmdOK_Click(controls),
              QStringLiteral("Starting with the desktop cannot be changed: Permission denied"));
    EXPECT_TRUE(options().liveType);
}

TEST_F(OptionValuesTest, RemovedStatesAreGone)
{
    OwnState &state = copy.engine.ownState();
    for (const char *text : {"Lunch", "Meeting", "Home"})
        EXPECT_TRUE(state.addPersonalized(BaseState::away, QString::fromLatin1(text)));
    EXPECT_EQ(values.states(), QStringList({"Away - Lunch", "Away - Meeting", "Away - Home"}));
    OptionControls controls = values.Form_Load();
    controls.removedStates = {0, 2};
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    EXPECT_EQ(values.states(), QStringList("Away - Meeting"));
}

TEST_F(OptionValuesTest, EveryOptionIsShownAsItIsAndTakenAsItWasChosen)
{
    for (const OptionRow &row : optionRows) {
        for (const bool chosen : {true, false}) {
            OptionControls controls = values.Form_Load();
            controls.options.*row.member = chosen;
            EXPECT_FALSE(values.CmdOK_Click(controls));
            EXPECT_EQ(bool(options().*row.member), chosen) << row.key;
            EXPECT_EQ(bool(values.Form_Load().options.*row.member), chosen) << row.key;
        }
    }
}

TEST_F(OptionValuesTest, ThePortIsThatOfTheNextStart)
{
    OptionControls controls = values.Form_Load();
    for (const auto &[text, port] : {std::pair("1", 1), {"65535", 65535}, {" 6000 ", 6000}, {"05549", 5549}}) {
        controls.UDPPorttxt = QLatin1String(text);
        EXPECT_FALSE(values.CmdOK_Click(controls)) << text;
        EXPECT_EQ(copy.common.udpPort, port);
    }
    EXPECT_EQ(copy.socket.localPort, 5549);
}

TEST_F(OptionValuesTest, TheOwnCardIsThatOfTheNextStart)
{
    copy.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1)},
                                 {QStringLiteral("tun0"), Ipv4Address(10, 8, 0, 2)},
                                 {QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 77)}};
    const auto captions = [this] {
        std::vector<std::string> list;
        for (const OptionValues::Card &card : values.cards())
            list.push_back(card.caption.toStdString());
        return list;
    };
    EXPECT_THAT(captions(), ElementsAre("automatic", "eth0 (10.0.0.1)", "tun0 (10.8.0.2)"));
    OptionControls controls = values.Form_Load();
    EXPECT_EQ(controls.ownCard, QString());
    controls.ownCard = QStringLiteral("tun0");
    EXPECT_FALSE(values.CmdOK_Click(controls));
    EXPECT_EQ(copy.common.ownCard, QStringLiteral("tun0"));
    EXPECT_EQ(copy.common.ownIP, Ipv4Address(10, 0, 0, 1)) << "not in this run";
    copy.ownAddresses.running.clear();
    EXPECT_THAT(captions(), ElementsAre("automatic", "tun0 (not connected)"));
}

TEST_F(OptionValuesTest, APortThatIsNoneIsSaidAndNothingIsTaken)
{
    OptionControls controls = values.Form_Load();
    controls.options.notifyWindow = false;
    controls.avatar = AvatarChoice::still;
    controls.loaded = QByteArray(7500, 'a');
    for (const char *const text : {"", "0", "65536", "-1", "5549x", "5 549", "5549.5", "99999999999999999999"}) {
        controls.UDPPorttxt = QLatin1String(text);
        EXPECT_EQ(values.CmdOK_Click(controls), QStringLiteral("The port must be a number from 1 to 65535.")) << text;
    }
    EXPECT_EQ(copy.common.udpPort, 5549);
    EXPECT_TRUE(options().notifyWindow);
    EXPECT_EQ(copy.common.avatarHead, QString());
}

TEST_F(OptionValuesTest, TheChosenFontIsTaken)
{
    OptionControls controls = values.Form_Load();
    controls.font = {QStringLiteral("DejaVu Serif"), 12, QStringLiteral("bi")};
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    EXPECT_EQ(copy.common.logFont, controls.font);
    EXPECT_EQ(values.Form_Load().font, controls.font);
}

TEST_F(OptionValuesTest, ALoadedPictureBecomesTheAvatarWithItsTime)
{
    OptionControls controls = values.Form_Load();
    controls.avatar = AvatarChoice::still;
    controls.loaded = QByteArray(7500, 'a');
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    EXPECT_EQ(copy.common.avatarBody, QByteArray(7500, 'a'));
    EXPECT_THAT(copy.common.avatarHead.toStdString(), HasSubstr("2026-11-21 14:05:1"));
    EXPECT_THAT(answers(), ElementsAre(To{"10.0.0.2", "!AVATARHEAD " + copy.common.avatarHead.toStdString()}));
    EXPECT_EQ(values.Form_Load().avatar, AvatarChoice::still);
}

TEST_F(OptionValuesTest, AnAvatarThatIsLeftAloneKeepsItsTime)
{
    copy.common.avatarHead = QStringLiteral("long ago");
    copy.common.avatarBody = QByteArray(7500, 'o');
    EXPECT_EQ(values.CmdOK_Click(values.Form_Load()), std::nullopt);
    EXPECT_EQ(copy.common.avatarHead, QStringLiteral("long ago"));
    EXPECT_EQ(copy.common.avatarBody, QByteArray(7500, 'o'));
}

TEST_F(OptionValuesTest, WithoutAPictureLoadedThereIsStillNoAvatar)
{
    OptionControls controls = values.Form_Load();
    controls.avatar = AvatarChoice::still;
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    EXPECT_EQ(copy.common.avatarHead, QString());
}

TEST_F(OptionValuesTest, NoAvatarEmptiesHeadAndPicture)
{
    copy.common.avatarHead = QStringLiteral("long ago");
    copy.common.avatarBody = QByteArray(7500, 'o');
    OptionControls controls = values.Form_Load();
    EXPECT_EQ(controls.avatar, AvatarChoice::still);
    controls.avatar = AvatarChoice::none;
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    EXPECT_EQ(copy.common.avatarHead, QString());
    EXPECT_TRUE(copy.common.avatarBody.isEmpty());
    EXPECT_THAT(answers(), ElementsAre(To{"10.0.0.2", "!AVATAROFF"}));
}

TEST_F(OptionValuesTest, APolledPictureStandsInForTheStillOne)
{
    copy.common.avatarHead = QStringLiteral("long ago");
    copy.common.avatarBody = QByteArray(7500, 'o');
    OptionControls controls = values.Form_Load();
    controls.avatar = AvatarChoice::polled;
    controls.polled = PictureFolder{QStringLiteral("/pictures")};
    EXPECT_FALSE(values.CmdOK_Click(controls));
    EXPECT_THAT(answers(), ElementsAre(testing::Field(&To::bytes, testing::StartsWith("!AVATARHEAD WEBCAM"))));
    EXPECT_EQ(copy.common.avatarHead, QStringLiteral("long ago"));
    controls = values.Form_Load();
    EXPECT_EQ(controls.avatar, AvatarChoice::polled);
    EXPECT_EQ(controls.polled, PolledPicture(PictureFolder{QStringLiteral("/pictures")}));
    EXPECT_FALSE(values.CmdOK_Click(controls));
    EXPECT_EQ(sources.opened, 1) << "one that runs already is not opened again";
    controls.avatar = AvatarChoice::still;
    EXPECT_EQ(values.CmdOK_Click(controls), std::nullopt);
    EXPECT_THAT(answers(), ElementsAre(To{"10.0.0.2", "!AVATARHEAD long ago"}));
}

TEST_F(OptionValuesTest, ASourceThatCannotWorkIsSaidAndNothingIsTaken)
{
    sources.problem = QStringLiteral("There is no camera.");
    OptionControls controls = values.Form_Load();
    controls.avatar = AvatarChoice::polled;
    controls.options.playReceivedBuzz = false;
    EXPECT_EQ(values.CmdOK_Click(controls), QStringLiteral("There is no camera."));
    EXPECT_TRUE(options().playReceivedBuzz);
    EXPECT_EQ(values.Form_Load().avatar, AvatarChoice::none);
}

} // namespace
} // namespace nimb::test
