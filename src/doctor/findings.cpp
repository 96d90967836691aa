#include "doctor/findings.h"

#include "doctor/doctor.h"
#include "protocol/address_text.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <iterator>

namespace nimb
{

namespace
{

/// Room for the burst with which a few hundred copies answer; every system that we know grants more unless somebody
/// has changed that.
constexpr int enoughBuffer = 128 * 1024;

QString namesOf(const std::vector<NetworkCard> &cards)
{
    QStringList names;
    for (const NetworkCard &card : cards)
        names.append(Doctor::tr("%1 (%2)").arg(addressText(card.address), card.name));
    return names.join(QStringLiteral(", "));
}

const NetworkCard *cardWith(const std::vector<NetworkCard> &cards, Ipv4Address address)
{
    const auto card = std::ranges::find(cards, address, &NetworkCard::address);
    return card == cards.end() ? nullptr : &*card;
}

} // namespace

const char *nameOf(Check check)
{
    static constexpr std::array names = {"network",   "ownAddress", "port",        "receiveBuffer", "ownDatagram",
                                         "broadcast", "firewall",   "severalWays", "contact"};
    return names[static_cast<std::size_t>(check)];
}

const char *nameOf(Verdict verdict)
{
    static constexpr std::array names = {"underWay", "fine", "doubtful", "wrong"};
    return names[static_cast<std::size_t>(verdict)];
}

namespace findings
{

Finding network(const std::vector<NetworkCard> &cards, const OwnAddress &own)
{
    if (own.isFixed && own.address.isLoopback())
        return {Check::network, Verdict::fine,
                Doctor::tr("NIMB-Chat was told to stay on this computer: it uses the loopback network.")};
    std::vector<NetworkCard> outside;
    std::ranges::remove_copy_if(cards, std::back_inserter(outside), &NetworkCard::isInsideMachine);
    if (outside.empty())
        return {Check::network, Verdict::wrong, Doctor::tr("No network with an IPv4 address is connected."),
                Doctor::tr("Plug in the cable, or join the wireless network that the others use.")};
    return {Check::network, Verdict::fine, Doctor::tr("Connected as %1.").arg(namesOf(outside))};
}

namespace
{

Finding addressIsNowhere(const OwnAddress &own)
{
    return {
        Check::ownAddress, Verdict::wrong,
        Doctor::tr("Your address is %1, and no network card of this computer has it.").arg(addressText(own.address)),
        own.isFixed ? Doctor::tr("Correct NIMBCHAT_ADDRESS, or connect that network.")
                    : Doctor::tr("Connect a network, or choose another own address in Tools, Options.")};
}

Finding nobodyIsFoundThere(const OwnAddress &own, const QString &card)
{
    return {Check::ownAddress, Verdict::doubtful,
            Doctor::tr(
                "Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to "
                "what runs inside this one.")
                .arg(addressText(own.address), card),
            own.isFixed
                ? Doctor::tr("If the others are on another network, correct NIMBCHAT_ADDRESS.")
                : Doctor::tr(
                    "If the others are on another network, choose its card as your own address in Tools, Options.")};
}

} // namespace

Finding ownAddress(const std::vector<NetworkCard> &cards, const OwnAddress &own)
{
    const QString address = addressText(own.address);
    if (own.isFixed && own.address.isLoopback())
        return {Check::ownAddress, Verdict::doubtful,
                Doctor::tr("Your address is %1, which only programs on this computer can reach.").arg(address),
                Doctor::tr("Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.")};
    const NetworkCard *const card = cardWith(cards, own.address);
    if (!card)
        return addressIsNowhere(own);
    const bool isGone = std::ranges::find(cards, own.card, &NetworkCard::name) == cards.end();
    if (!own.isFixed && !own.card.isEmpty() && isGone)
        return {
            Check::ownAddress, Verdict::doubtful,
            Doctor::tr(
                "The network card %1, whose address the options name as yours, is not connected; your address is %2 "
                "of the card %3.")
                .arg(own.card, address, card->name),
            Doctor::tr("Connect that card, or choose another own address in Tools, Options.")};
    if (!card->broadcast)
        return nobodyIsFoundThere(own, card->name);
    return {Check::ownAddress, Verdict::fine,
            Doctor::tr("Your address is %1, of the card %2.").arg(address, card->name)};
}

Finding port(std::uint16_t port, bool isBound, BindFailure failure, const std::optional<PortHolder> &holder)
{
    if (isBound)
        return {Check::port, Verdict::fine, Doctor::tr("NIMB-Chat listens on UDP port %1.").arg(port)};
    if (failure == BindFailure::notAllowed)
        return {Check::port, Verdict::wrong, Doctor::tr("The system does not let NIMB-Chat use port %1.").arg(port),
                Doctor::tr("Choose a port above 1023 in Tools, Options, the same as everybody else's.")};
    if (failure == BindFailure::addressNotHere)
        return {Check::port, Verdict::wrong, Doctor::tr("Nothing listens: this machine does not have your address."),
                Doctor::tr("Connect the network that has it; NIMB-Chat tries again every 5 seconds.")};
    if (holder && !holder->program.isEmpty())
        return {Check::port, Verdict::wrong,
                Doctor::tr("Port %1 is used by the program %2 (process %3).")
                    .arg(QString::number(port), holder->program, QString::number(holder->process)),
                Doctor::tr("Close that program; NIMB-Chat tries again every 5 seconds.")};
    if (failure == BindFailure::portTaken || holder)
        return {Check::port, Verdict::wrong, Doctor::tr("Port %1 is used by another program.").arg(port),
                Doctor::tr("\"sudo ss -ulpn sport = :%1\" shows which one.").arg(port)};
    return {Check::port, Verdict::wrong, Doctor::tr("NIMB-Chat does not listen on port %1.").arg(port),
            Doctor::tr("NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.")};
}

Finding portIsFree(std::uint16_t port)
{
    return {Check::port, Verdict::fine, Doctor::tr("UDP port %1 is free for NIMB-Chat, which does not run.").arg(port)};
}

Finding runningCopy(std::uint16_t port, const PortHolder &copy)
{
    return {Check::port, Verdict::fine,
            Doctor::tr("NIMB-Chat runs (process %1) and listens on UDP port %2.")
                .arg(QString::number(copy.process), QString::number(port))};
}

Finding receiveBuffer(int bytes)
{
    if (bytes == 0)
        return {
            Check::receiveBuffer, Verdict::doubtful, Doctor::tr("The system gives no room for waiting datagrams."), {}};
    const QString room = QString::number(bytes / 1024);
    if (bytes < enoughBuffer)
        return {
            Check::receiveBuffer, Verdict::doubtful,
            Doctor::tr("The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.")
                .arg(room),
            Doctor::tr("\"sudo sysctl -w net.core.rmem_max=4194304\" lets it keep more.")};
    return {Check::receiveBuffer, Verdict::fine, Doctor::tr("The system keeps %1 KiB of waiting datagrams.").arg(room)};
}

Finding ownDatagram(Ipv4Address own, bool cameBack)
{
    if (cameBack)
        return {Check::ownDatagram, Verdict::fine,
                Doctor::tr("A datagram to %1, yourself, came back.").arg(addressText(own))};
    return {Check::ownDatagram, Verdict::wrong,
            Doctor::tr("A datagram to %1, yourself, did not come back within a second.").arg(addressText(own)),
            Doctor::tr("A firewall on this computer keeps even its own datagrams out, or the address is not its own.")};
}

Finding ownDatagramNotTried()
{
    return {Check::ownDatagram, Verdict::doubtful,
            Doctor::tr("No datagram was sent to yourself, for nothing listens for it."),
            Doctor::tr("See to the port first.")};
}

Finding ownDatagramLeftToTheCopy()
{
    return {
        Check::ownDatagram, Verdict::fine,
        Doctor::tr(
            "No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.")};
}

Finding broadcast(const std::vector<BroadcastTrial> &trials, const OwnAddress &own)
{
    if (trials.empty() && own.isFixed && own.address.isLoopback())
        return {Check::broadcast, Verdict::fine, Doctor::tr("Everybody on this computer can be asked.")};
    if (trials.empty())
        return {Check::broadcast, Verdict::doubtful, Doctor::tr("There is no network on which everybody can be asked."),
                Doctor::tr("Add the others by their addresses: Users, Add offline user.")};
    QStringList leaving, refused;
    for (const BroadcastTrial &trial : trials)
        (trial.left ? leaving : refused)
            .append(Doctor::tr("%1 (%2)").arg(addressText(*trial.card.broadcast), trial.card.name));
    const QString comma = QStringLiteral(", ");
    if (refused.isEmpty())
        return {Check::broadcast, Verdict::fine,
                Doctor::tr("A question to everybody leaves: %1.").arg(leaving.join(comma))};
    return {Check::broadcast, leaving.isEmpty() ? Verdict::wrong : Verdict::doubtful,
            Doctor::tr("The system refuses to send to everybody: %1.").arg(refused.join(comma)),
            Doctor::tr("A firewall on this computer keeps it in; let UDP out to that address.")};
}

Finding firewall(const Firewall &firewall, std::uint16_t port)
{
    const QString number = QString::number(port);
    switch (firewall.verdict) {
    case Firewall::Verdict::none:
        return {Check::firewall, Verdict::fine, Doctor::tr("No firewall is seen on this computer.")};
    case Firewall::Verdict::lets:
        return {Check::firewall, Verdict::fine,
                Doctor::tr("The firewall %1 is on and lets UDP port %2 in.").arg(firewall.name, number)};
    case Firewall::Verdict::blocks:
        return {Check::firewall, Verdict::wrong,
                Doctor::tr("The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.")
                    .arg(firewall.name, number),
                Doctor::tr("This opens the port: %1").arg(firewall.opening)};
    case Firewall::Verdict::forSome:
        return {Check::firewall, Verdict::doubtful,
                Doctor::tr("The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.")
                    .arg(firewall.name, number),
                Doctor::tr("If others do not reach you, this opens the port for everybody: %1").arg(firewall.opening)};
    case Firewall::Verdict::unknown:
        return {Check::firewall, Verdict::doubtful,
                Doctor::tr("Only the administrator may see whether a firewall keeps UDP port %1 out.").arg(number),
                Doctor::tr("\"sudo nimb-chatctl doctor\" tells.")};
    case Firewall::Verdict::noReader:
        return {Check::firewall, Verdict::doubtful,
                Doctor::tr("This computer may have a firewall, and no program is here that shows all of its rules."),
                Doctor::tr(
                    "\"sudo nft list ruleset\" and \"sudo iptables-legacy -S\" show them, of the packages nftables and "
                    "iptables.")};
    case Firewall::Verdict::unreadable:
        break;
    }
    return {Check::firewall, Verdict::doubtful,
            Doctor::tr("The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.")
                .arg(firewall.name, number),
            Doctor::tr("This opens the port: %1").arg(firewall.opening)};
}

Finding severalWays(const std::vector<NetworkCard> &cards, const std::vector<QString> &tunnels, const OwnAddress &own)
{
    const NetworkCard *const card = cardWith(cards, own.address);
    const bool isChosen = own.isFixed || (card && card->name == own.card);
    for (auto one = cards.begin(); one != cards.end(); ++one) {
        const auto other = std::find_if(one + 1, cards.end(), [one](const NetworkCard &further) {
            return one->broadcast && further.broadcast == one->broadcast && further.name != one->name;
        });
        if (other == cards.end())
            continue;
        if (isChosen)
            return {Check::severalWays, Verdict::fine,
                    Doctor::tr("The cards %1 and %2 are on the same network; your address is the one that was chosen.")
                        .arg(one->name, other->name)};
        return {Check::severalWays, Verdict::doubtful,
                Doctor::tr("The cards %1 and %2 are on the same network: others may see you under either address.")
                    .arg(one->name, other->name),
                Doctor::tr("Turn one of them off, or choose one as your own address in Tools, Options.")};
    }
    if (card && std::ranges::find(tunnels, card->name) != tunnels.end())
        return {Check::severalWays, isChosen ? Verdict::fine : Verdict::doubtful,
                Doctor::tr("Your address is that of %1, a VPN or another line to a single machine.").arg(card->name),
                isChosen ? QString()
                         : Doctor::tr(
                             "If the others are on the local network, choose its card as your own address in Tools, "
                             "Options.")};
    if (!tunnels.empty())
        return {Check::severalWays, Verdict::fine,
                Doctor::tr("A VPN is up (%1); your address is not on it.")
                    .arg(QStringList(tunnels.begin(), tunnels.end()).join(QStringLiteral(", ")))};
    return {Check::severalWays, Verdict::fine,
            Doctor::tr("There is no VPN, and no network has two cards of this computer.")};
}

Finding contactAnswered(const QString &nickname, std::chrono::milliseconds after)
{
    return {Check::contact, Verdict::fine,
            Doctor::tr("%1 answered after %2 ms.").arg(nickname, QString::number(after.count()))};
}

Finding contactSilent(const QString &nickname, Ipv4Address address, Neighbour neighbour)
{
    const QString ip = addressText(address);
    switch (neighbour) {
    case Neighbour::known:
        return {
            Check::contact, Verdict::wrong,
            Doctor::tr("%1 did not answer, but the computer at %2 is there, or was a moment ago.").arg(nickname, ip),
            Doctor::tr(
                "A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that "
                "copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor "
                "there as well.")};
    case Neighbour::unknown:
        return {Check::contact, Verdict::wrong,
                Doctor::tr("%1 did not answer, and no computer on your network has the address %2.").arg(nickname, ip),
                Doctor::tr(
                    "It is off, it has another address by now, it is on another network, or the access point keeps its "
                    "machines apart (client isolation).")};
    case Neighbour::farAway:
        break;
    }
    return {
        Check::contact, Verdict::wrong,
        Doctor::tr(
            "%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.")
            .arg(nickname, ip),
        Doctor::tr(
            "What leads there must let UDP through in both directions; and what may be wrong on one network may be "
            "wrong "
            "there: a firewall, a copy that does not run, a user who is invisible.")};
}

Finding contactOnOtherCard(const QString &nickname, Ipv4Address contact, const OwnAddress &own, Ipv4Address source)
{
    return {Check::contact, Verdict::wrong,
            Doctor::tr(
                "%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose "
                "address %5 may not be reached from there.")
                .arg(nickname, addressText(contact), addressText(source), own.card, addressText(own.address)),
            Doctor::tr("Choose \"automatic\" or the card of that network as your own address in Tools, Options.")};
}

Finding contactNotAsked(const QString &reason, const QString &advice)
{
    return {Check::contact, Verdict::doubtful, reason, advice};
}

} // namespace findings
} // namespace nimb
