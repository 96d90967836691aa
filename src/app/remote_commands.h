// What nimb-chatctl may ask of the running copy.
#pragma once

#include "app/messenger.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>

#include <functional>

namespace nimb
{

/// Commands as JSON objects, and their answers. A command has the member "command" and what the command needs:
/// "contacts"; "send" with "contact" and "text"; "send-file" with "contact" and "path"; "status" with "state" and
/// perhaps "text"; "show"; "quit". An answer has "status", 0 when it was done and 1 when not, and perhaps "sentence"
/// for the user, which says why; that of "contacts" has "contacts", a list of objects.
class RemoteCommands
{
    Q_DECLARE_TR_FUNCTIONS(RemoteCommands)

public:
    struct Parts {
        Messenger &engine;
        std::function<void()> show;
        std::function<void()> quit; ///< once the answer has been given
    };

    explicit RemoteCommands(Parts parts) : m_parts(std::move(parts)) { }

    using Reply = std::function<void(const QByteArray &answer)>;

    /// command: JSON in UTF-8, as is the answer, which comes once: at once or, where files have to be looked through,
    /// later.
    void carryOut(const QByteArray &command, const Reply &reply);

    /// Before there is an engine; only the end can be had.
    static QByteArray answerAtLogin(const QByteArray &command, const std::function<void()> &quit);

private:
    using Refusal = std::optional<QString>; ///< a sentence; nothing when it was done

    QJsonObject contacts() const;
    static QString nothingToSend();
    Refusal send(const QJsonObject &command);
    void sendFile(const QJsonObject &command, const Reply &reply);
    Refusal status(const QJsonObject &command);
    /// The address of the contact that is meant, or why there is none that can be written to.
    Refusal find(const QString &meant, ContactAddress &found) const;

    Parts m_parts;
};

} // namespace nimb
