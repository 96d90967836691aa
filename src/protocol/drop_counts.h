// What was dropped, and why. Shown in the status bar's tool tip, never in a log.
#pragma once

#include "protocol/ipv4_address.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <map>

namespace nimb
{

enum class Drop {
    stranger,           ///< a datagram from an address that is no contact
    incomplete,         ///< a known command that lacks what it must carry
    noFeature,          ///< a known command that nothing here takes
    noWindow,           ///< for a private window where there is none
    noConference,       ///< a conference datagram that fits no conference, or that its sender may not send
    badAddress,         ///< an address that cannot become a contact
    tooManyContacts,    ///< strangers have filled the contact list
    tooManyWaiting,     ///< a message while too many waited already for their windows
    tooManyInvitations, ///< an invitation while too many waited, of its host or of all
    tooManyAvatars,     ///< the picture of a stranger while those of too many were kept
    madeRoom,           ///< a contact that strangers had caused left a full list for a newer one
    tooOften,           ///< asked for, or sent, more often than it is answered or taken
    notSent,            ///< the system refused to send, or the socket is not bound
    notReceived,        ///< arrived at the machine and was lost before the program could read it
    tooLoud,            ///< more than could wait; the senders with the most lose first
};

/// Counts since the start of the program.
class DropCounts
{
public:
    void count(Drop reason, std::uint64_t times = 1) { m_counts[reason] += times; }
    std::uint64_t of(Drop reason) const { return m_counts.value(reason, 0); }
    /// A tooLoud of this sender, or of several when unspecified. The summary names the one who lost most.
    void countLoud(Ipv4Address sender, std::uint64_t times);
    /// One line for each reason that occurred, ready to be shown; empty when nothing was dropped.
    QString summary() const;

private:
    QHash<Drop, std::uint64_t> m_counts;
    std::map<Ipv4Address, std::uint64_t> m_loud; ///< of the first thousand
};

} // namespace nimb
