#include "main_window/offer_good_copy.h"

#include "base/clock_text.h"

#include <QCoreApplication>

namespace nimb
{
namespace
{

QString translated(const char *text)
{
    return QCoreApplication::translate("GoodCopy", text);
}

} // namespace

void offerGoodCopy(GoodCopy &copy, const SettingsStore &store, Prompts &prompts)
{
    const std::optional<QDateTime> made = copy.offeredCopy();
    if (!made)
        return;
    const QString trouble = store.problem().value_or(
        copy.damage().value_or(translated(QT_TRANSLATE_NOOP("GoodCopy", "The settings are empty."))));
    const QString question
        = translated(QT_TRANSLATE_NOOP("GoodCopy",
                                       "There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to "
                                       "go on with that copy? What is not used is kept under another name."))
              .arg(shortDate(*made), shortTime(*made));
    const std::optional<bool> wanted = prompts.decide(trouble + QLatin1String("\n\n") + question, programTitle);
    if (!wanted)
        return; // the next start asks again
    if (!*wanted)
        return copy.declineCopy();
    if (const std::optional<QString> problem = copy.takeCopy())
        prompts.tell(*problem, programTitle);
}

std::optional<QString> waitingCopy(const GoodCopy &copy)
{
    const std::optional<QDateTime> made = copy.offeredCopy();
    if (!made)
        return std::nullopt;
    return translated(QT_TRANSLATE_NOOP("GoodCopy",
                                        "There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers "
                                        "it when it is started without a nickname."))
        .arg(shortDate(*made), shortTime(*made));
}

} // namespace nimb
