#include "people/search.h"

#include "base/limits.h"
#include "base/name_list.h"
#include "protocol/address_text.h"

#include <QStringList>

#include <algorithm>

namespace nimb
{
namespace
{

constexpr std::chrono::milliseconds tickTime{100};
constexpr std::size_t ticksOfSecond = 10;
constexpr std::size_t secondQuestion = ticksOfSecond;
constexpr std::size_t endOfAnswers = 3 * ticksOfSecond;

std::size_t batchesOf(std::size_t targets)
{
    return (targets + limits::questionsOfSearch - 1) / limits::questionsOfSearch;
}

} // namespace

void Search::ask(std::vector<SearchTarget> targets, const QString &where)
{
    std::erase_if(m_runs, [](const auto &run) { return !run->timer->isActive(); });
    if (targets.empty() || m_hasEnded)
        return;
    if (targets.size() == 1 && isOneself(targets.front().destination))
        return askOneself(targets.front().destination);
    const auto hasWay = [this](const SearchTarget &to) { return m_parts.ownAddresses.hasWayTo(to.destination); };
    if (std::ranges::none_of(targets, hasWay))
        return m_parts.log.fault(tr("No network of this computer leads to %1, so nobody was asked.").arg(where));
    m_parts.log.note(tr("asking %1 who is there").arg(where));
    Run &run = *m_runs.emplace_back(std::make_unique<Run>());
    for (const SearchTarget &target : targets) {
        run.destinations.insert(target.destination);
        run.asksEverybody = run.asksEverybody || isEverybodys(target.destination);
    }
    run.targets = std::move(targets);
    run.byInvisible = m_parts.common.isInvisible();
    run.timer = m_parts.timers.repeating(tickTime, [this, &run] {
        ++run.tick;
        tick(run);
    });
    run.timer->start();
    tick(run);
}

bool Search::isUnderWay(const Run &run)
{
    const std::size_t batches = batchesOf(run.targets.size());
    return batches > 1 && run.timer->isActive() && run.tick + 1 < batches + secondQuestion;
}

void Search::showProgress() const
{
    SearchProgress sum;
    for (const auto &run : m_runs) {
        if (!isUnderWay(*run))
            continue;
        sum.asked += static_cast<int>(std::min(run->targets.size(), (run->tick + 1) * limits::questionsOfSearch));
        sum.all += static_cast<int>(run->targets.size());
    }
    m_parts.view.setSearchProgress(sum.all > 0 ? std::optional(sum) : std::nullopt);
}

void Search::stop()
{
    for (const auto &run : m_runs) {
        if (isUnderWay(*run))
            stop(*run);
    }
    showProgress();
}

void Search::stop(Run &run)
{
    run.timer->stop();
    const std::size_t asked = std::min(run.targets.size(), (run.tick + 1) * limits::questionsOfSearch);
    m_parts.log.note(
        tr("stopped when %1 of %2 had been asked").arg(QString::number(asked), QString::number(run.targets.size())));
    if (!run.answers.empty())
        tellAnswers(run);
}

void Search::askUnlessInvisible(std::vector<SearchTarget> targets, const QString &where)
{
    if (!m_parts.common.isInvisible())
        ask(std::move(targets), where);
}

void Search::findEverybody()
{
    if (m_parts.common.isInvisible())
        return m_parts.log.note(
            tr("nobody was asked: you are invisible, and the question would show everybody that you "
               "are there"));
    std::vector<SearchTarget> targets;
    QStringList names;
    for (const SearchedNetwork &network : networks()) {
        targets.push_back({network.everybody, network.address});
        names.append(tr("%1 (%2)").arg(addressText(network.everybody), network.name));
    }
    if (targets.empty())
        return m_parts.log.note(tr("nobody can be asked: no network is connected"));
    ask(std::move(targets), tr("everybody on %1").arg(names.join(QStringLiteral(", "))));
}

std::vector<SearchedNetwork> Search::networks() const
{
    // Copies that have addresses of the loopback network are on this machine, and on no other.
    constexpr Ipv4Address everybodyHere(127, 255, 255, 255);
    if (const Ipv4Address own = m_parts.common.ownIP; own.isLoopback())
        return {{tr("this computer"), own, everybodyHere}};
    // Where the own address is chosen all that we send bears it: whoever hears another one first knows somebody else.
    const std::vector<NetworkCard> cards = m_parts.ownAddresses.cards();
    const bool isChosen = m_parts.ownAddresses.isFixed() || addressOfCard(m_parts.ownAddresses, m_parts.common.ownCard);
    std::vector<SearchedNetwork> networks;
    for (const NetworkCard &card : cards) {
        const bool isOwn = card.address == m_parts.common.ownIP;
        if (!card.broadcast || (isChosen && !isOwn))
            continue;
        // Who is asked from two addresses on one network knows two of us, and one of them never answers.
        const auto same = std::ranges::find(networks, *card.broadcast, &SearchedNetwork::everybody);
        if (same == networks.end())
            networks.push_back({card.name, card.address, *card.broadcast});
        else if (isOwn)
            *same = {card.name, card.address, *card.broadcast};
    }
    return networks;
}

void Search::end()
{
    m_hasEnded = true;
    for (const auto &run : m_runs)
        run->timer->stop();
    showProgress();
}

void Search::tick(Run &run)
{
    if (m_parts.common.isInvisible() && !run.byInvisible) {
        run.timer->stop();
        m_parts.log.note(tr("nobody is asked any more: you are invisible"));
        return showProgress();
    }
    askBatch(run, run.tick, false);
    if (run.tick >= secondQuestion)
        askBatch(run, run.tick - secondQuestion, true);
    if (run.tick + 1 >= batchesOf(run.targets.size()) + endOfAnswers)
        finish(run);
    showProgress();
}

void Search::askBatch(const Run &run, std::size_t batch, bool again) const
{
    const std::size_t end = std::min(run.targets.size(), (batch + 1) * limits::questionsOfSearch);
    for (std::size_t i = batch * limits::questionsOfSearch; i < end; ++i) {
        const SearchTarget &target = run.targets[i];
        if (!again || !run.answered.contains(target.destination))
            m_parts.sender.questionToAll(target.destination, target.source);
    }
}

bool Search::isOneself(Ipv4Address address) const
{
    const Ipv4Address own = m_parts.common.ownIP;
    return address == own || m_parts.ownAddresses.isOwn(address) || (address.isLoopback() && !own.isLoopback());
}

/// The question goes out all the same: it shows that the socket works.
void Search::askOneself(Ipv4Address address) const
{
    m_parts.sender.questionToAll(address, std::nullopt);
    m_parts.log.note(tr("%1 is your own address: nobody else hears what is sent there").arg(addressText(address)));
}

bool Search::isEverybodys(Ipv4Address address) const
{
    // Those of other networks are not known, and most of them end so.
    return m_parts.ownAddresses.isBroadcast(address) || address.number() % 256 == 255;
}

bool Search::concerns(const Run &run, Ipv4Address ip)
{
    return run.timer->isActive() && (run.asksEverybody || run.destinations.contains(ip));
}

void Search::seenOnline(Ipv4Address ip, bool isNew)
{
    for (const auto &run : m_runs) {
        if (!concerns(*run, ip))
            continue;
        if (run->answered.insert(ip).second)
            run->answers.push_back(ip);
        run->newOnes += isNew ? 1 : 0;
    }
}

QString Search::names(const Run &run) const
{
    QStringList names;
    for (const Ipv4Address ip : run.answers) {
        if (const Contact *const contact = m_parts.contacts.find(ip))
            names.append(contact->nickname);
    }
    return nameList(names, static_cast<qsizetype>(run.answers.size()));
}

void Search::finish(Run &run)
{
    run.timer->stop();
    if (run.answers.empty() && m_parts.common.ownIP.isLoopback() && !m_parts.ownAddresses.isFixed())
        return m_parts.log.note(tr("nobody answered: no network is connected, so only this computer was asked"));
    if (run.answers.empty())
        return m_parts.log.note(tr("nobody answered: nobody may be there, a firewall may be in the way, or the network "
                                   "may keep its machines apart; %1 looks which"),
                                {tr("Help, Network doctor..."), networkDoctorCommand});
    tellAnswers(run);
}

void Search::tellAnswers(const Run &run) const
{
    m_parts.log.note(tr("%1 answered: %2; %3 new")
                         .arg(QString::number(run.answers.size()), names(run), QString::number(run.newOnes)));
}

} // namespace nimb
