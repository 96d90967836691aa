#include "app/console_commands.h"

#include "platform/single_instance.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace nimb
{
namespace
{

constexpr int refused = 1, nobodyThere = 2;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ConsoleCommands)
};

QString value(const QJsonObject &object, const char *member)
{
    return object[QLatin1String(member)].toString();
}

/// Name, address, presence and state, between tabs: no name holds one.
QByteArray asLines(const QJsonArray &contacts)
{
    QString lines;
    for (const auto &entry : contacts) {
        const QJsonObject contact = entry.toObject();
        lines += QStringList{value(contact, "name"), value(contact, "address"), value(contact, "presence"),
                             value(contact, "state")}
                     .join(u'\t')
            + u'\n';
    }
    return lines.toLocal8Bit();
}

} // namespace

std::optional<ConsoleCommand> ConsoleCommand::of(const QStringList &words)
{
    const QString name = words.value(0);
    const QStringList rest = words.mid(1);
    QJsonObject request{{QStringLiteral("command"), name}};
    if (name == QLatin1String("contacts")) {
        const bool asJson = rest == QStringList{QStringLiteral("--json")};
        return asJson || rest.isEmpty() ? std::optional(ConsoleCommand{request, asJson}) : std::nullopt;
    }
    if ((name == QLatin1String("show") || name == QLatin1String("quit")) && rest.isEmpty())
        return ConsoleCommand{request};
    if (name == QLatin1String("send") && !rest.isEmpty()) {
        request.insert(QStringLiteral("contact"), rest.front());
        request.insert(QStringLiteral("text"), rest.mid(1).join(u' '));
        return ConsoleCommand{request, false, rest.size() == 1};
    }
    if (name == QLatin1String("send-file") && rest.size() == 2 && !rest.back().isEmpty()) {
        request.insert(QStringLiteral("contact"), rest.front());
        request.insert(QStringLiteral("path"), QFileInfo(rest.back()).absoluteFilePath());
        return ConsoleCommand{request};
    }
    if (name == QLatin1String("status") && !rest.isEmpty()) {
        request.insert(QStringLiteral("state"), rest.front());
        request.insert(QStringLiteral("text"), rest.mid(1).join(u' '));
        return ConsoleCommand{request};
    }
    return std::nullopt;
}

ConsoleAnswer askRunningCopy(const Environment &environment, const ConsoleCommand &command)
{
    const QByteArray request = QJsonDocument(command.request).toJson(QJsonDocument::Compact);
    if (request.size() > SingleInstance::longestCommand - SingleInstance::marksOfACommand)
        return {refused, {}, Texts::tr("The command is too long.").toLocal8Bit() + '\n'};
    const std::optional<QByteArray> answer = SingleInstance::ask(environment.profileFolder, request);
    if (!answer)
        return {nobodyThere, {}, Texts::tr("No copy of NIMB-Chat runs with this profile.").toLocal8Bit() + '\n'};
    if (answer->isEmpty())
        return {refused, {}, Texts::tr("The copy of NIMB-Chat that runs gives no answer.").toLocal8Bit() + '\n'};
    const QJsonObject said = QJsonDocument::fromJson(*answer).object();
    const QByteArray sentence = value(said, "sentence").toLocal8Bit();
    const QByteArray complaint = sentence.isEmpty() ? QByteArray() : sentence + '\n';
    if (said[QLatin1String("status")].toInt(refused) != 0)
        return {refused, {}, complaint};
    const QJsonArray contacts = said[QLatin1String("contacts")].toArray();
    if (command.asJson)
        return {0, QJsonDocument(contacts).toJson(), complaint};
    return {0, asLines(contacts), complaint};
}

} // namespace nimb
