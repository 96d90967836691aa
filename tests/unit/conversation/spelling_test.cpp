#include "conversation/spelling.h"

#include "base/limits.h"
#include "contacts/contact_list.h"
#include "dialog_recorders.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class SpellingTest : public testing::Test
{
protected:
    SpellingTest()
    {
        checker.waits = true;
        checker.languages = {{QStringLiteral("de_DE")}, {QStringLiteral("en_GB")}};
        checker.known = {QStringLiteral("Hello"), QStringLiteral("world")};
    }
    Spelling &begun(const QString &desktop = QStringLiteral("en_GB"))
    {
        spelling.emplace(checker, common, desktop);
        QObject::connect(&*spelling, &Spelling::chosen, &*spelling, [this] { ++choices; });
        spelling->begin();
        checker.answer();
        return *spelling;
    }
    /// What is misspelt once all answers are there.
    std::vector<std::string> misspelt(const QString &text)
    {
        spelling->find(text);
        checker.answer();
        std::vector<std::string> all;
        for (const WordPlace &place : spelling->find(text).misspelt)
            all.push_back(text.mid(place.start, place.length).toStdString());
        return all;
    }

    RecorderSpellChecker checker;
    Common common;
    std::optional<Spelling> spelling;
    int choices = 0;
};

TEST_F(SpellingTest, AsksNothingBeforeSomethingIsWritten)
{
    spelling.emplace(checker, common, QStringLiteral("en_GB"));
    checker.answer();
    EXPECT_FALSE(spelling->areLanguagesKnown());
    EXPECT_THAT(spelling->languages(), IsEmpty());
    EXPECT_THAT(misspelt(QStringLiteral("Helo")), IsEmpty());
    EXPECT_THAT(checker.asked, IsEmpty());
}

TEST_F(SpellingTest, AsksForWhatIsNotKnownAndSaysWhenItIs)
{
    begun();
    int answers = 0;
    QObject::connect(&*spelling, &Spelling::answered, &*spelling, [&] { ++answers; });
    const Spelling::Findings before = spelling->find(QStringLiteral("Helo Hello Helo"));
    EXPECT_FALSE(before.areComplete);
    EXPECT_THAT(before.misspelt, IsEmpty());
    EXPECT_THAT(checker.asked, ElementsAre("en_GB:Helo Hello"));
    spelling->find(QStringLiteral("Helo")); // while the answer is awaited
    checker.answer();
    EXPECT_EQ(answers, 1);
    const Spelling::Findings after = spelling->find(QStringLiteral("Helo Hello Helo"));
    EXPECT_TRUE(after.areComplete);
    EXPECT_THAT(after.misspelt, ElementsAre(WordPlace{0, 4}, WordPlace{11, 4}));
    EXPECT_EQ(checker.asked.size(), 1u);
}

TEST_F(SpellingTest, TheWordThatIsBeingTypedIsNeitherAskedForNorMisspelt)
{
    begun();
    EXPECT_TRUE(spelling->find(QStringLiteral("Hel"), 0).areComplete);
    EXPECT_THAT(checker.asked, IsEmpty());
    EXPECT_THAT(misspelt(QStringLiteral("Hel")), ElementsAre("Hel"));
    EXPECT_THAT(spelling->find(QStringLiteral("Hel"), 0).misspelt, IsEmpty());
}

TEST_F(SpellingTest, RemembersNoMoreWordsThanItsBound)
{
    begun();
    const auto wordNumber = [](int number) {
        QString word = QStringLiteral("aaaa");
        for (int i = 0; i < 4; ++i, number /= 26)
            word[i] = QChar(u'a' + number % 26);
        return word;
    };
    misspelt(wordNumber(0));
    for (int first = 1; first <= limits::spelledWordsKept; first += 100) {
        QStringList words;
        for (int i = first; i < first + 100; ++i)
            words.append(wordNumber(i));
        misspelt(words.join(u' '));
    }
    checker.asked.clear();
    EXPECT_TRUE(spelling->find(wordNumber(limits::spelledWordsKept)).areComplete);
    EXPECT_THAT(checker.asked, IsEmpty());
    EXPECT_FALSE(spelling->find(wordNumber(0)).areComplete);
    EXPECT_THAT(checker.asked, ElementsAre("en_GB:aaaa"));
}

