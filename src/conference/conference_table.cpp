#include "conference/conference_table.h"

#include <algorithm>

namespace nimb
{

ConferenceTable::ConferenceTable(const Conference::Services &services, ConferenceMenuView &menu)
    : m_services(services), m_menu(menu)
{
    const ContactList &contacts = services.contacts;
    QObject::connect(&contacts, &ContactList::dataChanged, &contacts,
                     [this](const QModelIndex &first) { contactChanged(m_services.contacts.at(first.row())); });
}

/// A participant whom this copy did not know tells its name after it has joined.
void ConferenceTable::contactChanged(const Contact &contact)
{
    for (const auto &conference : m_slots) {
        if (conference)
            conference->partecipanti().setName(contact.ip, contact.nickname);
    }
}

void ConferenceTable::ownAddressChanged()
{
    for (const auto &conference : m_slots) {
        if (conference)
            conference->ownAddressChanged();
    }
}

int ConferenceTable::CreateNewConfWin(bool host, std::int16_t ChnNum, Ipv4Address IP)
{
    int slot = 1;
    while (slot <= lastSlot && at(slot))
        ++slot;
    if (slot > lastSlot)
        return 0;
    const Conference::Identity identity{.ImHostingThatConf = host,
                                        .ConfServerIP = host ? m_services.conversation.common.ownIP : IP,
                                        .ConfNum = ChnNum != 0 ? ChnNum : static_cast<std::int16_t>(slot),
                                        .fConfN = slot};
    if (!host)
        m_guestships.insert({identity.ConfServerIP, identity.ConfNum});
    std::unique_ptr<Conference> &window = windowIn(slot);
    window = std::make_unique<Conference>(m_services, identity, [this, slot] { unload(slot); });
    window->view().showWindow();
    window->Clearbtn_Click();
    m_menu.setInvite2ConfVisible(slot, host);
    return slot;
}

void ConferenceTable::mnuCreateNewConf()
{
    if (CreateNewConfWin(true, 0, m_services.conversation.common.ownIP) < 1)
        m_services.prompts.tell(tr("Sorry, conf windows are over!!!"), programTitle);
}

void ConferenceTable::mnuInvite2Conf(int slot, const ContactAddress &ip)
{
    if (Conference *const conference = hosted(slot))
        conference->invite(ip);
}

Conference *ConferenceTable::at(int slot)
{
    return slot >= 1 && slot <= lastSlot ? windowIn(slot).get() : nullptr;
}

Conference *ConferenceTable::hosted(int number)
{
    Conference *const conference = at(number);
    return conference && conference->isHostedHere() ? conference : nullptr;
}

bool ConferenceTable::isOf(const Conference *conference, Ipv4Address host, int number)
{
    return conference && !conference->isHostedHere() && conference->identity().ConfServerIP == host
        && conference->identity().ConfNum == number;
}

Conference *ConferenceTable::joined(Ipv4Address host, int number)
{
    const auto found = std::ranges::find_if(
        m_slots, [&](const auto &conference) { return isOf(conference.get(), host, number) && !conference->isOver(); });
    return found == m_slots.end() ? nullptr : found->get();
}

bool ConferenceTable::hasWindowOf(Ipv4Address host, int number) const
{
    return std::ranges::any_of(m_slots, [&](const auto &conference) { return isOf(conference.get(), host, number); });
}

void ConferenceTable::takeLeave(Conference &conference)
{
    // A window whose conference is over must not take leave for one that was joined again.
    const Conference::Identity &identity = conference.identity();
    const bool joinedAgain = conference.isOver() && joined(identity.ConfServerIP, identity.ConfNum);
    conference.Form_Unload(!joinedAgain);
}

void ConferenceTable::takeLeave()
{
    for (const std::unique_ptr<Conference> &conference : m_slots) {
        if (conference)
            takeLeave(*conference);
    }
}

void ConferenceTable::unload(int slot)
{
    const std::unique_ptr<Conference> conference = std::move(windowIn(slot));
    if (!conference)
        return;
    takeLeave(*conference);
    m_services.notices.conferenceSeen(slot);
    m_menu.setInvite2ConfVisible(slot, false);
}

void ConferenceTable::unloadAll()
{
    for (int slot = 1; slot <= lastSlot; ++slot)
        unload(slot);
}

} // namespace nimb
