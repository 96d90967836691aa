#include "platform/hunspell_spelling.h"

#include "base/limits.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

const QString handWritten = QStringLiteral(DICTIONARIES);

std::vector<std::string> texts(const QStringList &list)
{
    std::vector<std::string> all;
    for (const QString &one : list)
        all.push_back(one.toStdString());
    return all;
}

class HunspellSpellingTest : public testing::Test
{
protected:
    /// A file of the test's own folder.
    void write(const QString &name, const QByteArray &content)
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file.fileName()).path()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    void writeDictionary(const QString &name, const QByteArray &words, const QByteArray &affixes = "SET UTF-8\n")
    {
        write(name + QLatin1String(".aff"), affixes);
        write(name + QLatin1String(".dic"), words);
    }
    /// "en_GB=en_AU,en_NZ": a language and the other names of its files.
    std::vector<std::string> languages(const QStringList &folders)
    {
        checker.emplace(folders);
        std::optional<std::vector<std::string>> all;
        checker->findLanguages([&all](const std::vector<SpellingLanguage> &found) {
            all.emplace();
            for (const SpellingLanguage &one : found)
                all->push_back((one.name + u'=' + one.otherNames.join(u',')).toStdString());
        });
        EXPECT_TRUE(QTest::qWaitFor([&all] { return all.has_value(); }, 30000));
        return all.value_or(std::vector<std::string>());
    }
    std::vector<std::string> misspelt(const QString &language, const QString &words)
    {
        std::optional<std::vector<std::string>> answer;
        checker->check(language, words.split(u' '), [&answer](const std::optional<QStringList> &found) {
            answer = found ? texts(*found) : std::vector<std::string>{"no dictionary"};
        });
        EXPECT_TRUE(QTest::qWaitFor([&answer] { return answer.has_value(); }, 30000));
        return answer.value_or(std::vector<std::string>());
    }
    std::vector<std::string> suggestions(const QString &language, const QString &word)
    {
        std::optional<std::vector<std::string>> answer;
        checker->suggest(language, word, [&answer](const QStringList &found) { answer = texts(found); });
        EXPECT_TRUE(QTest::qWaitFor([&answer] { return answer.has_value(); }, 30000));
        return answer.value_or(std::vector<std::string>());
    }
    /// Of the folder's own dictionary "en_GB".
    std::vector<std::string> misspeltHere(const QString &words)
    {
        checker.emplace(QStringList{folder.path()});
        return misspelt(QStringLiteral("en_GB"), words);
    }

    QTemporaryDir folder;
    std::optional<HunspellSpelling> checker{std::in_place, QStringList{handWritten}};
};

TEST_F(HunspellSpellingTest, FindsTheDictionariesOfAFolder)
{
    EXPECT_THAT(languages({handWritten}), ElementsAre("de_DE=", "en_GB="));
    EXPECT_THAT(languages({QStringLiteral("/nowhere")}), IsEmpty());
}

TEST_F(HunspellSpellingTest, LeavesOutWhatIsNoPairOrNoLanguage)
{
    writeDictionary(QStringLiteral("en_GB"), "1\nHello\n");
    writeDictionary(QStringLiteral("off"), "1\nHello\n");
    write(QStringLiteral("fr_FR.dic"), "1\nBonjour\n");
    write(QStringLiteral("hyph_de_DE.dic"), "UTF-8\n.ab1a\n");
    EXPECT_THAT(languages({folder.path()}), ElementsAre("en_GB="));
}

TEST_F(HunspellSpellingTest, LinksToTheSameWordsAreOneLanguage)
{
    writeDictionary(QStringLiteral("fr_FR"), "1\nBonjour\n");
    for (const char *const name : {"fr_BE", "fr_CA"}) {
        for (const char *const suffix : {".aff", ".dic"})
            ASSERT_TRUE(QFile::link(QStringLiteral("fr_FR") + QLatin1String(suffix),
                                    folder.filePath(QLatin1String(name) + QLatin1String(suffix))));
    }
    ASSERT_TRUE(QFile::link(folder.path(), folder.filePath(QStringLiteral("dicts"))));
    EXPECT_THAT(languages({folder.path(), folder.filePath(QStringLiteral("dicts"))}), ElementsAre("fr_FR=fr_BE,fr_CA"));
}

