// Conversations that outlive their windows, as far as the user wants it.
#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace nimb
{

/// What a conversation is found by.
struct KeptConversation {
    enum class Kind { contact, conference };

    Kind kind = Kind::contact;
    QString address;   ///< the contact's, or that of a conference's host
    QDateTime begun{}; ///< of a conference, whose numbers come again; a contact has one conversation
    QString name{};    ///< as it was called last; nothing is found by it

    bool operator==(const KeptConversation &other) const
    {
        return kind == other.kind && address == other.address && begun == other.begun;
    }
};

struct KeptMessage {
    QDateTime time; ///< to the millisecond
    bool isOwn = false;
    QString address{}; ///< of who wrote it
    QString writer{};  ///< the nickname at that time
    QString workstation{};
    QString text; ///< line breaks are CR LF

    bool operator==(const KeptMessage &) const = default;
};

/// A message where it is kept. Numbers grow with the time of keeping and never come again.
struct StoredMessage {
    std::int64_t number = 0;
    std::int64_t conversation = 0; ///< number of it
    KeptMessage message;
};

struct StoredConversation {
    std::int64_t number = 0;
    KeptConversation conversation;
    QDateTime last; ///< time of the newest message
    int messages = 0;
};

/// A conversation of which not all was read: what others have written behind that message.
struct UnreadConversation {
    KeptConversation conversation;
    std::int64_t readTo = 0; ///< number of a message, or 0
    int messages = 0;
    QDateTime last{}; ///< time of the newest of them
};

/// Which messages are looked for; nothing restricts nothing.
struct HistoryQuestion {
    QString words{}; ///< all of them, in any order, each the beginning or a part of a word
    std::optional<std::int64_t> conversation{};
    QDateTime from{};                     ///< invalid: from the first
    QDateTime until{};                    ///< not included; invalid: to the last
    std::optional<std::int64_t> before{}; ///< a message's number: only older ones
    std::optional<std::int64_t> after{};  ///< only newer ones, and of those the oldest
    int most = 50;
};

/// Which messages are erased; what is not named restricts nothing.
struct HistorySelection {
    std::optional<std::int64_t> message{};
    std::optional<std::int64_t> conversation{};
    QDateTime from{};
    QDateTime until{}; ///< not included
};

/// Nothing here waits: answers come with the event loop, in the order of the questions, and not at all once this has
/// ended. Where the history cannot be read they are empty; that, and that it cannot be written, `trouble` says.
class History
{
public:
    using Found = std::function<void(const std::vector<StoredMessage> &messages)>;
    using Listed = std::function<void(const std::vector<StoredConversation> &conversations)>;
    using Unread = std::function<void(const std::vector<UnreadConversation> &conversations)>;
    using Done = std::function<void(bool done)>;

    virtual ~History() = default;

    /// Is on the disk at most 200 ms later.
    virtual void keep(const KeptConversation &conversation, const KeptMessage &message) = 0;
    /// The newest ones that the question names (or the oldest behind `after`), in the order of their times of keeping.
    virtual void find(const HistoryQuestion &question, Found found) = 0;
    /// The same for what is looked for where only its name is known, question.conversation not being set; nothing where
    /// nothing of it is kept.
    virtual void findIn(const KeptConversation &conversation, const HistoryQuestion &question, Found found) = 0;
    /// The one with the newest message first.
    virtual void list(Listed listed) = 0;
    /// What is kept of it from now on is not read, unless something before it is not.
    virtual void leaveUnread(const KeptConversation &conversation) = 0;
    /// All of it was read but for this many messages of others.
    virtual void setRead(const KeptConversation &conversation, int unread) = 0;
    virtual void listUnread(Unread listed) = 0;
    /// For good: afterwards the texts are in no file of the profile.
    virtual void erase(const HistorySelection &selection, Done done) = 0;
    /// The same with all that is older, which nobody waits for.
    virtual void eraseBefore(const QDateTime &time) = 0;

    /// Why nothing can be kept or read now; nothing while all goes well.
    virtual std::optional<QString> troubleNow() const = 0;
    /// Called with a sentence when something cannot be kept or read, once until it can be again.
    std::function<void(const QString &sentence)> trouble;
};

} // namespace nimb
