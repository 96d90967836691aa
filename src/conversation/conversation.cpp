#include "conversation/conversation.h"

#include "base/clock_text.h"
#include "base/limits.h"
#include "base/line_break.h"
#include "base/own_address.h"
#include "base/remote_text.h"
#include "conversation/history_choice.h"
#include "files/file_transfers.h"
#include "log/emoticons.h"
#include "protocol/address_text.h"

namespace nimb
{

Conversation::Conversation(const Services &services, std::function<void()> unloaded)
    : m_services(services), m_unloaded(std::move(unloaded)), m_self(std::make_shared<Conversation *>(this))
{
}

void Conversation::Clearbtn_Click()
{
    const LogFont &font = common().logFont;
    conversationView().setLogFont(font);
    RichTextLog &log = conversationView().outtext();
    log.clear();
    history().cleared(keptAs());
    ++m_cleared;
    m_waitsForEarlier = false;
    m_keptNew.reset();
    if (m_unread)
        seen(0);
    log.setSelFont(font);
    const QDateTime now = m_services.clock.now();
    appendLine(openingLine(shortDate(now), longTime(now)), colours::banner);
}

bool Conversation::send(const QString &typed)
{
    if (typed.isEmpty() || m_over)
        return false;
    sendText(textToSend(cutText(typed, limits::messageLength)));
    return true;
}

void Conversation::sendText(const QString &text)
{
    deliver(text);
    conversationView().outtext().unmarkNew();
    const Writer self{common().ownNickname, conversationView().windowTextColour(), addressText(common().ownIP),
                      common().ownHostName};
    LogMessage message{.writer = self.name, .time = m_services.clock.now(), .isOwn = true, .fate = fate()};
    if (message.fate != MessageFate::sent) {
        message.receiver = keptAs().name;
        message.number = ++m_lastNumber;
    }
    appendMessage(self, text, message);
    wasSent(text, message);
}

void Conversation::appendReceived(const Writer &writer, const QString &text)
{
    if (!m_unread && !conversationView().isEndSeen()) {
        m_unread = m_unreadKept = 0;
        conversationView().outtext().markNew();
        history().leftUnread(keptAs());
    }
    const QDateTime now = m_services.clock.now();
    appendMessage(writer, text, {.writer = writer.name, .time = now});
    offerReceived(writer, text);
    conversationView().setLastMessage(tr("Last message: %1 @ %2").arg(shortDate(now), longTime(now)));
}

void Conversation::appendMessage(const Writer &writer, const QString &text, const LogMessage &message)
{
    RichTextLog &log = conversationView().outtext();
    log.setSelMessage(message);
    log.setSelBold(true);
    appendText(log, writer.name + QLatin1String("> "), writer.colour);
    log.setSelBold(false);
    AddTextWithEmoticons(log, text, writer.colour);
    appendText(log, lineBreak, writer.colour);
    log.setSelMessage({});
    history().said(keptAs(),
                   {.time = message.time,
                    .isOwn = message.isOwn,
                    .address = writer.address,
                    .writer = writer.name,
                    .workstation = writer.workstation,
                    .text = text});
}

bool Conversation::mayFilesBeSent()
{
    const QString trouble = whyNoFiles();
    if (!trouble.isEmpty())
        conversationView().showFileTrouble(trouble);
    return trouble.isEmpty();
}

/// Each answer may come when this is gone.
FileOffers::Answers Conversation::offerAnswers()
{
    const auto show = [self = std::weak_ptr(m_self)](const QString &sentence) {
        if (const auto there = self.lock())
            (*there)->conversationView().showFileTrouble(sentence);
    };
    return {.written =
                [self = std::weak_ptr(m_self)](const QString &message) {
                    const auto there = self.lock();
                    return there && (*there)->mayFilesBeSent() && (*there)->send(message);
                },
            .refused = show,
            .leftOut = show};
}

void Conversation::sendFiles(const QStringList &paths)
{
    if (!m_over && mayFilesBeSent())
        transfers().offers.offer(paths, fileRecipients(), offerAnswers());
}

void Conversation::offerFile(const QString &path, const OfferReports &reports)
{
    const QString trouble = whyNoFiles();
    if (m_over || !trouble.isEmpty())
        return reports.refused(trouble.isEmpty() ? FileOffers::nobodyThere() : trouble);
    FileOffers::Answers answers = offerAnswers();
    answers.written = [reports, write = answers.written](const QString &message) {
        const bool isWritten = write(message);
        isWritten ? reports.written() : reports.refused(FileOffers::nobodyThere());
        return isWritten;
    };
    answers.refused = [reports, show = answers.refused](const QString &sentence) {
        show(sentence);
        reports.refused(sentence);
    };
    answers.leftOut = [reports, show = answers.leftOut](const QString &sentence) {
        show(sentence);
        reports.explained(sentence);
    };
    answers.explained = reports.explained;
    transfers().offers.offer({path}, fileRecipients(), answers);
}

void Conversation::offerReceived(const Writer &writer, const QString &text)
{
    const std::optional<Ipv4Address> address = readAddress(writer.address);
    if (!address)
        return;
    const Ipv4Address own = ownAddressTowards(common(), socket(), *address);
    if (const std::optional<int> number = transfers().received.add(text, *address, writer.name, own))
        conversationView().addReceivedFile(*number);
}

bool Conversation::showEarlier()
{
    if (m_hasAllEarlier || !history().isKept(keptAs().address))
        return false;
    if (m_waitsForEarlier)
        return true;
    m_waitsForEarlier = true;
    const auto show = [self = std::weak_ptr(m_self), cleared = m_cleared](const std::vector<StoredMessage> &messages) {
        const auto there = self.lock();
        if (!there)
            return;
        Conversation &conversation = **there;
        if (conversation.m_cleared != cleared)
            return; // they are asked for again when what was cleared is brought back
        conversation.m_waitsForEarlier = false;
        conversation.m_hasAllEarlier = messages.empty();
        if (!messages.empty())
            conversation.m_earliest = messages.front().number;
        std::optional<std::int64_t> readTo;
        if (const auto unread = std::exchange(conversation.m_keptNew, std::nullopt))
            readTo = unread->readTo;
        conversation.conversationView().addEarlier(messages, readTo);
    };
    int most = m_earliest ? limits::historyPage : limits::historyShown;
    if (m_keptNew)
        most += qMin(m_keptNew->messages, limits::historyOfUnread);
    history().history().findIn(keptAs(), {.before = m_earliest, .most = most}, show);
    return true;
}

void Conversation::appendLine(const QString &line, Colour colour)
{
    appendText(conversationView().outtext(), line + lineBreak, colour);
}

void Conversation::end()
{
    m_over = true;
    conversationView().setInputEnabled(false);
}

QString Conversation::dateAndTime() const
{
    const QDateTime now = m_services.clock.now();
    return shortDate(now) + QLatin1Char(' ') + longTime(now);
}

void Conversation::leaveUnread(const UnreadConversation &unread)
{
    m_keptNew = unread;
    m_unread = m_unreadKept = 0;
}

void Conversation::seen(int unread)
{
    if (m_keptNew)
        return; // it is not shown yet
    if (m_unread && unread > 0)
        m_unread = unread;
    else if (std::exchange(m_unread, std::nullopt))
        history().wasRead(keptAs(), 0);
    wasRead(unread);
}

void Conversation::turnedAway()
{
    if (m_unread && std::exchange(m_unreadKept, *m_unread) != *m_unread)
        history().wasRead(keptAs(), *m_unread);
}

void Conversation::closed(UnloadMode mode)
{
    if (mode == UnloadMode::closeBox && std::exchange(m_unread, std::nullopt))
        history().wasRead(keptAs(), 0);
    m_unloaded();
}

void Conversation::outtext_Change()
{
    if (common().windowFlashingAvailable && conversationView().isMinimisedOrInactive())
        conversationView().flash();
}

} // namespace nimb
