// Asks strangers who is there, and tells who answered.
#pragma once

#include "base/main_log.h"
#include "base/main_window_view.h"
#include "base/own_addresses.h"
#include "contacts/announcement.h"
#include "contacts/presence_receiver.h"

#include <memory>
#include <set>
#include <vector>

namespace nimb
{

/// One question somewhere, as it leaves this machine.
struct SearchTarget {
    Ipv4Address destination;             ///< of one copy, or of everybody on a network
    std::optional<Ipv4Address> source{}; ///< of the card through which it goes; nothing: as the system chooses
    bool operator==(const SearchTarget &) const = default;
};

/// A network on which everybody can be asked.
struct SearchedNetwork {
    QString name;          ///< of the card, or what the user calls it
    Ipv4Address address;   ///< of this machine there
    Ipv4Address everybody; ///< where everybody there hears it
    bool operator==(const SearchedNetwork &) const = default;
};

/// Everybody is asked twice: whoever does not know this copy takes note of it at the first question, and answers the
/// second. The main log says what is asked, and who has answered when the time for it is over. Where so many are to be
/// asked that it takes a while, the view shows how far that has come.
class Search : public PresenceWitness
{
    Q_DECLARE_TR_FUNCTIONS(Search)

public:
    struct Parts {
        const Common &common;
        const PresenceSender &sender;
        const ContactList &contacts;
        const OwnAddresses &ownAddresses;
        MainLog &log;
        SearchView &view;
        Timers &timers;
    };

    explicit Search(const Parts &parts) : m_parts(parts) { }

    /// where: what the log calls the targets. At most limits::questionsOfSearch leave in a tenth of a second.
    void ask(std::vector<SearchTarget> targets, const QString &where);
    /// For questions that the user has not asked for in so many words: they would show that he is there.
    void askUnlessInvisible(std::vector<SearchTarget> targets, const QString &where);

    /// Those on which everybody can be asked, each one once. For a copy with a loopback address that is this very
    /// machine.
    [[nodiscard]] std::vector<SearchedNetwork> networks() const;
    /// Asks everybody on all of them, unless the user is invisible.
    void findEverybody();

    /// Asks none of those any more who are still to be asked.
    void stop();
    /// The same for good, without a word: the program ends.
    void end();

    void seenOnline(Ipv4Address ip, bool isNew) override;

private:
    struct Run {
        std::vector<SearchTarget> targets;
        std::set<Ipv4Address> destinations; ///< of the targets
        bool asksEverybody = false;         ///< one of them is everybody's on a network
        std::size_t tick = 0;               ///< tenths of a second since the first question
        std::vector<Ipv4Address> answers;   ///< in the order in which they came, each one once
        std::set<Ipv4Address> answered;     ///< the same
        int newOnes = 0;
        bool byInvisible = false; ///< the user was so already when he asked for it
        std::unique_ptr<Timer> timer;
    };

    void tick(Run &run);
    void askBatch(const Run &run, std::size_t batch, bool again) const;
    static bool concerns(const Run &run, Ipv4Address ip);
    bool isOneself(Ipv4Address address) const;
    void askOneself(Ipv4Address address) const;
    bool isEverybodys(Ipv4Address address) const;
    /// It takes a while, and not everybody has been asked twice.
    static bool isUnderWay(const Run &run);
    void showProgress() const;
    void stop(Run &run);
    void finish(Run &run);
    void tellAnswers(const Run &run) const;
    QString names(const Run &run) const;

    Parts m_parts;
    std::vector<std::unique_ptr<Run>> m_runs;
    bool m_hasEnded = false;
};

} // namespace nimb
