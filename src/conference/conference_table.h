// The conference windows: five at most, hosted and joined.
#pragma once

#include "base/main_window_view.h"
#include "conference/conference.h"

#include <array>

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
    int CreateNewConfWin(bool host, std::int16_t ChnNum, const QString &IP);
    void mnuCreateNewConf();
    /// Invites the contact to the conference in this slot.
    void mnuInvite2Conf(int slot, const QString &ip);

    /// The conference that is hosted here under this number, or null.
    Conference *hosted(int number);
    /// The conference that this host numbers so and that is not terminated, or null.
    Conference *joined(const QString &host, int number);
    /// The window in this slot, or null.
    Conference *at(int slot);

    void unloadAll();

private:
    void unload(int slot);
    void contactChanged(const Contact &contact);

    Conference::Services m_services;
    ConferenceMenuView &m_menu;
    std::array<std::unique_ptr<Conference>, lastSlot + 2> m_slots;
};

} // namespace nimb
