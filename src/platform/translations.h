// The texts of the program in the user's language.
#pragma once

#include <QLocale>
#include <QString>
#include <QTranslator>

namespace nimb
{

/// Translates the program's own texts and Qt's, from then on. Installed in the application object,
/// which must live longer.
class Translations
{
public:
    /// Uses the desktop's language.
    Translations() { use({}); }
    Translations(const Translations &) = delete;
    Translations &operator=(const Translations &) = delete;

    /// code: of programLanguages, or empty for the first of the desktop's languages that the program speaks; where it
    /// speaks none of them, and where files are missing, the texts are the English ones of the sources. folder: where
    /// the translations of the program are; empty: where they ship. Sets QLocale's default: to a
    /// language that was chosen and is not the desktop's, so that dates and numbers go with the texts; else they are
    /// the desktop's, also where the program does not speak its language.
    void use(const QString &code, const QString &folder = {});

    /// The language of the texts.
    const QLocale &language() const { return m_language; }

private:
    QLocale m_language{QLocale::English};
    QTranslator m_own;
    QTranslator m_toolkits;
};

} // namespace nimb
