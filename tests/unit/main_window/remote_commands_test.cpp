// What nimb-chatctl asks of the running copy.
#include "app/remote_commands.h"

#include "copy.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Ann and two who are called Ben are there, Cleo is offline.
class RemoteCommandsTest : public testing::Test
{
protected:
    RemoteCommandsTest()
    {
        copy.settleStart({"10.0.0.2", "10.0.0.3", "10.0.0.5"});
        copy.sent();
    }
    QJsonObject ask(const QJsonObject &command)
    {
        QByteArray answer;
        commands.carryOut(QJsonDocument(command).toJson(), [&answer](const QByteArray &given) { answer += given; });
        return QJsonDocument::fromJson(answer).object(); // two of them are none
    }
    /// What is said of it; "done" when it was.
    std::string answer(const QJsonObject &command)
    {
        const QJsonObject said = ask(command);
        return said[QLatin1String("status")].toInt(-1) == 0 ? "done"
                                                            : said[QLatin1String("sentence")].toString().toStdString();
    }
    std::string send(const QString &contact, const QString &text)
    {
        return answer({{"command", "send"}, {"contact", contact}, {"text", text}});
    }
    std::string status(const QString &state, const QString &text = {})
    {
        return answer({{"command", "status"}, {"state", state}, {"text", text}});
    }

    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}, {"10.0.0.4", "Cleo"}, {"10.0.0.5", "ben"}}}};
    int shown = 0, ended = 0;
    RemoteCommands commands{{copy.engine, [this] { ++shown; }, [this] { ++ended; }}};
};

TEST_F(RemoteCommandsTest, TellTheContacts)
{
    copy.arrive("10.0.0.2", "!STATUS AWAY Lunch");
    const QJsonArray contacts = ask({{"command", "contacts"}})[QLatin1String("contacts")].toArray();
    ASSERT_EQ(contacts.size(), 4);
    QJsonObject ann;
    for (const auto &entry : contacts) {
        if (entry.toObject()[QLatin1String("address")] == QLatin1String("10.0.0.2"))
            ann = entry.toObject();
    }
    EXPECT_EQ(ann[QLatin1String("name")].toString(), QStringLiteral("Ann"));
    EXPECT_EQ(ann[QLatin1String("presence")].toString(), QStringLiteral("away"));
    EXPECT_EQ(ann[QLatin1String("state")].toString(), QStringLiteral("AWAY - Lunch"));
    EXPECT_EQ(ann[QLatin1String("unread")].toInt(-1), 0);
}

TEST_F(RemoteCommandsTest, SendAMessageToWhoeverIsCalledSoOrHasThatAddress)
{
    EXPECT_EQ(send("ann", "done"), "done");
    EXPECT_EQ(send("10.0.0.3", "one\ntwo"), "done");
    EXPECT_EQ(send("10.0.0.3", "one\r\ntwo"), "done");
    std::vector<To> messages = copy.sent();
    std::erase_if(messages, [](const auto &datagram) { return !datagram.bytes.starts_with('-'); });
    EXPECT_THAT(messages,
                ElementsAre(To{"10.0.0.2", "-done"}, To{"10.0.0.3", "-one\r\ntwo"}, To{"10.0.0.3", "-one\r\ntwo"}));
}

