#include "main_window/own_networks.h"

#include "base/limits.h"
#include "base/remote_text.h"
#include "protocol/address_text.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace nimb
{

OwnNetworks::OwnNetworks(const Parts &parts)
    : m_parts(parts),
      m_shown(parts.timers.oneShot(limits::networkChangeShown, [view = &parts.view] { view->setNetworkPanel({}); }))
{
}

OwnNetworks::~OwnNetworks()
{
    end();
}

QStringList OwnNetworks::begin()
{
    m_card = m_parts.ownAddresses.isFixed() ? QString() : m_parts.common.ownCard;
    take(look());
    m_parts.watch.listen([this](NetworkChange change) { changed(change); });
    QStringList sentences;
    if (!m_now.any) {
        m_parts.view.setNetworkPanel(tr("No network"));
        sentences.append(nothingThere());
    } else if (!m_now.hasCard) {
        sentences.append(cardIsGone());
    }
    return sentences;
}

void OwnNetworks::end()
{
    m_parts.watch.listen({});
    m_announcement.reset();
    m_shown->stop();
}

OwnNetworks::Networks OwnNetworks::look() const
{
    Networks networks{.own = m_parts.common.ownIP, .cards = noticedCards()};
    if (m_parts.ownAddresses.isFixed())
        return networks; // whether it is there the port shows
    const std::optional<Ipv4Address> chosen
        = m_card.isEmpty() ? std::nullopt : addressOfCard(m_parts.ownAddresses, m_card);
    networks.hasCard = m_card.isEmpty() || chosen;
    networks.any = !networks.cards.empty();
    // Without a network the last address is as good as any: nobody hears of it.
    if (chosen)
        networks.own = *chosen;
    else if (const Ipv4Address usual = m_parts.socket.LocalIP(); !usual.isLoopback())
        networks.own = usual;
    return networks;
}

/// A copy with a fixed address is on the network of that one alone.
std::vector<NetworkCard> OwnNetworks::noticedCards() const
{
    std::vector<NetworkCard> cards = m_parts.ownAddresses.cards();
    std::erase_if(cards, [this](const NetworkCard &card) {
        return card.isInsideMachine || (m_parts.ownAddresses.isFixed() && card.address != m_parts.common.ownIP);
    });
    for (NetworkCard &card : cards)
        card.name.clear(); // nobody else sees it
    std::ranges::sort(cards, {}, [](const NetworkCard &card) { return std::tie(card.address, card.broadcast); });
    return cards;
}

void OwnNetworks::take(const Networks &networks)
{
    m_now = networks;
    m_parts.common.ownIP = networks.own;
    const bool leavesFromCard = !m_card.isEmpty() && networks.hasCard;
    m_parts.socket.setSource(leavesFromCard ? std::optional(networks.own) : std::nullopt);
}

void OwnNetworks::changed(NetworkChange change)
{
    m_parts.ownAddresses.readAnew();
    const bool listensAgain = m_parts.port.networksChanged();
    const Networks before = std::exchange(m_now, look());
    take(m_now);
    if (m_now.own != before.own)
        m_parts.ownAddressChanged();
    m_parts.networksChanged();
    // Of what the others did while this machine slept it has heard nothing.
    if (m_now == before && !listensAgain && change != NetworkChange::wokeUp)
        return;
    tellChange(before, change);
    if (!m_now.any)
        return m_announcement.reset();
    if (m_announcement && m_announcement->isActive())
        return;
    m_announcement = m_parts.timers.oneShot(m_parts.chance.upTo(limits::announcementSpread),
                                            [this] { m_parts.announcement.runUnlessInvisible(); });
    m_announcement->start();
}

void OwnNetworks::tellChange(const Networks &before, NetworkChange change)
{
    m_shown->stop();
    if (!m_now.any) {
        if (before.any)
            m_parts.log.fault(nothingThere());
        return m_parts.view.setNetworkPanel(tr("No network"));
    }
    if ((before.hasCard || !before.any) && !m_now.hasCard)
        m_parts.log.fault(cardIsGone());
    const QString address = addressText(m_now.own);
    if (!before.any)
        show(tr("There is a network now: your address is %1").arg(address));
    else if (m_now.own != before.own)
        show(tr("Your address is now %1").arg(address));
    else if (change == NetworkChange::wokeUp)
        show(tr("This computer has slept: your address is still %1").arg(address));
    else
        show(tr("The networks have changed: your address is still %1").arg(address));
}

void OwnNetworks::show(const QString &sentence)
{
    m_parts.log.remark(sentence + u'.');
    m_parts.view.setNetworkPanel(sentence);
    m_shown->start();
}

QString OwnNetworks::cardIsGone() const
{
    return tr("The network card %1, whose address the options name as yours, is not connected; your address is %2 "
              "until "
              "it is.")
        .arg(remoteName(m_card), addressText(m_now.own));
}

QString OwnNetworks::nothingThere()
{
    return tr(
        "No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one "
        "does.");
}

} // namespace nimb
