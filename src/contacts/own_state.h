// The user's own presence: the chooser's entries, what a choice does, and the automatic-reply settings.
#pragma once

#include "base/main_log.h"
#include "base/main_window_view.h"
#include "contacts/announcement.h"
#include "contacts/contact_list.h"

#include <QCoreApplication>

#include <functional>
#include <vector>

namespace nimb
{

class OwnState
{
    Q_DECLARE_TR_FUNCTIONS(OwnState)

public:
    /// The four plain states and the entry that adds a personalised one stand first.
    static constexpr int plainEntries = 5;

    /// changed: called when the own state has changed, or something that is stored.
    OwnState(Common &common, ContactList &contacts, PresenceSender &sender, Announcement &announcement, MainLog &log,
             OwnStateView &view, std::function<void()> changed);

    /// Fills the chooser: the plain entries, then those of the stored values that are personalised states. Returns
    /// the values that are none.
    QStringList load(const QStringList &storedValues);
    /// The personalised states in list order, as they are stored: a digit and the text.
    QStringList storedValues() const;

    /// The user chose an entry; position counted from 1. A position that does not exist does nothing.
    void choose(int position);
    /// As if the user had chosen a plain state, with words of his own that last until the next choice; or, where they
    /// are those of a personalised state, that one. base: not unchosen; one without words may be invisible.
    void become(BaseState base, const QString &words);
    /// The user gave up adding a personalised state: everything shows the present state again.
    void cancelPersonalized();
    /// Adds a personalised state on one of the base states online, busy and away, and chooses it. An empty text adds
    /// nothing. True when it was added.
    [[nodiscard]] bool addPersonalized(BaseState base, const QString &text);

    /// Whoever is in this state is in its base state from now on, which the contacts are told. A position that is none
    /// of a personalised state does nothing.
    void removePersonalized(int position);

    /// The check box beside the chooser: automatic reply in the present state.
    void setAutoReply(bool on);
    /// The text box lost the focus.
    void setAutoReplyText(const QString &text);

    const std::vector<OwnStateEntry> &entries() const { return m_entries; }

private:
    void append(OwnStateEntry entry);
    static QString personalizedKey(std::size_t number);
    /// Numbers the entry among the personalised states.
    void appendPersonalized(OwnStateEntry entry);
    void take(int position, const OwnPresence &chosen);
    void become(const OwnPresence &chosen);
    void goInvisible();
    /// The automatic-reply controls as they belong to the own state.
    void showAutoReply();
    void showRescanHint();
    /// Calls the sender for every contact known to be present.
    void tellPresentContacts(void (PresenceSender::*tell)(const ContactAddress &) const);

    Common &m_common;
    ContactList &m_contacts;
    PresenceSender &m_sender;
    Announcement &m_announcement;
    MainLog &m_log;
    OwnStateView &m_view;
    std::function<void()> m_changed;
    std::vector<OwnStateEntry> m_entries;
    int m_chosen = 1; ///< position of the entry that is the own state
};

} // namespace nimb