TEST_F(HunspellSpellingTest, TheFirstFolderCounts)
{
    writeDictionary(QStringLiteral("en_GB"), "1\nGoodbye\n");
    EXPECT_THAT(languages({folder.path(), handWritten}), ElementsAre("en_GB=", "de_DE="));
    EXPECT_THAT(misspelt(QStringLiteral("en_GB"), QStringLiteral("Goodbye Hello")), ElementsAre("Hello"));
}

TEST_F(HunspellSpellingTest, LooksWhereTheSystemAndTheUserKeepDictionaries)
{
    const QByteArray before = qgetenv("XDG_DATA_DIRS");
    qputenv("XDG_DATA_DIRS", "/one:/two");
    const QStringList folders = dictionaryFolders();
    qputenv("XDG_DATA_DIRS", before);
    for (const char *const expected :
         {"/one/hunspell", "/two/hunspell", "/two/myspell/dicts", "/usr/share/hunspell", "/usr/share/myspell/dicts"})
        EXPECT_TRUE(folders.contains(QLatin1String(expected))) << expected;
    EXPECT_LT(folders.indexOf(QStringLiteral("/one/hunspell")), folders.indexOf(QStringLiteral("/usr/share/hunspell")));
}

TEST_F(HunspellSpellingTest, KnowsItsWords)
{
    EXPECT_THAT(misspelt(QStringLiteral("en_GB"), QStringLiteral("Hello Helo plans café cafe don't")),
                ElementsAre("Helo", "cafe"));
    EXPECT_THAT(suggestions(QStringLiteral("en_GB"), QStringLiteral("Helo")), Contains("Hello"));
    EXPECT_THAT(misspelt(QStringLiteral("fr_FR"), QStringLiteral("Hello")), ElementsAre("no dictionary"));
}

TEST_F(HunspellSpellingTest, ReadsDictionariesInOtherEncodings)
{
    EXPECT_THAT(misspelt(QStringLiteral("de_DE"), QStringLiteral("Grüße Grüsse Mädchen Straße Дмитрий")),
                ElementsAre("Grüsse", "Дмитрий"));
    EXPECT_THAT(suggestions(QStringLiteral("de_DE"), QStringLiteral("Mädchem")), Contains("Mädchen"));
    EXPECT_THAT(suggestions(QStringLiteral("de_DE"), QStringLiteral("Дмитрий")), IsEmpty());
    writeDictionary(QStringLiteral("ru_RU"), "1\n\xEF\xF0\xE8\xE2\xE5\xF2\n", "SET microsoft-cp1251\n");
    checker.emplace(QStringList{folder.path()});
    EXPECT_THAT(misspelt(QStringLiteral("ru_RU"), QStringLiteral("привет превет")), ElementsAre("превет"));
}

TEST_F(HunspellSpellingTest, ADamagedDictionaryIsNone)
{
    const std::vector<std::string> none{"no dictionary"};
    const QString hello = QStringLiteral("Hello");
    writeDictionary(QStringLiteral("en_GB"), "1\nHello\n");
    EXPECT_THAT(misspeltHere(hello), IsEmpty());
    writeDictionary(QStringLiteral("en_GB"), "");
    EXPECT_EQ(misspeltHere(hello), none);
    writeDictionary(QStringLiteral("en_GB"), "Hello\nworld\n"); // without their number
    EXPECT_EQ(misspeltHere(hello), none);
    writeDictionary(QStringLiteral("en_GB"), "2000000000\nHello\n"); // memory for so many would be taken
    EXPECT_EQ(misspeltHere(hello), none);
    writeDictionary(QStringLiteral("en_GB"), "1\n");
    EXPECT_EQ(misspeltHere(hello), none);
    writeDictionary(QStringLiteral("en_GB"), "1\nHello\n", "");
    EXPECT_EQ(misspeltHere(hello), none);
    writeDictionary(QStringLiteral("en_GB"), "1\nHello\n", "SET KLINGON-7\n");
    EXPECT_EQ(misspeltHere(hello), none);
    QFile words(folder.filePath(QStringLiteral("en_GB.dic")));
    writeDictionary(QStringLiteral("en_GB"), "1\nHello\n");
    ASSERT_TRUE(words.resize(limits::dictionaryFileBytes + 1));
    EXPECT_EQ(misspeltHere(hello), none);
    ASSERT_TRUE(words.remove());
    EXPECT_EQ(misspeltHere(hello), none);
}

