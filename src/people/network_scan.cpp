#include "people/network_scan.h"

#include "base/remote_text.h"

#include <QStringList>

#include <algorithm>

namespace nimb
{
namespace
{

bool isNumber0To255(const QString &text)
{
    const bool digitsOnly = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return digitsOnly && !text.isEmpty() && text.size() <= 3 && text.toInt() <= 255;
}

/// The usual form of a dotted address. Numbers are decimal even with zeros before them, which systems read as octal.
std::optional<QString> dottedAddress(const QString &text)
{
    QStringList parts = text.split(u'.');
    if (parts.size() != 4 || !std::all_of(parts.begin(), parts.end(), isNumber0To255))
        return std::nullopt;
    for (QString &part : parts)
        part = QString::number(part.toInt());
    return parts.join(u'.');
}

} // namespace

void NetworkScan::Command1_Click(const QString &typed)
{
    const QString text = typed.trimmed();
    if (text.isEmpty())
        return;
    if (const std::optional<QString> address = dottedAddress(text)) {
        m_sender.question(*address);
        return;
    }
    // The answer may come when the dialog and this object are gone.
    m_resolver.resolve(text, [&sender = m_sender, &log = m_log, text](const std::optional<QString> &address) {
        if (address)
            sender.question(*address);
        else
            log.fault(tr("No address was found for \"%1\", so nobody was asked.").arg(remoteName(text)));
    });
}

} // namespace nimb
