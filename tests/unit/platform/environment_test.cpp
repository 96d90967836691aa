#include "platform/environment.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <map>

#include <pwd.h>
#include <unistd.h>

namespace nimb::test
{
namespace
{

/// Variables of this process that are what they were when the test is over.
class EnvironmentTest : public testing::Test
{
protected:
    ~EnvironmentTest() override
    {
        for (const auto &[name, value] : m_before) {
            if (value.isNull())
                qunsetenv(name.constData());
            else
                qputenv(name.constData(), value);
        }
    }
    void set(const QByteArray &name, const QByteArray &value)
    {
        m_before.emplace(name, qEnvironmentVariableIsSet(name.constData()) ? qgetenv(name.constData()) : QByteArray());
        qputenv(name.constData(), value);
    }

private:
    std::map<QByteArray, QByteArray> m_before;
};

TEST_F(EnvironmentTest, AProfileIsNamedOrLiesInTheFolderOfTheConfiguration)
{
    set("NIMBCHAT_PROFILE", "mine/");
    EXPECT_EQ(Environment::fromSystem().profileFolder, QDir::current().absoluteFilePath(QStringLiteral("mine")));
    set("NIMBCHAT_PROFILE", "");
    set("XDG_CONFIG_HOME", "/conf");
    EXPECT_EQ(Environment::fromSystem().profileFolder, QStringLiteral("/conf/NIMB-Chat"));
}

TEST_F(EnvironmentTest, WithSudoTheProfileIsThatOfWhoeverCalledIt)
{
    const passwd *const daemon = ::getpwuid(1);
    ASSERT_TRUE(daemon);
    set("NIMBCHAT_PROFILE", "");
    set("SUDO_UID", "1");
    const bool isSuperuser = ::geteuid() == 0;
    const QString theirs = QFile::decodeName(daemon->pw_dir) + QStringLiteral("/.config/NIMB-Chat");
    EXPECT_EQ(Environment::ofCaller().profileFolder,
              isSuperuser ? QDir::cleanPath(theirs) : Environment::fromSystem().profileFolder);
    set("NIMBCHAT_PROFILE", "/named");
    EXPECT_EQ(Environment::ofCaller().profileFolder, QStringLiteral("/named"));
    set("NIMBCHAT_PROFILE", "");
    set("SUDO_UID", "nobody");
    EXPECT_EQ(Environment::ofCaller().profileFolder, Environment::fromSystem().profileFolder);
}

} // namespace
} // namespace nimb::test
