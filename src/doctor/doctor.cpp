#include "doctor/doctor.h"

#include "base/isolated.h"
#include "base/remote_text.h"
#include "protocol/address_text.h"
#include "protocol/datagram.h"

#include <algorithm>

namespace nimb
{
namespace
{

constexpr std::chrono::seconds ownDatagramTime{1};
constexpr std::chrono::seconds answerTime{2};

template <class Kind> bool isA(std::string_view bytes)
{
    return std::holds_alternative<Kind>(wire::parse(bytes));
}

} // namespace

Doctor::Doctor(const Parts &parts, DoctorView &view)
    : m_parts(parts), m_view(view),
      m_ownDatagramLate(parts.timers.oneShot(ownDatagramTime, [this] { endOwnDatagram(false); })),
      m_answerLate(parts.timers.oneShot(answerTime, [this] { endContact(false); }))
{
    m_parts.trace.arrived = [this](Ipv4Address from, std::string_view bytes) { arrived(from, bytes); };
}

Doctor::~Doctor()
{
    m_parts.trace.arrived = nullptr;
}

void Doctor::found(const Finding &finding)
{
    const auto place = std::ranges::lower_bound(m_findings, finding.check, {}, &Finding::check);
    if (place != m_findings.end() && place->check == finding.check)
        *place = finding;
    else
        m_findings.insert(place, finding);
    m_view.showFinding(finding);
}

void Doctor::endOne()
{
    if (--m_underWay == 0)
        m_view.examined();
}

Verdict Doctor::verdict() const
{
    const auto worst = std::ranges::max_element(m_findings, {}, &Finding::verdict);
    return worst == m_findings.end() ? Verdict::underWay : worst->verdict;
}

std::vector<TraceLine> Doctor::datagrams(bool withTexts) const
{
    std::vector<TraceLine> lines;
    for (const TracedDatagram &datagram : m_parts.trace.datagrams())
        lines.push_back(traceLine(datagram, withTexts));
    return lines;
}

QString Doctor::report(bool withTexts) const
{
    return reportText(m_findings, drops(), datagrams(withTexts));
}

findings::OwnAddress Doctor::ownAddress() const
{
    return {.address = m_parts.common.ownIP, .isFixed = m_parts.ownAddresses.isFixed(), .card = m_parts.common.ownCard};
}

void Doctor::examine()
{
    const int round = ++m_round;
    m_underWay = 2;
    const std::vector<NetworkCard> cards = m_parts.ownAddresses.cards();
    const findings::OwnAddress own = ownAddress();

    found(findings::network(cards, own));
    found(findings::ownAddress(cards, own));
    examinePort();
    found(findings::receiveBuffer(m_parts.diagnosis.receiveBufferBytes()));
    found({Check::ownDatagram, Verdict::underWay, tr("A datagram is on its way to yourself.")});

    std::vector<findings::BroadcastTrial> trials;
    std::vector<QString> tunnels;
    for (const NetworkCard &card : cards) {
        if (card.broadcast && (!own.isFixed || card.address == own.address))
            trials.push_back({card, m_parts.diagnosis.canBroadcast(card)});
        if (m_parts.diagnosis.isTunnel(card.name))
            tunnels.push_back(card.name);
    }
    found(findings::broadcast(trials, own));
    found({Check::firewall, Verdict::underWay, tr("Looking for a firewall.")});
    found(findings::severalWays(cards, tunnels, own));

    m_parts.diagnosis.readFirewall(m_parts.common.udpPort,
                                   [this, round, life = std::weak_ptr(m_life)](const Firewall &firewall) {
                                       if (life.expired() || round != m_round)
                                           return;
                                       found(findings::firewall(firewall, m_parts.common.udpPort));
                                       endOne();
                                   });
    examineOwnDatagram();
}

void Doctor::examinePort()
{
    const std::uint16_t port = m_parts.common.udpPort;
    const bool isBound = m_parts.socket.isBound();
    const auto address = m_parts.ownAddresses.isFixed() ? std::optional(m_parts.common.ownIP) : std::nullopt;
    const std::optional<PortHolder> holder = isBound ? std::nullopt : m_parts.diagnosis.holderOf(port, address);
    m_isHeldByPatient = m_parts.profileElsewhere && holder && holder->program == QLatin1String("nimb-chat")
        && holder->profile == m_parts.profileElsewhere;
    if (m_isHeldByPatient)
        found(findings::runningCopy(port, *holder));
    else if (isBound && m_parts.profileElsewhere)
        found(findings::portIsFree(port));
    else
        found(findings::port(port, isBound, m_parts.socket.bindFailure(), holder));
}

/// The own question, which a copy ignores when it comes from itself.
void Doctor::examineOwnDatagram()
{
    m_ownDatagramLate->stop();
    if (!m_parts.socket.isBound()) {
        found(m_isHeldByPatient ? findings::ownDatagramLeftToTheCopy() : findings::ownDatagramNotTried());
        return endOne();
    }
    m_ownDatagramLate->start();
    m_parts.sender.question(m_parts.common.ownIP);
}

void Doctor::endOwnDatagram(bool cameBack)
{
    m_ownDatagramLate->stop();
    found(findings::ownDatagram(m_parts.common.ownIP, cameBack));
    endOne();
}

void Doctor::ask(const ContactAddress &ip)
{
    m_question.reset();
    m_answerLate->stop();
    const Contact *const contact = m_parts.contacts.find(ip);
    if (!contact)
        return found(findings::contactNotAsked(tr("%1 is no contact any more.").arg(ip.text()), {}));
    const std::optional<Ipv4Address> &address = ip.ipv4();
    const QString text = ip.text(), nickname = isolated(paintedName(contact->nickname));
    if (!address || !address->isUnicast())
        return found(
            findings::contactNotAsked(tr("%1 is no address such as 192.168.1.20: nothing can be sent there.").arg(text),
                                      tr("Remove the contact and add it with its address.")));
    if (m_parts.common.isInvisible())
        return found(findings::contactNotAsked(
            tr("%1 was not asked: you are invisible, and the question would show that you are here.").arg(nickname),
            tr("Choose another state first.")));
    if (!m_parts.ownAddresses.hasWayTo(*address))
        return found(findings::contactNotAsked(tr("No network of this computer leads to %1.").arg(text),
                                               tr("Connect the network on which the contact is.")));
    if (!m_parts.socket.isBound())
        return found(findings::contactNotAsked(tr("%1 was not asked, for nothing listens for an answer.").arg(nickname),
                                               tr("See to the port first.")));
    m_question = Question{*address, nickname, m_parts.clock.now()};
    found({Check::contact, Verdict::underWay, tr("Waiting for an answer of %1.").arg(nickname)});
    m_answerLate->start();
    m_parts.sender.question(ip);
}

void Doctor::arrived(Ipv4Address from, std::string_view bytes)
{
    if (m_ownDatagramLate->isActive() && from == m_parts.common.ownIP && isA<wire::OnlineQuestion>(bytes))
        endOwnDatagram(true);
    if (m_question && from == m_question->address && isA<wire::OnlineAnswer>(bytes))
        endContact(true);
}

void Doctor::endContact(bool answered)
{
    m_answerLate->stop();
    const Question question = *std::exchange(m_question, std::nullopt);
    if (answered) {
        const std::chrono::milliseconds passed(question.time.msecsTo(m_parts.clock.now()));
        // Somebody may have set the clock meanwhile.
        return found(findings::contactAnswered(question.nickname, std::clamp(passed, {}, {answerTime})));
    }
    found(silent(question));
}

Finding Doctor::silent(const Question &question) const
{
    const findings::OwnAddress own = ownAddress();
    const std::optional<Ipv4Address> source = m_parts.ownAddresses.sourceTowards(question.address);
    const bool isChosen = !own.isFixed && addressOfCard(m_parts.ownAddresses, own.card) == own.address;
    if (isChosen && source && *source != own.address)
        return findings::contactOnOtherCard(question.nickname, question.address, own, *source);
    return findings::contactSilent(question.nickname, question.address, m_parts.diagnosis.neighbour(question.address));
}

} // namespace nimb
