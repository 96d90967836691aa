#include "platform/name_resolver.h"

#include "child_process.h"
#include "slow_names.h"

#include <QTest>

#include <gmock/gmock.h>

#include <optional>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class HostNameResolverTest : public testing::Test
{
protected:
    void ask(const QString &name)
    {
        resolver->resolve(name, [this, name](std::optional<Ipv4Address> address) {
            answers.push_back(name.toStdString() + '=' + (address ? address->toText() : "nothing"));
        });
    }
    /// Returns when the question waits in the system.
    void askSlowName()
    {
        const int before = slowQuestions();
        ask(QStringLiteral("slow.invalid"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return slowQuestions() == before + 1; }, 30000));
    }
    bool answered(std::size_t count)
    {
        return QTest::qWaitFor([&] { return answers.size() >= count; }, 30000);
    }

    std::optional<HostNameResolver> resolver{std::in_place};
    std::vector<std::string> answers;
};

TEST_F(HostNameResolverTest, FindsTheAddressOfAHostLaterOn)
{
    ask(QStringLiteral("localhost"));
    EXPECT_THAT(answers, IsEmpty());
    ASSERT_TRUE(answered(1));
    EXPECT_THAT(answers, ElementsAre("localhost=127.0.0.1"));
}

TEST_F(HostNameResolverTest, SaysThatAHostDoesNotExist)
{
    ask(QStringLiteral("nobody-has-this-name.invalid"));
    ASSERT_TRUE(answered(1));
    EXPECT_THAT(answers, ElementsAre("nobody-has-this-name.invalid=nothing"));
}

TEST_F(HostNameResolverTest, NumbersAreNoNames)
{
    for (const char *const number : {"192.168.1", "127.1", "1", "::1", "0x7f000001"})
        ask(QLatin1String(number));
    ASSERT_TRUE(answered(5));
    EXPECT_THAT(answers,
                ElementsAre("192.168.1=nothing", "127.1=nothing", "1=nothing", "::1=nothing", "0x7f000001=nothing"));
}

TEST_F(HostNameResolverTest, WhatNoHostCanBeCalledIsNotFound)
{
    const QStringList names = {QString(), QStringLiteral("localhost") + QChar(u'\0') + QStringLiteral("x"),
                               QString(255, u'x') + QStringLiteral(".invalid")};
    for (const QString &name : names)
        resolver->resolve(
            name, [this](std::optional<Ipv4Address> address) { answers.push_back(address ? "found" : "nothing"); });
    ASSERT_TRUE(answered(3));
    EXPECT_THAT(answers, ElementsAre("nothing", "nothing", "nothing"));
}

TEST_F(HostNameResolverTest, ASlowAnswerHoldsUpNothing)
{
    askSlowName();
    ask(QStringLiteral("localhost"));
    ASSERT_TRUE(answered(1));
    EXPECT_THAT(answers, ElementsAre("localhost=127.0.0.1"));
    letSlowNamesGo();
    ASSERT_TRUE(answered(2));
    EXPECT_THAT(answers, ElementsAre("localhost=127.0.0.1", "slow.invalid=127.0.0.9"));
}

TEST_F(HostNameResolverTest, NobodyIsCalledWhenTheAnswerComesAfterTheResolversEnd)
{
    askSlowName();
    resolver.reset();
    letSlowNamesGo();
    ASSERT_TRUE(QTest::qWaitFor([] { return slowAnswers() == slowQuestions(); }, 30000));
    // Asked later, so answered after whatever came before.
    resolver.emplace();
    ask(QStringLiteral("localhost"));
    ASSERT_TRUE(answered(1));
    EXPECT_THAT(answers, ElementsAre("localhost=127.0.0.1"));
}

TEST_F(HostNameResolverTest, NobodyIsCalledWhenTheResolverEndsBeforeTheAnswerIsHandedOver)
{
    ask(QStringLiteral("1")); // needs no look-up, so its answer is on its way already
    resolver.reset();
    QCoreApplication::processEvents();
    EXPECT_THAT(answers, IsEmpty());
}

TEST(HostNameResolverEnd, TheEndOfTheProgramDoesNotWaitForAnAnswer)
{
    QProcess program;
    endWithParent(program);
    program.start(QStringLiteral(SLOW_NAMES_HELPER), QStringList());
    ASSERT_TRUE(program.waitForFinished(30000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 7);
}

} // namespace
} // namespace nimb::test