TEST_F(SpellingTest, AsksForFewWordsAtOnce)
{
    begun();
    QStringList words;
    for (char16_t a = u'a'; a <= u'z'; ++a) {
        for (char16_t b = u'a'; b <= u'd'; ++b)
            words.append(QString(QChar(a)) + QChar(b));
    }
    spelling->find(words.join(u' '));
    EXPECT_EQ(words.size(), 104);
    EXPECT_EQ(checker.asked.size(), 3u);
}

TEST_F(SpellingTest, TheDesktopsLanguageIsTakenWhereNothingIsChosen)
{
    EXPECT_EQ(begun(QStringLiteral("en_GB")).language(), QStringLiteral("en_GB"));
    EXPECT_EQ(begun(QStringLiteral("de_AT")).language(), QStringLiteral("de_DE"));
    EXPECT_EQ(begun(QStringLiteral("fr_FR")).language(), QString());
    EXPECT_EQ(begun(QStringLiteral("C")).language(), QString());
    checker.languages = {{QStringLiteral("en_US")}, {QStringLiteral("en_AU"), {QStringLiteral("en_GB")}}};
    EXPECT_EQ(begun(QStringLiteral("en_GB")).language(), QStringLiteral("en_AU"));
}

TEST_F(SpellingTest, WhatIsChosenIsStoredAndUsed)
{
    begun().choose(QStringLiteral("de_DE"));
    EXPECT_EQ(common.spelling.language, QStringLiteral("de_DE"));
    EXPECT_EQ(choices, 1);
    misspelt(QStringLiteral("Helo"));
    EXPECT_THAT(checker.asked, ElementsAre("de_DE:Helo"));
    EXPECT_EQ(begun().language(), QStringLiteral("de_DE"));
    common.spelling.language = QStringLiteral("fr_FR"); // whose dictionary has been removed
    EXPECT_EQ(begun().language(), QString());
}

TEST_F(SpellingTest, OffMeansThatNothingIsAskedAndNothingKept)
{
    begun();
    EXPECT_THAT(misspelt(QStringLiteral("Helo")), ElementsAre("Helo"));
    spelling->choose(Spelling::offChoice);
    EXPECT_EQ(common.spelling.language, QStringLiteral("off"));
    EXPECT_EQ(checker.rests, 1);
    checker.asked.clear();
    EXPECT_THAT(misspelt(QStringLiteral("Helo")), IsEmpty());
    EXPECT_THAT(checker.asked, IsEmpty());
}

TEST_F(SpellingTest, AnAnswerInTheLanguageOfBeforeCountsNoMore)
{
    begun().find(QStringLiteral("Helo"));
    checker.known = {QStringLiteral("Helo")};
    spelling->choose(QStringLiteral("de_DE"));
    checker.answer();
    EXPECT_FALSE(spelling->find(QStringLiteral("Helo")).areComplete);
}

TEST_F(SpellingTest, ADictionaryThatCannotBeUsedIsOffAndSaysSo)
{
    checker.damaged = true;
    begun();
    EXPECT_THAT(misspelt(QStringLiteral("Helo")), IsEmpty());
    EXPECT_EQ(spelling->language(), QString());
    EXPECT_EQ(common.spelling.language, QString());
    std::vector<std::string> usable;
    for (const Spelling::Language &one : spelling->languages())
        usable.push_back(one.name.toStdString() + (one.isUsable ? "" : " is damaged"));
    EXPECT_THAT(usable, ElementsAre("en_GB is damaged", "de_DE"));
    checker.damaged = false;
    spelling->choose(QStringLiteral("de_DE"));
    EXPECT_THAT(misspelt(QStringLiteral("Helo")), ElementsAre("Helo"));
}

