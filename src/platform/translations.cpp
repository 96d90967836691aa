#include "platform/translations.h"

#include "base/program_languages.h"
#include "platform/program_files.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>

#include <algorithm>

namespace nimb
{
namespace
{

/// Whether a desktop that wants one understands the other: of Portuguese there is the Brazilian only, but Chinese
/// letters are not read everywhere.
bool isUnderstood(const QLocale &offered, const QLocale &wanted)
{
    return offered.language() == wanted.language()
        && (offered.language() != QLocale::Chinese || offered.script() == wanted.script());
}

QString codeOf(const QLocale &wanted)
{
    const auto *const found = std::ranges::find_if(programLanguages, [&wanted](const ProgramLanguage &offered) {
        return isUnderstood(QLocale(QLatin1String(offered.code)), wanted);
    });
    return found == programLanguages.end() ? QString() : QLatin1String(found->code);
}

/// "en" where the program speaks none of the desktop's languages.
QString desktopLanguage()
{
    for (const QString &name : QLocale::system().uiLanguages()) {
        if (const QString code = codeOf(QLocale(name)); !code.isEmpty())
            return code;
    }
    return QStringLiteral("en");
}

void install(QTranslator &translator, const QString &name, const QString &folder)
{
    QCoreApplication::removeTranslator(&translator);
    if (translator.load(name, folder))
        QCoreApplication::installTranslator(&translator);
}

QString shippedFolder()
{
    const std::optional<QString> file = findProgramFile(QStringLiteral("translations/nimb-chat_en.qm"));
    return file ? QFileInfo(*file).path() : QString();
}

} // namespace

void Translations::use(const QString &code, const QString &folder)
{
    const QString chosen = code.isEmpty() ? desktopLanguage() : code;
    m_language = QLocale(chosen);
    const bool isDesktops = code.isEmpty() || QLocale::system().language() == m_language.language();
    QLocale::setDefault(isDesktops ? QLocale::system() : m_language);
    const QString own = folder.isEmpty() ? shippedFolder() : folder;
    install(m_own, QLatin1String("nimb-chat_") + chosen, own);
    install(m_toolkits, QLatin1String("qtbase_") + chosen, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace nimb
