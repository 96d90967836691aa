// The language of the program's texts.
#include "platform/translations.h"

#include "base/program_languages.h"
#include "print_qt.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

namespace nimb::test
{
namespace
{

class TranslationsTest : public testing::Test
{
protected:
    ~TranslationsTest() override
    {
        setDesktop("C.UTF-8");
        QLocale::setDefault(QLocale::system());
    }
    static void setDesktop(const char *locale) { qputenv("LC_ALL", locale); }
    static QString cancel() { return QCoreApplication::translate("nimb::frmOptions", "Cancel"); }

    const QString m_folder = QStringLiteral(NIMB_TRANSLATIONS);
};

TEST_F(TranslationsTest, EveryLanguageThatIsOfferedIsThere)
{
    for (const ProgramLanguage &language : programLanguages) {
        Translations translations;
        translations.use(QLatin1String(language.code), m_folder);
        EXPECT_EQ(cancel() == QLatin1String("Cancel"), QLatin1String(language.code) == QLatin1String("en"))
            << language.code;
        EXPECT_EQ(translations.language(), QLocale(QLatin1String(language.code)));
    }
    EXPECT_EQ(QDir(m_folder).entryList({QStringLiteral("*.qm")}).size(), qsizetype(programLanguages.size()));
}

TEST_F(TranslationsTest, AChosenLanguageGoesBeforeTheDesktopsAndBringsItsDatesAlong)
{
    setDesktop("de_AT.UTF-8");
    Translations translations;
    translations.use(QStringLiteral("fr"), m_folder);
    EXPECT_EQ(cancel(), QStringLiteral("Annuler"));
    EXPECT_EQ(QLocale(), QLocale(QStringLiteral("fr")));
    translations.use(QStringLiteral("de"), m_folder);
    EXPECT_EQ(cancel(), QStringLiteral("Abbrechen"));
    EXPECT_EQ(QLocale().territory(), QLocale::Austria) << "the desktop knows better which kind of German";
}

TEST_F(TranslationsTest, TheDesktopsIsTakenWhereNoneIsChosen)
{
    Translations translations;
    const auto languageOn = [&](const char *desktop) {
        setDesktop(desktop);
        translations.use({}, m_folder);
        return translations.language().name();
    };
    EXPECT_EQ(languageOn("de_CH.UTF-8"), QStringLiteral("de_DE"));
    EXPECT_EQ(languageOn("pt_PT.UTF-8"), QStringLiteral("pt_BR"));
    EXPECT_EQ(languageOn("zh_CN.UTF-8"), QStringLiteral("zh_CN"));
    EXPECT_EQ(languageOn("zh_TW.UTF-8"), QStringLiteral("en_US")) << "other letters";
    EXPECT_EQ(languageOn("C.UTF-8"), QStringLiteral("en_US"));
    EXPECT_EQ(languageOn("sw_KE.UTF-8"), QStringLiteral("en_US"));
}

TEST_F(TranslationsTest, DatesAreTheDesktopsWhereNothingIsChosenAlsoInALanguageThatIsNotSpoken)
{
    for (const char *const desktop : {"C.UTF-8", "sw_KE.UTF-8", "de_CH.UTF-8"}) {
        setDesktop(desktop);
        Translations translations;
        translations.use({}, m_folder);
        EXPECT_EQ(QLocale(), QLocale::system()) << desktop;
    }
}

TEST_F(TranslationsTest, NumbersHaveTheirFormsInEnglishToo)
{
    Translations translations;
    translations.use(QStringLiteral("en"), m_folder);
    const auto lines = [](int number) {
        return QCoreApplication::translate("nimb::NewLinesButton", "%n new line(s)", nullptr, number);
    };
    EXPECT_EQ(lines(1), QStringLiteral("1 new line"));
    EXPECT_EQ(lines(2), QStringLiteral("2 new lines"));
}

TEST_F(TranslationsTest, WhereNoFileIsTheTextsAreThoseOfTheSources)
{
    const QTemporaryDir empty;
    Translations translations;
    translations.use(QStringLiteral("de"), empty.path());
    EXPECT_EQ(cancel(), QStringLiteral("Cancel"));
}

} // namespace
} // namespace nimb::test