TEST_F(SpellingTest, AWordThatIsAddedIsKnownInEveryLanguage)
{
    begun();
    EXPECT_THAT(misspelt(QStringLiteral("helo don\u2019t")), ElementsAre("helo", "don\u2019t"));
    spelling->addWord(QStringLiteral("helo"));
    spelling->addWord(QStringLiteral("helo"));
    spelling->addWord(QStringLiteral("don\u2019t"));
    EXPECT_EQ(common.spelling.words, (QStringList{QStringLiteral("helo"), QStringLiteral("don't")}));
    EXPECT_EQ(choices, 2);
    EXPECT_THAT(misspelt(QStringLiteral("Helo helo don't don\u2019t")), IsEmpty());
    spelling->choose(QStringLiteral("de_DE"));
    EXPECT_THAT(misspelt(QStringLiteral("helo")), IsEmpty());
    begun();
    EXPECT_THAT(misspelt(QStringLiteral("helo")), IsEmpty());
}

TEST_F(SpellingTest, OfAddedWordsTheNewestAreKept)
{
    for (int i = 0; i < limits::ownSpellingWords; ++i)
        common.spelling.words.append(QStringLiteral("w%1").arg(i));
    begun().addWord(QStringLiteral("helo"));
    EXPECT_EQ(common.spelling.words.size(), limits::ownSpellingWords);
    EXPECT_EQ(common.spelling.words.first(), QStringLiteral("w1"));
    EXPECT_EQ(common.spelling.words.last(), QStringLiteral("helo"));
}

TEST_F(SpellingTest, NamesOfContactsAreKnown)
{
    ContactList contacts;
    const auto add = [&contacts](const char *ip, const char *nickname) {
        Contact contact;
        contact.ip = ContactAddress(QString::fromUtf8(ip));
        contact.nickname = QString::fromUtf8(nickname);
        contacts.add(std::move(contact));
    };
    add("10.0.0.2", "ANN O'Neill");
    spelling.emplace(checker, common, QStringLiteral("en_GB"));
    spelling->setContacts(contacts);
    spelling->begin();
    checker.answer();
    EXPECT_THAT(misspelt(QStringLiteral("Ann ann O'Neill Benni")), ElementsAre("Benni"));
    add("10.0.0.3", "Benni");
    EXPECT_THAT(misspelt(QStringLiteral("Benni Karla")), ElementsAre("Karla"));
    contacts.change(ContactAddress(QStringLiteral("10.0.0.3")),
                    [](Contact &contact) { contact.rename(QStringLiteral("Karla")); });
    EXPECT_THAT(misspelt(QStringLiteral("Benni Karla")), IsEmpty());
}

TEST_F(SpellingTest, OffersFiveSuggestionsOfWhatIsAskedForLast)
{
    checker.suggestions[QStringLiteral("Helo")] = QStringLiteral("Hello Help Hero Held Hole Halo").split(u' ');
    checker.suggestions[QStringLiteral("wrld")] = {QStringLiteral("world")};
    begun();
    spelling->suggest(QStringLiteral("wrld"));
    spelling->suggest(QStringLiteral("Helo"));
    EXPECT_FALSE(spelling->suggestions(QStringLiteral("Helo")));
    checker.answer();
    EXPECT_EQ(spelling->suggestions(QStringLiteral("Helo")), QStringLiteral("Hello Help Hero Held Hole").split(u' '));
    EXPECT_FALSE(spelling->suggestions(QStringLiteral("wrld")));
}

TEST(LanguageTitle, IsWhatTheLanguageCallsItself)
{
    EXPECT_EQ(languageTitle(QStringLiteral("de_DE")), QStringLiteral("Deutsch"));
    EXPECT_EQ(languageTitle(QStringLiteral("fr_FR")), QStringLiteral("Français"));
    EXPECT_EQ(languageTitle(QStringLiteral("qx_QX")), QStringLiteral("qx_QX"));
}

TEST_F(SpellingTest, DictionariesOfTheSameLanguageBearTheirNames)
{
    checker.languages = {{QStringLiteral("de_DE_frami")}, {QStringLiteral("fr_FR")}, {QStringLiteral("de_DE")}};
    begun();
    std::vector<std::string> titles;
    for (const Spelling::Language &one : spelling->languages())
        titles.push_back(one.title.toStdString());
    EXPECT_THAT(titles, ElementsAre("Deutsch (de_DE)", "Deutsch (de_DE_frami)", "Français"));
}

} // namespace
} // namespace nimb::test
