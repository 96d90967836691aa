// The conference windows: five at most, hosted and joined.
#pragma once

#include "base/main_window_view.h"
#include "conference/conference.h"

#include <array>
#include <iterator>
#include <set>
#include <utility>

namespace nimb
{

class ConferenceTable
{
    Q_DECLARE_TR_FUNCTIONS(ConferenceTable)

public:
    /// Slots 1 to lastSlot are handed out, and slot 0 and one more behind them exist without ever being filled: no more
    /// conferences at once is deliberate.
    static constexpr int lastSlot = 5;

    ConferenceTable(const Conference::Services &services, ConferenceMenuView &menu);

    /// Opens the window of a new conference; ChnNum is the host's number of a joined one and 0 for a hosted one.
    /// Returns its slot, or 0 when none is free.
    int CreateNewConfWin(bool host, std::int16_t ChnNum, Ipv4Address IP);
    void mnuCreateNewConf();
    /// Invites the contact to the conference in this slot.
    void mnuInvite2Conf(int slot, const ContactAddress &ip);

    /// The conference that is hosted here under this number, or null.
    Conference *hosted(int number);
    /// The conference that this host numbers so and that is not terminated, or null.
    Conference *joined(Ipv4Address host, int number);
    /// Whether a window stands for the conference that this host numbers so, be it terminated or not.
    bool hasWindowOf(Ipv4Address host, int number) const;
    /// The window in this slot, or null.
    Conference *at(int slot);

    /// Whether this host may still take this copy for a guest of its conference of this number: windows close here
    /// without the host's hearing of it.
    bool mayBeListedBy(Ipv4Address host, int number) const { return m_guestships.contains({host, number}); }
    /// This host has said that its conference of this number is over for this copy.
    void forgetGuestship(Ipv4Address host, int number) { m_guestships.erase({host, number}); }

    /// This copy is known by another address now.
    void ownAddressChanged();

    void unloadAll();
    /// What unloading says to hosts and guests; the windows stay as they are.
    void takeLeave();

private:
    /// Whether it is joined, and which this host numbers so.
    static bool isOf(const Conference *conference, Ipv4Address host, int number);
    std::unique_ptr<Conference> &windowIn(int slot) { return *std::next(m_slots.begin(), slot); }
    void takeLeave(Conference &conference);
    void unload(int slot);
    void contactChanged(const Contact &contact);

    Conference::Services m_services;
    ConferenceMenuView &m_menu;
    std::array<std::unique_ptr<Conference>, lastSlot + 2> m_slots;
    std::set<std::pair<Ipv4Address, int>> m_guestships; ///< host and its number
};

} // namespace nimb
