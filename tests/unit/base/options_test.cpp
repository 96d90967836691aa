#include "copy.h"

#include "base/options.h"
#include "base/settings.h"

namespace nimb::test
{
namespace
{

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST(Switch, OnlyOneMeansYes)
{
    EXPECT_TRUE(Switch::ofNumber(1));
    for (const std::int16_t number : std::initializer_list<std::int16_t>{0, 2, -1, 32767, -32768})
        EXPECT_FALSE(Switch::ofNumber(number)) << number;
}

TEST(Switch, YesIsOneAndNoIsZero)
{
    EXPECT_EQ(Switch(true).number(), 1);
    EXPECT_EQ(Switch(false).number(), 0);
}

struct FixedOption {
    const char *key;
    const char *box;
    int byDefault, ticked, notTicked; ///< stored
};

class EveryFixedOption : public testing::TestWithParam<FixedOption>
{
};

TEST_P(EveryFixedOption, HasItsKeyItsBoxAndItsValues)
{
    const FixedOption &fixed = GetParam();
    const auto *const row = std::find_if(optionRows.begin(), optionRows.end(), [&fixed](const OptionRow &candidate) {
        return std::string(candidate.key) == fixed.key;
    });
    ASSERT_NE(row, optionRows.end());
    EXPECT_STREQ(row->box.name, fixed.box);
    EXPECT_EQ(row->defaultValue().number(), fixed.byDefault);
    EXPECT_EQ(row->isTicked(Options()), fixed.byDefault == fixed.ticked);
    Options options;
    row->setTicked(options, true);
    EXPECT_EQ((options.*row->member).number(), fixed.ticked);
    row->setTicked(options, false);
    EXPECT_EQ((options.*row->member).number(), fixed.notTicked);
}

INSTANTIATE_TEST_SUITE_P(, EveryFixedOption,
                         testing::Values(FixedOption{"ShowStatusOnPrivate", "statusonprivate", 1, 0, 1},
                                         FixedOption{"BuzzLocal", "localbuzz", 0, 0, 1},
                                         FixedOption{"BuzzRemote", "remotebuzz", 1, 0, 1},
                                         FixedOption{"PrivateBehaviour", "showontop", 0, 1, 0},
                                         FixedOption{"DontDestroyWindow", "PrivateDestroyonClose", 0, 0, 1},
                                         FixedOption{"NotifyWin", "DisableNotify", 1, 0, 1},
                                         FixedOption{"LiveType", "disablelivetype", 1, 0, 1},
                                         FixedOption{"CloseButtonDoesMinimize", "XtoMinimizeCheck", 0, 1, 0}),
                         [](const auto &option) { return std::string(option.param.key); });

TEST(OptionRows, NoTwoShareAKeyOrABox)
{
    std::set<std::string> names;
    for (const OptionRow &row : optionRows) {
        EXPECT_TRUE(names.insert(row.key).second) << row.key;
        EXPECT_TRUE(names.insert(row.box.name).second) << row.box.name;
        EXPECT_TRUE(!row.opposite.name || names.insert(row.opposite.name).second) << row.key;
        EXPECT_STRNE(row.meaning, "") << row.key;
        EXPECT_STRNE(row.box.caption, "") << row.key;
    }
}

class EveryOption : public testing::TestWithParam<OptionRow>
{
protected:
    Switch read(const QString &stored)
    {
        store.put("Options", GetParam().key, stored);
        Common common;
        notices = loadSettings(store, common).notices;
        return common.options.*GetParam().member;
    }

    MemoryStore store;
    QStringList notices;
};

TEST_P(EveryOption, IsYesOnlyIfOneIsStored)
{
    for (const char *const stored : {"1", " 1 ", "01"})
        EXPECT_TRUE(read(QLatin1String(stored))) << stored;
    for (const char *const stored : {"0", "2", "7", "-1", "32767", "-32768"})
        EXPECT_FALSE(read(QLatin1String(stored))) << stored;
    EXPECT_THAT(notices, IsEmpty());
}

TEST_P(EveryOption, IsWrittenBackAsItWasReadAndTheOthersAsTheyAreByDefault)
{
    for (const char *const number : {"0", "1", "7", "-1", "-32768"}) {
        store.put("Options", GetParam().key, QLatin1String(number));
        Common common;
        loadSettings(store, common);
        saveSettings(store, common, {});
        store.save();
        EXPECT_EQ(store.value("Options", GetParam().key), number);
        for (const OptionRow &other : optionRows) {
            if (std::string(other.key) != GetParam().key) {
                EXPECT_EQ(store.value("Options", other.key), other.defaultValue() ? "1" : "0") << other.key;
            }
        }
    }
}

TEST_P(EveryOption, KeepsItsDefaultWhenNoNumberOfSixteenBitsIsStored)
{
    for (const char *const stored : {"", "yes", "true", "1.5", "32768", "-32769", "0x1", "1 0"}) {
        EXPECT_EQ(read(QLatin1String(stored)).number(), GetParam().defaultValue().number()) << stored;
        EXPECT_THAT(notices, SizeIs(1)) << stored;
        EXPECT_THAT(notices.join(QString()).toStdString(), HasSubstr(GetParam().key));
    }
}

INSTANTIATE_TEST_SUITE_P(, EveryOption, testing::ValuesIn(optionRows),
                         [](const auto &row) { return std::string(row.param.key); });

} // namespace
} // namespace nimb::test
