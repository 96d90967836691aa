#include "private_chat/outbox.h"

#include "base/clock_text.h"
#include "base/isolated.h"
#include "base/limits.h"
#include "base/remote_text.h"
#include "base/settings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace nimb
{
namespace
{

constexpr QLatin1String messagesKey("WaitingMessages");
constexpr std::chrono::hours ageLooked{1};

QJsonObject stored(const WaitingMessage &message)
{
    return {{QStringLiteral("number"), static_cast<qint64>(message.number)},
            {QStringLiteral("address"), message.ip.text()},
            {QStringLiteral("nickname"), message.nickname},
            {QStringLiteral("workstation"), message.workstation},
            {QStringLiteral("text"), message.text},
            {QStringLiteral("written"), message.written.toMSecsSinceEpoch()},
            {QStringLiteral("givenUp"), message.isGivenUp}};
}

/// Nothing for what is none; the file is the user's own, and yet anybody may have written into it.
std::optional<WaitingMessage> readMessage(const QJsonObject &object)
{
    WaitingMessage message{.number = object[QLatin1String("number")].toInteger(),
                           .ip = object[QLatin1String("address")].toString(),
                           .nickname = remoteName(object[QLatin1String("nickname")].toString()),
                           .workstation = remoteName(object[QLatin1String("workstation")].toString()),
                           .text = object[QLatin1String("text")].toString().left(limits::messageLength),
                           .written = QDateTime::fromMSecsSinceEpoch(object[QLatin1String("written")].toInteger()),
                           .isGivenUp = object[QLatin1String("givenUp")].toBool()};
    const bool isWhole = message.number > 0 && message.ip.ipv4() && !message.text.isEmpty();
    return isWhole ? std::optional(std::move(message)) : std::nullopt;
}

/// What was not known when the message was written distinguishes nobody.
bool fits(const QString &then, const QString &now)
{
    return then == now || then == unknownName || then.isEmpty();
}

} // namespace

QString writtenAt(const QDateTime &time)
{
    // Goes over the wire, so it is the same in every language.
    return QStringLiteral(" (written %1)").arg(QLocale::c().toString(time, QStringLiteral("ddd HH:mm")));
}

Outbox::Outbox(Parts parts)
    : m_parts(std::move(parts)), m_age(m_parts.timers.repeating(ageLooked, [this] { giveUpOld(); }))
{
}

Outbox::~Outbox() = default;

void Outbox::load()
{
    const QString kept = readSetting(m_parts.store, messagesKey);
    const QJsonArray array = QJsonDocument::fromJson(kept.toUtf8()).array();
    for (const QJsonValue &value : array) {
        std::optional<WaitingMessage> message = readMessage(value.toObject());
        const bool isAnother = message && message->number > m_lastNumber && m_messages.size() < limits::outboxMessages;
        if (!isAnother)
            continue;
        m_lastNumber = message->number;
        m_messages.push_back(*std::move(message));
    }
    if (m_messages.size() != static_cast<std::size_t>(array.size()) || (array.isEmpty() && !kept.isEmpty()))
        m_parts.log.fault(tr("Of the messages that wait to be sent some could not be read and are lost."));
    for (const WaitingMessage &message : std::vector(m_messages)) {
        if (!m_parts.contacts.find(message.ip))
            std::erase(m_messages, message); // nobody is left whom it could be sent to
        else
            wasChanged(message.ip);
    }
    if (!m_messages.empty())
        m_age->start();
    giveUpOld();
}

std::optional<std::int64_t> Outbox::put(const ContactAddress &ip, const QString &text, const QDateTime &written)
{
    const Contact *const contact = m_parts.contacts.find(ip);
    if (!contact || !ip.ipv4())
        return std::nullopt;
    if (m_messages.size() >= limits::outboxMessages) {
        const auto old = std::ranges::find(m_messages, true, &WaitingMessage::isGivenUp);
        if (old == m_messages.end()) {
            m_parts.log.fault(tr("%1 messages wait to be sent already, and no more can.").arg(limits::outboxMessages));
            return std::nullopt;
        }
        remove(old);
    }
    m_messages.push_back({.number = ++m_lastNumber,
                          .ip = ip,
                          .nickname = contact->nickname,
                          .workstation = contact->workstation,
                          .text = text,
                          .written = written});
    if (!m_age->isActive())
        m_age->start();
    save();
    wasChanged(ip);
    return m_lastNumber;
}

void Outbox::forget(std::int64_t number)
{
    const auto message = std::ranges::find(m_messages, number, &WaitingMessage::number);
    if (message == m_messages.end())
        return;
    const WaitingMessage gone = *message;
    remove(message);
    save();
    m_parts.notSent(gone);
}

void Outbox::erase(std::int64_t number)
{
    forget(number);
    if (m_parts.goodCopy.offeredCopy())
        return; // which nobody has decided about
    if (const std::optional<QString> problem = m_parts.goodCopy.renewCopy())
        m_parts.log.fault(*problem);
}

void Outbox::contactRemoved(const ContactAddress &ip)
{
    for (const WaitingMessage &message : std::vector(m_messages)) {
        if (message.ip != ip)
            continue;
        if (!message.isGivenUp)
            m_parts.log.remark(tr("--- a message that waited for %1, who is no contact any more, is not sent ---")
                                   .arg(isolated(paintedName(message.nickname))));
        forget(message.number);
    }
}

// --- sending

void Outbox::seenOnline(Ipv4Address ip, bool)
{
    deliverTo(ip);
}

std::vector<WaitingMessage>::iterator Outbox::firstTo(const ContactAddress &ip)
{
    const Contact *const contact = m_parts.contacts.find(ip);
    return std::ranges::find_if(m_messages, [this, &ip, contact](const WaitingMessage &message) {
        if (message.ip != ip || message.isGivenUp || !contact)
            return false;
        const NotMeant refused{message.number, contact->workstation, contact->nickname};
        return std::ranges::find(m_notMeant, refused) == m_notMeant.end();
    });
}

void Outbox::deliverTo(const ContactAddress &ip)
{
    if (m_parts.common.isInvisible() || firstTo(ip) == m_messages.end())
        return;
    Delivery &delivery = m_deliveries[ip.text()];
    if (!delivery.first) {
        delivery.first = m_parts.timers.oneShot(limits::outboxPause, [this, ip] { sendNextTo(ip); });
        delivery.next = m_parts.timers.oneShot(limits::outboxPace, [this, ip] { sendNextTo(ip); });
    }
    if (!delivery.first->isActive() && !delivery.next->isActive() && !delivery.isAsking)
        delivery.first->start();
}

void Outbox::sendNextTo(const ContactAddress &ip)
{
    giveUpOld();
    const Contact *const contact = m_parts.contacts.find(ip);
    const auto next = firstTo(ip);
    if (contact && next == m_messages.end())
        tellWhatWasSent(*contact);
    if (!contact || !isPresent(contact->presence) || m_parts.common.isInvisible() || next == m_messages.end())
        return;
    const WaitingMessage message = *next;
    if (!fits(message.workstation, contact->workstation) || !fits(message.nickname, contact->nickname))
        return askWhetherMeant(message);
    // What is killed in between is sent twice, which is better than not at all.
    m_parts.send(message);
    if (const auto sent = std::ranges::find(m_messages, message.number, &WaitingMessage::number);
        sent != m_messages.end())
        remove(sent);
    save();
    if (const auto delivery = m_deliveries.find(ip.text()); delivery != m_deliveries.end()) {
        ++delivery->second.sent;
        delivery->second.next->start();
    }
}

void Outbox::tellWhatWasSent(const Contact &contact)
{
    const auto delivery = m_deliveries.find(contact.ip.text());
    const int sent = delivery == m_deliveries.end() ? 0 : std::exchange(delivery->second.sent, 0);
    const QString name = isolated(paintedName(contact.nickname));
    if (sent == 1)
        m_parts.log.remark(tr("--- the message that waited for %1 was sent ---").arg(name));
    else if (sent > 1)
        m_parts.log.remark(tr("--- the %1 messages that waited for %2 were sent ---").arg(QString::number(sent), name));
}

/// The box runs an event loop, in which everything may change.
void Outbox::askWhetherMeant(const WaitingMessage &message)
{
    const QString address = message.ip.text();
    const Contact &contact = *m_parts.contacts.find(message.ip);
    const NotMeant other{message.number, contact.workstation, contact.nickname};
    m_deliveries[address].isAsking = true;
    const std::optional<bool> isMeant = m_parts.prompts.decideUnasked(
        tr("What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.\n\n"
           "Send it to %4?")
            .arg(isolated(paintedName(message.nickname)), isolated(paintedName(message.workstation)), address,
                 isolated(paintedName(contact.nickname)), isolated(paintedName(contact.workstation))),
        programTitle);
    const auto delivery = m_deliveries.find(address);
    if (delivery == m_deliveries.end())
        return; // the program ends
    delivery->second.isAsking = false;
    if (!isMeant)
        return;
    for (WaitingMessage &waiting : m_messages) {
        if (waiting.ip != message.ip || waiting.nickname != message.nickname
            || waiting.workstation != message.workstation)
            continue;
        if (*isMeant) {
            waiting.workstation = other.workstation;
            waiting.nickname = other.nickname;
        } else {
            m_notMeant.push_back({waiting.number, other.workstation, other.nickname});
        }
    }
    save();
    delivery->second.next->start();
}

void Outbox::end()
{
    m_deliveries.clear();
    m_age->stop();
}

// --- what waits

void Outbox::giveUpOld()
{
    const QDateTime oldest = m_parts.clock.now().addDays(-limits::outboxDays);
    for (const WaitingMessage &old : std::vector(m_messages)) {
        const auto message = std::ranges::find(m_messages, old.number, &WaitingMessage::number);
        if (message == m_messages.end() || message->isGivenUp || message->written >= oldest)
            continue;
        message->isGivenUp = true;
        m_parts.log.remark(tr("--- what you wrote to %1 on %2 was not sent within seven days ---")
                               .arg(isolated(paintedName(old.nickname)), shortDate(old.written)));
        save();
        wasChanged(old.ip);
        m_parts.notSent(old);
    }
    if (std::ranges::all_of(m_messages, &WaitingMessage::isGivenUp))
        m_age->stop();
}

void Outbox::remove(std::vector<WaitingMessage>::iterator message)
{
    const ContactAddress ip = message->ip;
    std::erase_if(m_notMeant, [number = message->number](const NotMeant &other) { return other.number == number; });
    m_messages.erase(message);
    wasChanged(ip);
}

void Outbox::wasChanged(const ContactAddress &ip)
{
    const auto waits = [&ip](const WaitingMessage &message) { return message.ip == ip && !message.isGivenUp; };
    const auto number = static_cast<int>(std::ranges::count_if(m_messages, waits));
    m_parts.contacts.change(ip, [number](Contact &contact) { contact.toBeSent = number; });
    Q_EMIT changed();
}

void Outbox::save()
{
    QJsonArray array;
    for (const WaitingMessage &message : m_messages)
        array.append(stored(message));
    const QByteArray json = array.isEmpty() ? QByteArray() : QJsonDocument(array).toJson(QJsonDocument::Compact);
    writeSetting(m_parts.store, messagesKey, QString::fromUtf8(json));
    if (const std::optional<QString> problem = m_parts.store.save())
        m_parts.log.fault(*problem);
}

} // namespace nimb
