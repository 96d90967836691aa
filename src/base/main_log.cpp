#include "base/main_log.h"

#include "base/clock_text.h"
#include "base/line_break.h"
#include "base/remote_text.h"

namespace nimb
{

void MainLog::line(const QString &text, Colour colour)
{
    appendText(m_log, text + lineBreak, colour);
}

QString MainLog::opening() const
{
    const QDateTime now = m_clock.now();
    return QStringLiteral("--- %1 @ %2 - ").arg(shortDate(now), shortTime(now));
}

void MainLog::banner()
{
    const QDateTime now = m_clock.now();
    line(tr("« NIMB-Chat [today:%1 - now:%2] Ready »").arg(shortDate(now), longTime(now)), colours::banner);
    m_log.setSelStart(m_log.textLength());
}

void MainLog::clear()
{
    m_log.clear();
    banner();
}

void MainLog::changedName(const QString &from, const QString &to)
{
    line(opening() + tr("%1 is now called %2 ---").arg(from, to), colours::stateChange);
}

void MainLog::wentOnline(const QString &name)
{
    line(opening() + tr("%1 went online ---").arg(name), colours::presence);
}

void MainLog::wentOffline(const QString &name)
{
    line(opening() + tr("%1 has gone offline ---").arg(name), colours::presence);
}

void MainLog::changedState(const QString &name, const QString &state)
{
    line(opening() + tr("%1 changed his state to '%2'  ---").arg(name, state), colours::stateChange);
}

void MainLog::buzzed(const QString &name)
{
    line(opening() + tr("%1 buzzes you ---").arg(name), colours::presence);
}

void MainLog::sentContact(const QString &sender, const QString &name, const QString &address)
{
    line(opening() + tr("%1 sent you the contact '%2' (%3) ---").arg(sender, name, address), colours::presence);
}

void MainLog::unsupportedCommand(const QString &data)
{
    line(tr("--- unsupported command received (%1) ---").arg(shownText(remoteLine(data))), colours::unknownDatagram);
}

void MainLog::garbage(const QString &data)
{
    line(tr("--- garbage received  (%1) ---").arg(shownText(remoteLine(data))), colours::unknownDatagram);
}

void MainLog::moreUnknown(const QString &sender, int count)
{
    line(tr("--- %n more that nobody understands received from %1 ---", nullptr, count).arg(sender),
         colours::unknownDatagram);
}

void MainLog::fault(const QString &sentence)
{
    line(sentence, colours::fault);
}

void MainLog::note(const QString &text)
{
    line(tr("--- %1 ---").arg(text), colours::banner);
}

void MainLog::note(const QString &text, const LogCommand &command)
{
    const QString mark = QStringLiteral("%1"), whole = tr("--- %1 ---").arg(text);
    const qsizetype place = whole.indexOf(mark);
    if (place < 0)
        return line(whole, colours::banner);
    appendText(m_log, whole.left(place), colours::banner);
    appendCommand(m_log, command.words, colours::banner, command.name);
    line(whole.mid(place + mark.size()), colours::banner);
}

void MainLog::remark(const QString &sentence)
{
    line(sentence, colours::banner);
}

} // namespace nimb
