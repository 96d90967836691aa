// What is written to somebody who is away and goes out when he is back.
#pragma once

#include "base/good_copy.h"
#include "base/main_log.h"
#include "base/prompts.h"
#include "base/settings_store.h"
#include "base/timers.h"
#include "base/waiting_messages.h"
#include "contacts/presence_receiver.h"

#include <QCoreApplication>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace nimb
{

/// Kept in the profile at every change. A message belongs to an address, a workstation and a nickname: when somebody
/// else turns up at that address, which may have been given to another machine, the user is asked. Nothing leaves while
/// this copy is invisible: once it is not, all contacts are asked whether they are there. Nothing on the wire tells
/// whether it arrived.
class Outbox : public WaitingMessages, public PresenceWitness
{
    Q_OBJECT

public:
    struct Parts {
        const Common &common;
        SettingsStore &store;
        GoodCopy &goodCopy; ///< of the store
        ContactList &contacts;
        Timers &timers;
        const WallClock &clock;
        Prompts &prompts;
        MainLog &log;
        /// Sends it as a message of the conversation with its receiver.
        std::function<void(const WaitingMessage &message)> send;
        /// It will not be sent any more, be it for its age or because the user wants it so.
        std::function<void(const WaitingMessage &message)> notSent;
    };

    explicit Outbox(Parts parts);
    ~Outbox() override;

    /// Reads what an earlier run has left. The contacts must be there.
    void load();
    /// The number that it has now; nothing when there is no such contact, or too many wait.
    [[nodiscard]] std::optional<std::int64_t> put(const ContactAddress &ip, const QString &text,
                                                  const QDateTime &written);
    void contactRemoved(const ContactAddress &ip);
    /// From now on nothing is sent.
    void end();

    const std::vector<WaitingMessage> &messages() const override { return m_messages; }
    void forget(std::int64_t number) override;
    void erase(std::int64_t number) override;
    void seenOnline(Ipv4Address ip, bool isNew) override;

private:
    /// To one contact who is there.
    struct Delivery {
        std::unique_ptr<Timer> first, next;
        bool isAsking = false;
        int sent = 0; ///< since the main log said so
    };

    /// Who turned up instead, and of whom the user has said so.
    struct NotMeant {
        std::int64_t number; ///< of the message
        QString workstation, nickname;
        bool operator==(const NotMeant &) const = default;
    };

    void deliverTo(const ContactAddress &ip);
    void sendNextTo(const ContactAddress &ip);
    /// Once all have gone: who looks at no window of theirs sees that they have.
    void tellWhatWasSent(const Contact &contact);
    /// Somebody else is there.
    void askWhetherMeant(const WaitingMessage &message);
    void giveUpOld();
    /// Of those that may go to the one who is there now.
    std::vector<WaitingMessage>::iterator firstTo(const ContactAddress &ip);
    void remove(std::vector<WaitingMessage>::iterator message);
    void wasChanged(const ContactAddress &ip);
    void save();

    Parts m_parts;
    std::vector<WaitingMessage> m_messages;
    std::map<QString, Delivery> m_deliveries; ///< by address
    std::vector<NotMeant> m_notMeant;
    std::int64_t m_lastNumber = 0;
    std::unique_ptr<Timer> m_age;
};

/// " (written Tue 14:05)", which is sent behind such a message.
QString writtenAt(const QDateTime &time);

} // namespace nimb
