#include "platform/system_info.h"

#include "print_qt.h"
#include "search_path.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// --- the tools of the desktops

class SystemInfoTest : public testing::Test
{
protected:
    /// Each writes its name and its arguments.
    void install(const std::vector<const char *> &tools) const
    {
        for (const char *const tool : tools)
            path.add(tool, QByteArray("echo ") + tool + " \"$@\" > started\nmv started done\n");
    }

    const SearchPath path;
    SystemInfo system;
};

TEST_F(SystemInfoTest, WithoutAnyToolItIsUnavailable)
{
    EXPECT_FALSE(system.StartSysInfo());
}

class FirstTool : public SystemInfoTest, public testing::WithParamInterface<std::size_t>
{
};

TEST_P(FirstTool, IsStarted)
{
    const std::vector<const char *> tools
        = {"kinfocenter", "gnome-control-center", "hardinfo", "mate-system-monitor", "gnome-system-monitor"};
    const std::vector<QByteArray> started = {"kinfocenter\n", "gnome-control-center info-overview\n", "hardinfo\n",
                                             "mate-system-monitor\n", "gnome-system-monitor\n"};
    const std::size_t first = GetParam();
    install({tools.begin() + static_cast<std::ptrdiff_t>(first), tools.end()});
    EXPECT_TRUE(system.StartSysInfo());
    EXPECT_EQ(path.waitFor("done"), started[first]);
}

INSTANTIATE_TEST_SUITE_P(SystemInfo, FirstTool, testing::Range(std::size_t{0}, std::size_t{5}));

TEST_F(SystemInfoTest, AToolThatDoesNotStartLeavesItToTheNext)
{
    path.addBroken("kinfocenter");
    path.addBroken("hardinfo");
    install({"gnome-system-monitor"});
    EXPECT_TRUE(system.StartSysInfo());
    EXPECT_EQ(path.waitFor("done"), QByteArray("gnome-system-monitor\n"));
}

TEST_F(SystemInfoTest, IsUnavailableWhenNoToolStarts)
{
    path.addBroken("kinfocenter");
    EXPECT_FALSE(system.StartSysInfo());
}

TEST_F(SystemInfoTest, NobodyWaitsForTheTool)
{
    path.add("hardinfo", "until [ -e go ]; do sleep 0.01; done\necho over > done\n");
    EXPECT_TRUE(system.StartSysInfo());
    EXPECT_FALSE(path.has("done"));
    QFile go(path.file("go"));
    EXPECT_TRUE(go.open(QIODevice::WriteOnly));
    path.waitFor("done");
}

// --- the registry

class FakeMachine : public RegistryMachine
{
public:
    std::optional<QString> GetKeyValue(const QString &key, const QString &name) const override
    {
        const auto found = values.find((key + u'|' + name).toStdString());
        return found == values.end() ? std::nullopt : std::optional(QString::fromStdString(found->second));
    }
    bool exists(const QString &file) const override { return files.count(file.toStdString()) > 0; }
    bool run(const QString &file) override
    {
        started.push_back(file.toStdString());
        return starts;
    }

    std::map<std::string, std::string> values; ///< "key|name"
    std::set<std::string> files;
    bool starts = true;
    std::vector<std::string> started;
};

const std::string pathValue = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH";
const std::string folderValue = "SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO";

TEST(RegisteredSysInfo, RunsThePathOfTheFirstKey)
{
    FakeMachine machine;
    machine.values = {{pathValue, "C:\\Tools\\msinfo32.exe"}, {folderValue, "C:\\Shared"}};
    machine.files = {"C:\\Shared\\MSINFO32.EXE"};
    EXPECT_TRUE(startRegisteredSysInfo(machine));
    EXPECT_THAT(machine.started, ElementsAre("C:\\Tools\\msinfo32.exe"));
}

TEST(RegisteredSysInfo, RunsTheToolInTheFolderOfTheSecondKey)
{
    FakeMachine machine;
    machine.values = {{folderValue, "C:\\Shared"}};
    machine.files = {"C:\\Shared\\MSINFO32.EXE"};
    EXPECT_TRUE(startRegisteredSysInfo(machine));
    EXPECT_THAT(machine.started, ElementsAre("C:\\Shared\\MSINFO32.EXE"));
}

TEST(RegisteredSysInfo, IsUnavailableWithNeitherKey)
{
    FakeMachine machine;
    EXPECT_FALSE(startRegisteredSysInfo(machine));
    EXPECT_THAT(machine.started, IsEmpty());
}

TEST(RegisteredSysInfo, IsUnavailableWhenTheFolderHoldsNoTool)
{
    FakeMachine machine;
    machine.values = {{folderValue, "C:\\Shared"}};
    EXPECT_FALSE(startRegisteredSysInfo(machine));
    EXPECT_THAT(machine.started, IsEmpty());
}

TEST(RegisteredSysInfo, IsUnavailableWhenTheToolDoesNotStart)
{
    FakeMachine machine;
    machine.values = {{pathValue, "C:\\gone.exe"}};
    machine.starts = false;
    EXPECT_FALSE(startRegisteredSysInfo(machine));
}

TEST(RegistryText, AStringEndsAtItsFirstNul)
{
    EXPECT_EQ(registryText(1, QByteArray("C:\\x\0rest\0", 10)), QStringLiteral("C:\\x"));
    EXPECT_EQ(registryText(1, QByteArray("C:\\x", 4)), QStringLiteral("C:\\x"));
    EXPECT_EQ(registryText(1, QByteArray("\0", 1)), QString());
    EXPECT_EQ(registryText(1, QByteArray()), QString());
}

TEST(RegistryText, AStringHas1024CharactersAtMost)
{
    EXPECT_EQ(registryText(1, QByteArray(1024, 'x')), QString(1024, u'x'));
    EXPECT_EQ(registryText(1, QByteArray(1025, 'x')), QString(1024, u'x'));
}

TEST(RegistryText, ANumberIsReadFromItsLastByteToItsFirstAndIsSigned)
{
    EXPECT_EQ(registryText(4, QByteArray("\x01\x00\x00\x00", 4)), QStringLiteral("1"));
    EXPECT_EQ(registryText(4, QByteArray("\x0A\x0B\x00\x00", 4)), QStringLiteral("2826"));
    EXPECT_EQ(registryText(4, QByteArray("\xFF\xFF\xFF\x7F", 4)), QStringLiteral("2147483647"));
    EXPECT_EQ(registryText(4, QByteArray("\x00\x00\x00\x80", 4)), QStringLiteral("-2147483648"));
    EXPECT_EQ(registryText(4, QByteArray("\xFF\xFF\xFF\xFF", 4)), QStringLiteral("-1"));
}

TEST(RegistryText, OtherTypesAndBrokenNumbersAreNoText)
{
    EXPECT_EQ(registryText(3, QByteArray("abcd")), std::nullopt);
    EXPECT_EQ(registryText(4, QByteArray("abc")), std::nullopt);
    EXPECT_EQ(registryText(4, QByteArray()), std::nullopt);
}

} // namespace
} // namespace nimb::test