TEST_F(HunspellSpellingTest, AnyBytesAreReadOrRefused)
{
    QFile real(handWritten + QLatin1String("/en_GB.dic"));
    ASSERT_TRUE(real.open(QIODevice::ReadOnly));
    const QByteArray good = real.readAll();
    for (qsizetype cut = 0; cut < good.size(); ++cut) {
        QByteArray damaged = good;
        damaged[cut] = char(~damaged[cut]);
        writeDictionary(QStringLiteral("en_GB"), damaged, "SET UTF-8\nSFX S Y 1\nSFX S 0 s .\nREP " + good.left(cut));
        EXPECT_THAT(misspeltHere(QStringLiteral("Qqqq")), testing::SizeIs(1)) << cut;
    }
}

TEST_F(HunspellSpellingTest, AnswersOnTheThreadThatAsked)
{
    const QThread *answered = nullptr;
    checker->check(QStringLiteral("en_GB"), {QStringLiteral("Hello")},
                   [&answered](const std::optional<QStringList> &) { answered = QThread::currentThread(); });
    EXPECT_EQ(answered, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&answered] { return answered != nullptr; }, 30000));
    EXPECT_EQ(answered, QThread::currentThread());
}

TEST_F(HunspellSpellingTest, HasNoThreadBeforeTheFirstQuestion)
{
    const auto threads = [] { return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs).size(); };
    if (threads() == 0)
        GTEST_SKIP() << "this system does not list threads";
    const auto before = threads();
    HunspellSpelling another{QStringList{handWritten}};
    another.rest();
    EXPECT_EQ(threads(), before);
    another.findLanguages([](const std::vector<SpellingLanguage> &) {});
    EXPECT_EQ(threads(), before + 1);
}

TEST_F(HunspellSpellingTest, AfterARestItReadsAgain)
{
    EXPECT_THAT(misspelt(QStringLiteral("en_GB"), QStringLiteral("Helo")), ElementsAre("Helo"));
    checker->rest();
    EXPECT_THAT(misspelt(QStringLiteral("en_GB"), QStringLiteral("Hello Helo")), ElementsAre("Helo"));
}

TEST_F(HunspellSpellingTest, EndsAtAnyMomentAndAnswersNobodyAfterwards)
{
    QByteArray words = "50000\n";
    for (int i = 0; i < 50000; ++i)
        words += "word" + QByteArray::number(i, 36).replace('0', 'o') + '\n';
    writeDictionary(QStringLiteral("en_GB"), words);
    const QStringList asked(1000, QStringLiteral("Helo"));
    for (int answersAwaited = 0; answersAwaited <= 3; ++answersAwaited) {
        for (int turns = 0; turns < 5; ++turns) {
            int answers = 0;
            checker.emplace(QStringList{folder.path()});
            checker->findLanguages([&answers](const std::vector<SpellingLanguage> &) { ++answers; });
            checker->check(QStringLiteral("en_GB"), asked,
                           [&answers](const std::optional<QStringList> &) { ++answers; });
            checker->check(QStringLiteral("en_GB"), asked,
                           [&answers](const std::optional<QStringList> &) { ++answers; });
            ASSERT_TRUE(QTest::qWaitFor([&] { return answers >= answersAwaited; }, 30000));
            checker->suggest(QStringLiteral("en_GB"), QStringLiteral("wordd"),
                             [&answers](const QStringList &) { ++answers; });
            checker.reset();
            const int before = answers;
            QCoreApplication::processEvents();
            EXPECT_EQ(answers, before);
        }
    }
}

} // namespace
} // namespace nimb::test
