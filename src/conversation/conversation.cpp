#include "conversation/conversation.h"

#include "base/clock_text.h"
#include "base/limits.h"
#include "base/line_break.h"
#include "base/remote_text.h"
#include "log/emoticons.h"

namespace nimb
{

Conversation::Conversation(const Services &services, std::function<void()> unloaded)
    : m_services(services), m_unloaded(std::move(unloaded))
{
}

void Conversation::Clearbtn_Click()
{
    const LogFont &font = common().logFont;
    conversationView().setLogFont(font);
    RichTextLog &log = conversationView().outtext();
    log.clear();
    log.setSelFont(font);
    const QDateTime now = m_services.clock.now();
    appendLine(openingLine(shortDate(now), longTime(now)), colours::banner);
}

bool Conversation::send(const QString &typed)
{
    if (typed.isEmpty() || m_over)
        return false;
    const QString text = textToSend(cutText(typed, limits::messageLength));
    deliver(text);
    appendMessage({common().ownNickname, conversationView().windowTextColour()}, text);
    return true;
}

void Conversation::appendReceived(const Writer &writer, const QString &text)
{
    appendMessage(writer, text);
    const QDateTime now = m_services.clock.now();
    conversationView().setLastMessage(tr("Last message: %1 @ %2").arg(shortDate(now), longTime(now)));
}

void Conversation::appendMessage(const Writer &writer, const QString &text)
{
    RichTextLog &log = conversationView().outtext();
    appendText(log, writer.name + QLatin1String("> "), writer.colour);
    AddTextWithEmoticons(log, text, writer.colour);
    appendText(log, lineBreak, writer.colour);
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

void Conversation::outtext_Change()
{
    if (common().windowFlashingAvailable && conversationView().isMinimisedOrInactive())
        conversationView().flash();
}

} // namespace nimb