TEST_F(RemoteCommandsTest, RefuseWhatCannotBeSentAndSayWhy)
{
    EXPECT_EQ(send("Dora", "x"), "No contact is called \"Dora\" or has this address.");
    EXPECT_THAT(send("Ben", "x"),
                HasSubstr("Several contacts are called \"Ben\": name one by its address (10.0.0.3, 10.0.0.5)"));
    EXPECT_EQ(send("Cleo", "x"), "Cleo is not online: nothing was sent.");
    EXPECT_EQ(send("Ann", " \n"), "There is no text to be sent.");
    EXPECT_EQ(send("Ann", QString(2001, u'x')),
              "A message holds 2000 characters, and this one has more: nothing was sent.");
    EXPECT_EQ(send("Ann", QString(QStringLiteral("a\n")).repeated(667)),
              "A message holds 2000 characters, and this one has more: nothing was sent.")
        << "a line break is two characters of a message";
    EXPECT_EQ(answer({{"command", "dance"}}), "The copy of NIMB-Chat that runs knows no command \"dance\".");
    EXPECT_EQ(answer({}), "The copy of NIMB-Chat that runs knows no command \"\".");
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(RemoteCommandsTest, OfferAFileAsIfItWereDropped)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("plan.pdf"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    const QString path = file.fileName();
    const QJsonObject first = ask({{"command", "send-file"}, {"contact", "Ann"}, {"path", path}});
    EXPECT_EQ(first[QLatin1String("status")].toInt(-1), 0);
    EXPECT_EQ(
        first[QLatin1String("sentence")].toString(),
        QStringLiteral("Files are not encrypted on their way: whoever can listen in on this network can read them."));
    EXPECT_THAT(copy.prompts.asked, IsEmpty()) << "nobody may sit at the screen";
    ASSERT_EQ(copy.fileServer.served.size(), 1u);
    EXPECT_EQ(answer({{"command", "send-file"}, {"contact", "Ann"}, {"path", "/nowhere"}}), "/nowhere cannot be read.");
    EXPECT_EQ(answer({{"command", "send-file"}, {"contact", "Cleo"}, {"path", path}}),
              "Cleo is not online: nothing was sent.");
    EXPECT_EQ(copy.fileServer.served.size(), 1u);
    const QJsonObject second = ask({{"command", "send-file"}, {"contact", "Ann"}, {"path", path}});
    EXPECT_EQ(second, (QJsonObject{{"status", 0}, {"sentence", ""}})) << "said once";
}

TEST_F(RemoteCommandsTest, AnswerWhetherAFileWasOfferedOnceItHasBeenLookedThrough)
{
    const QTemporaryDir folder;
    copy.fileServer.answersAtOnce = false;
    QStringList answers;
    const auto offer = [&] {
        const QJsonObject command{{"command", "send-file"}, {"contact", "Ann"}, {"path", folder.path()}};
        commands.carryOut(QJsonDocument(command).toJson(),
                          [&answers](const QByteArray &given) { answers.append(QString::fromUtf8(given)); });
    };
    offer();
    offer();
    EXPECT_TRUE(answers.isEmpty());
    copy.fileServer.readies.at(0)({.trouble = QStringLiteral("Photos cannot be read.")});
    EXPECT_EQ(answers, QStringList{QStringLiteral("{\"sentence\":\"Photos cannot be read.\",\"status\":1}")});
    copy.fileServer.readies.at(1)({.size = 5, .port = 5549, .name = QStringLiteral("Photos.zip")});
    ASSERT_EQ(answers.size(), 2);
    EXPECT_TRUE(answers.back().endsWith(QStringLiteral("\"status\":0}"))) << answers.back().toStdString();
    copy.fileServer.failed(copy.fileServer.served.back().token, QStringLiteral("Photos has changed."));
    EXPECT_EQ(answers.size(), 2) << "answered once";
}

TEST_F(RemoteCommandsTest, ChangeTheOwnState)
{
    EXPECT_EQ(status("busy"), "done");
    EXPECT_EQ(copy.view.selectedState, 2);
    EXPECT_EQ(copy.sent().front(), (To{"10.0.0.2", "!STATUS BUSY"}));
    EXPECT_EQ(status("busy"), "done");
    EXPECT_THAT(copy.sent(), IsEmpty()) << "everybody knows";
    EXPECT_EQ(status("away", "Build 17 runs"), "done");
    EXPECT_EQ(copy.view.selectedState, 3);
    EXPECT_THAT(copy.sent(), testing::Each(testing::Field(&To::bytes, "!STATUS AWAY Build 17 runs")));
    EXPECT_EQ(status("away", "Build 17 runs"), "done");
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_EQ(status("busy", QString(2001, u'x')), "The command is too long.");
    EXPECT_EQ(copy.engine.ownState().storedValues(), QStringList()) << "it lasts until the next choice";
    ASSERT_TRUE(copy.engine.ownState().addPersonalized(BaseState::away, QStringLiteral("Lunch")));
    EXPECT_EQ(status("online"), "done");
    EXPECT_EQ(status("away", "Lunch"), "done");
    EXPECT_EQ(copy.view.selectedState, OwnState::plainEntries + 1);
    EXPECT_EQ(status("invisible", "gone"), "No text can stand beside \"invisible\".");
    EXPECT_EQ(status("asleep"), "There is no state \"asleep\": online, busy, away and invisible are.");
    EXPECT_EQ(status("invisible"), "done");
    EXPECT_TRUE(copy.common.isInvisible());
}

TEST_F(RemoteCommandsTest, WhoeverBearsAnothersAddressAsANicknameIsNotMeantByIt)
{
    copy.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC 10.0.0.2");
    EXPECT_EQ(send("10.0.0.2", "done"), "done");
    std::vector<To> messages = copy.sent();
    std::erase_if(messages, [](const auto &datagram) { return !datagram.bytes.starts_with('-'); });
    EXPECT_THAT(messages, ElementsAre(To{"10.0.0.2", "-done"}));
}

TEST_F(RemoteCommandsTest, WhatIsLeftOutOfAFolderIsSaidWithTheAnswer)
{
    copy.common.filesExplained = true;
    copy.fileServer.answersAtOnce = false;
    const QTemporaryDir folder;
    QByteArray answer;
    const QJsonObject command{{"command", "send-file"}, {"contact", "Ann"}, {"path", folder.path()}};
    commands.carryOut(QJsonDocument(command).toJson(), [&answer](const QByteArray &given) { answer += given; });
    copy.fileServer.readies.at(0)({.size = 5,
                                   .port = 5549,
                                   .name = QStringLiteral("Photos.zip"),
                                   .leftOut = QStringLiteral("1 left out of Photos: pipe.")});
    EXPECT_EQ(answer, "{\"sentence\":\"1 left out of Photos: pipe.\",\"status\":0}");
}

TEST_F(RemoteCommandsTest, WhileANicknameIsAskedForOnlyTheEndCanBeHad)
{
    int quits = 0;
    const auto atLogin
        = [&quits](const QByteArray &command) { return RemoteCommands::answerAtLogin(command, [&quits] { ++quits; }); };
    EXPECT_EQ(atLogin(R"({"command":"contacts"})"),
              R"({"sentence":"The copy of NIMB-Chat that runs still asks for a nickname.","status":1})");
    EXPECT_EQ(atLogin("nonsense"),
              R"({"sentence":"The copy of NIMB-Chat that runs still asks for a nickname.","status":1})");
    EXPECT_EQ(quits, 0);
    EXPECT_EQ(atLogin(R"({"command":"quit"})"), R"({"status":0})");
    EXPECT_EQ(quits, 1);
}

TEST_F(RemoteCommandsTest, ShowTheWindowAndEndTheProgram)
{
    EXPECT_EQ(answer({{"command", "show"}}), "done");
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(answer({{"command", "quit"}}), "done");
    EXPECT_EQ(ended, 1);
}

} // namespace
} // namespace nimb::test
