#include "app/remote_commands.h"

#include "base/limits.h"
#include "base/remote_text.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <array>

namespace nimb
{
namespace
{

QString text(const QJsonObject &command, const char *member)
{
    return command[QLatin1String(member)].toString();
}

struct NamedState {
    const char *name;
    BaseState base;
};

constexpr std::array states = {NamedState{"online", BaseState::online}, NamedState{"busy", BaseState::busy},
                               NamedState{"away", BaseState::away}, NamedState{"invisible", BaseState::invisible}};

/// For programs, and so in no language.
QString presenceName(Presence presence)
{
    switch (presence) {
    case Presence::online:
        return QStringLiteral("online");
    case Presence::busy:
        return QStringLiteral("busy");
    case Presence::away:
        return QStringLiteral("away");
    case Presence::offline:
        return QStringLiteral("offline");
    case Presence::unknown:
        break;
    }
    return QStringLiteral("unknown");
}

/// As a message has them; what comes from a program may have either kind.
QString withLineBreaks(QString typed)
{
    typed.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return typed.replace(u'\n', QLatin1String("\r\n"));
}

QByteArray asBytes(const QJsonObject &answer)
{
    return QJsonDocument(answer).toJson(QJsonDocument::Compact);
}

QByteArray saying(int status, const QString &sentence)
{
    return asBytes({{QStringLiteral("status"), status}, {QStringLiteral("sentence"), sentence}});
}

} // namespace

void RemoteCommands::carryOut(const QByteArray &command, const Reply &reply)
{
    const QJsonObject object = QJsonDocument::fromJson(command).object();
    const QString name = text(object, "command");
    if (name == QLatin1String("contacts"))
        return reply(asBytes(contacts()));
    if (name == QLatin1String("send-file"))
        return sendFile(object, reply);
    Refusal refusal;
    if (name == QLatin1String("send"))
        refusal = send(object);
    else if (name == QLatin1String("status"))
        refusal = status(object);
    else if (name == QLatin1String("show"))
        m_parts.show();
    else if (name == QLatin1String("quit"))
        m_parts.quit();
    else
        refusal = tr("The copy of NIMB-Chat that runs knows no command \"%1\".").arg(name);
    reply(refusal ? saying(1, *refusal) : asBytes({{QStringLiteral("status"), 0}}));
}

QByteArray RemoteCommands::answerAtLogin(const QByteArray &command, const std::function<void()> &quit)
{
    if (text(QJsonDocument::fromJson(command).object(), "command") != QLatin1String("quit"))
        return saying(1, tr("The copy of NIMB-Chat that runs still asks for a nickname."));
    quit();
    return asBytes({{QStringLiteral("status"), 0}});
}

QJsonObject RemoteCommands::contacts() const
{
    QJsonArray list;
    for (const ContactAddress &ip : m_parts.engine.contacts().addresses()) {
        const Contact &contact = *m_parts.engine.contacts().find(ip);
        list.append(QJsonObject{{QStringLiteral("name"), contact.nickname},
                                {QStringLiteral("address"), ip.text()},
                                {QStringLiteral("workstation"), contact.workstation},
                                {QStringLiteral("presence"), presenceName(contact.presence)},
                                {QStringLiteral("state"), contact.state},
                                {QStringLiteral("unread"), contact.unread()}});
    }
    return {{QStringLiteral("status"), 0}, {QStringLiteral("contacts"), list}};
}

RemoteCommands::Refusal RemoteCommands::find(const QString &meant, ContactAddress &found) const
{
    const ContactList &all = m_parts.engine.contacts();
    QStringList addresses;
    for (const ContactAddress &ip : all.addresses()) {
        const bool isIt = ip.text() == meant;
        if (!isIt && all.find(ip)->nickname.compare(meant, Qt::CaseInsensitive) != 0)
            continue;
        found = ip;
        if (isIt)
            addresses.clear(); // whoever bears it as a nickname
        addresses.append(ip.text());
        if (isIt)
            break;
    }
    if (addresses.isEmpty())
        return tr("No contact is called \"%1\" or has this address.").arg(meant);
    if (addresses.size() > 1)
        return tr("Several contacts are called \"%1\": name one by its address (%2).")
            .arg(meant, addresses.join(QStringLiteral(", ")));
    if (!isPresent(all.find(found)->presence))
        return tr("%1 is not online: nothing was sent.").arg(paintedName(all.find(found)->nickname));
    return std::nullopt;
}

QString RemoteCommands::nothingToSend()
{
    return tr("There is no text to be sent.");
}

RemoteCommands::Refusal RemoteCommands::send(const QJsonObject &command)
{
    const QString message = withLineBreaks(text(command, "text"));
    if (message.trimmed().isEmpty())
        return nothingToSend();
    if (message.size() > limits::messageLength)
        return tr("A message holds %1 characters, and this one has more: nothing was sent.").arg(limits::messageLength);
    ContactAddress contact;
    if (Refusal refusal = find(text(command, "contact"), contact))
        return refusal;
    if (!m_parts.engine.privateWindows().answer(contact, message))
        return nothingToSend();
    return std::nullopt;
}

/// Nobody may sit at the screen: what else would be asked there is said on the console.
void RemoteCommands::sendFile(const QJsonObject &command, const Reply &reply)
{
    const QString path = text(command, "path");
    if (!QFileInfo(path).isReadable())
        return reply(saying(1, tr("%1 cannot be read.").arg(path)));
    ContactAddress contact;
    if (const Refusal refusal = find(text(command, "contact"), contact))
        return reply(saying(1, *refusal));
    const auto note = std::make_shared<QString>();
    const auto answer = [reply, isGiven = std::make_shared<bool>()](int status, const QString &sentence) {
        if (!std::exchange(*isGiven, true))
            reply(saying(status, sentence));
    };
    m_parts.engine.privateWindows().offerFile(
        contact, path,
        {.written = [answer, note] { answer(0, *note); },
         .refused = [answer](const QString &sentence) { answer(1, sentence); },
         .explained
         = [note](const QString &sentence) { *note += note->isEmpty() ? sentence : QLatin1Char('\n') + sentence; }});
}

RemoteCommands::Refusal RemoteCommands::status(const QJsonObject &command)
{
    const QString wanted = text(command, "state"), words = text(command, "text").simplified();
    if (words.size() > limits::messageLength)
        return tr("The command is too long.");
    for (const NamedState &state : states) {
        if (wanted != QLatin1String(state.name))
            continue;
        if (state.base == BaseState::invisible && !words.isEmpty())
            return tr("No text can stand beside \"invisible\".");
        m_parts.engine.ownState().become(state.base, words);
        return std::nullopt;
    }
    return tr("There is no state \"%1\": online, busy, away and invisible are.").arg(wanted);
}

} // namespace nimb
