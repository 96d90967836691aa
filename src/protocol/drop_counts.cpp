#include "protocol/drop_counts.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>

namespace nimb
{
namespace
{

/// In the order of the summary.
constexpr std::array reasons
    = {Drop::stranger,   Drop::incomplete,      Drop::noFeature,      Drop::noWindow,           Drop::noConference,
       Drop::badAddress, Drop::tooManyContacts, Drop::tooManyWaiting, Drop::tooManyInvitations, Drop::tooManyAvatars,
       Drop::madeRoom,   Drop::tooOften,        Drop::notSent,        Drop::notReceived,        Drop::tooLoud};

QString label(Drop reason)
{
    switch (reason) {
    case Drop::stranger:
        return QCoreApplication::translate("DropCounts", "From addresses that are no contacts: %1");
    case Drop::incomplete:
        return QCoreApplication::translate("DropCounts", "Incomplete commands: %1");
    case Drop::noFeature:
        return QCoreApplication::translate("DropCounts", "Commands that nothing here takes: %1");
    case Drop::noWindow:
        return QCoreApplication::translate("DropCounts", "For private windows that are not open: %1");
    case Drop::noConference:
        return QCoreApplication::translate("DropCounts", "For conferences that are not there, or not to be had so: %1");
    case Drop::badAddress:
        return QCoreApplication::translate("DropCounts", "Addresses that cannot become contacts: %1");
    case Drop::tooManyContacts:
        return QCoreApplication::translate("DropCounts", "New contacts while the list was full: %1");
    case Drop::tooManyWaiting:
        return QCoreApplication::translate("DropCounts", "Messages while too many waited to be read: %1");
    case Drop::tooManyInvitations:
        return QCoreApplication::translate("DropCounts", "Invitations while too many waited: %1");
    case Drop::tooManyAvatars:
        return QCoreApplication::translate("DropCounts", "Avatars while those of too many strangers were kept: %1");
    case Drop::madeRoom:
        return QCoreApplication::translate("DropCounts", "Contacts that made room in a full list: %1");
    case Drop::tooOften:
        return QCoreApplication::translate("DropCounts", "Avatars and lists asked for or sent too often: %1");
    case Drop::notSent:
        return QCoreApplication::translate("DropCounts", "Datagrams that could not be sent: %1");
    case Drop::notReceived:
        return QCoreApplication::translate("DropCounts", "Datagrams lost before they could be read: %1");
    case Drop::tooLoud:
        return QCoreApplication::translate("DropCounts", "More than could wait, of the loudest senders: %1");
    }
    return {};
}

/// Forged addresses must not take memory without end.
constexpr std::size_t loudSendersKept = 1000;

} // namespace

void DropCounts::countLoud(Ipv4Address sender, std::uint64_t times)
{
    count(Drop::tooLoud, times);
    const bool named = !sender.isUnspecified() && (m_loud.size() < loudSendersKept || m_loud.contains(sender));
    if (named)
        m_loud[sender] += times;
}

QString DropCounts::summary() const
{
    QStringList lines;
    for (const Drop reason : reasons) {
        if (of(reason) > 0)
            lines << label(reason).arg(of(reason));
    }
    const auto loudest = std::ranges::max_element(m_loud, {}, &decltype(m_loud)::value_type::second);
    if (loudest != m_loud.end())
        lines << QCoreApplication::translate("DropCounts", "of them from %1: %2")
                     .arg(QLatin1String(loudest->first.toText()))
                     .arg(loudest->second);
    return lines.join(u'\n');
}

} // namespace nimb
