#include "people/network_scan.h"

#include "base/remote_text.h"
#include "protocol/address_text.h"

namespace nimb
{

void NetworkScan::Command1_Click(const QString &typed)
{
    const QString text = typed.trimmed();
    if (text.isEmpty())
        return;
    if (const auto address = readAddress(text, Ipv4Address::LeadingZeros::skipped)) {
        m_sender.questionToAll(*address);
        return;
    }
    // The answer may come when the dialog and this object are gone.
    m_resolver.resolve(text, [&sender = m_sender, &log = m_log, text](std::optional<Ipv4Address> address) {
        if (address)
            sender.questionToAll(*address);
        else
            log.fault(tr("No address was found for \"%1\", so nobody was asked.").arg(remoteName(text)));
    });
}

} // namespace nimb
