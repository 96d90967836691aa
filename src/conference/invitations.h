// The invitations to conferences that wait for an answer.
#pragma once

#include "base/settings_store.h"
#include "conference/conference_table.h"

#include <QAbstractTableModel>
#include <QDateTime>

#include <iterator>
#include <vector>

namespace nimb
{

struct Invitation {
    enum class State { pending, refused, autorefused, closed };

    Ipv4Address host;        ///< the row's tag
    std::int16_t number = 0; ///< as the host knows the conference
    QString text;
    QDateTime arrived;
    int minutes = 0; ///< age
    State state = State::pending;
};

/// The rows in order of arrival; no two have the same host and number.
class InvitationList : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Text, Arrived, Age, Number, ColumnCount };
    /// The key ("IP", the host's address, ":" and the number), the host's address, "green" or "red".
    enum Role { KeyRole = Qt::UserRole, TagRole, PictureRole };

    using QAbstractTableModel::QAbstractTableModel;

    const Invitation &at(int row) const { return *std::next(m_rows.begin(), row); }
    /// -1 when there is none.
    int rowOf(Ipv4Address host, std::int16_t number) const;
    void add(const Invitation &invitation);
    void remove(int row);
    void setState(int row, Invitation::State state);
    void setMinutes(int row, int minutes);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Invitation &changeable(int row) { return *std::next(m_rows.begin(), row); }
    QString age(const Invitation &invitation) const;

    std::vector<Invitation> m_rows;
};

class InvitationsView
{
public:
    virtual ~InvitationsView() = default;
    /// Brings the window into view; the user may go on typing elsewhere.
    virtual void showWithoutFocus() = 0;
    virtual void showWindow() = 0;
    virtual void hideWindow() = 0;
    virtual bool isActive() const = 0;
    virtual void setAutoRefusal(bool on, int minutes) = 0;
};

/// The engine half of frmConfInvitations.
class Invitations
{
    Q_DECLARE_TR_FUNCTIONS(Invitations)

public:
    struct Services {
        const Common &common;
        Winsock &socket;
        const ContactList &contacts;
        Timers &timers;
        const WallClock &clock;
        SettingsStore &store;
        ConferenceTable &conferences;
        Notices &notices;
    };

    explicit Invitations(const Services &services);

    /// Reads the settings. The window that shows the invitations must stay until Form_Unload().
    void Form_Load(InvitationsView &view);
    InvitationList &list() { return m_list; }

    /// An invitation arrived; one that is there already is replaced. The oldest one that is over makes room in a full
    /// list; false when there is none, or when the host is no contact.
    [[nodiscard]] bool arrived(Ipv4Address host, std::int16_t number);
    /// The host has closed the conference.
    void closed(Ipv4Address host, std::int16_t number);

    void mnushowinvitations();
    /// The window has become the active one.
    void Form_Activate();
    /// A row that is not there, or not to be answered any more, is left alone.
    void ConfAgreebtn_Click(int row);
    void ConfDenybtn_Click(int row);
    void ConfDenyAllbtn_Click();
    void clearbtn_Click();
    bool isPending(int row) const;
    bool isAnyPending() const;
    /// Whether there is something to clear.
    bool isAnyOver() const;

    void setAutorefuse(bool on) { m_autorefuse = on; }
    /// Takes the text's numeric value, within 16 bits, and returns what the box is to show.
    QString setAutorefuseMins(const QString &text);

    /// Notes the settings for saving; the window is gone from now on.
    void Form_Unload();

private:
    [[nodiscard]] bool makeRoom(Ipv4Address host);
    bool isToBeAutorefused(const Invitation &invitation) const;
    void Timer1_Timer();
    void deny(int row);
    void tell(Ipv4Address host, const QString &name);
    void RefreshVisibility();

    Services m_services;
    InvitationsView *m_view = nullptr;
    InvitationList m_list;
    std::unique_ptr<Timer> m_timer1;
    bool m_autorefuse = false;
    int m_autorefuseMins = 5;
};

} // namespace nimb
