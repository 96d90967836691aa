// The user's own list of peers: an item model that keeps itself sorted.
#pragma once

#include "base/contact_address.h"
#include "base/presence.h"
#include "base/settings_store.h"
#include "protocol/handlers.h"

#include <QAbstractTableModel>
#include <QDateTime>
#include <QHash>
#include <QSet>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace nimb
{

/// What stands where a peer's nickname or workstation is not known. Stored and compared, so never translated.
inline const QString unknownName = QStringLiteral("[unknown]");
/// What a participant of a conference is called before it has told its name.
inline const QString unheardName = QStringLiteral("(unknown)");
/// What is stored for a contact that is muted, and nothing for the others.
inline const QString storedMute = QStringLiteral("1");
/// Address that ends the stored list.
inline const QString endOfStoredContacts = QStringLiteral("255.255.255.255");

struct Contact {
    QString nickname;         ///< the row's text
    QString formerNickname{}; ///< what it was called before, [unknown] left out; empty when it had no name
    QString workstation;
    ContactAddress ip; ///< where every datagram to this contact goes; its text is the row's tag
    Presence presence = Presence::unknown;
    QString sortKey;
    int privateWindow = 0;      ///< number of the peer's private window, 0 when none is open
    QString avatarNumber;       ///< number of the peer's avatar, empty when none is known
    QString state;              ///< last reported state text
    bool broughtByPeer = false; ///< in this run, and not by the user; or in a stored list that was full
    bool spokenTo = false;      ///< it has written or been written to, or was buzzed
    bool hasAnswered = false;   ///< a question of this run: more than whoever forges addresses hears of
    bool muted = false;         ///< the user wants to be told of nothing that it sends
    bool soughtByUser = false;  ///< in this run: its window was opened by the user or typed in, or it was buzzed
    int waitingMessages = 0;    ///< that wait to be read, for it has no window
    int unreadInWindow = 0;     ///< messages in its window that nobody has seen; limits::unreadCounted at most
    int toBeSent = 0;           ///< messages that wait until it is there
    QDateTime lastMessage{};    ///< when it wrote the last one, in this run or that nobody has read
    qint64 seenAt = 0;          ///< when it last said that it is there: ms since 1970; 0: not in this run
    std::optional<ContactAddress> shownBy{}; ///< the contact that stands for it on the screen; see SameMachine

    /// What cannot be seen is no name.
    void rename(const QString &remoteNickname);
    /// Messages that nobody has seen.
    int unread() const { return waitingMessages + unreadInWindow; }
    /// The user knows it. Nothing that it does itself makes it so, for whoever forges addresses can do all of it in the
    /// name of thousands.
    bool isAcquaintance() const { return !broughtByPeer || soughtByUser; }
    /// Shows the presence and writes the sort key that goes with it, with the nickname in capitals.
    void setPresence(Presence now);
    /// Nothing is known yet and nobody was asked: sorted by the nickname as it is written.
    void setUnheard();
};

/// A name as a peer wrote it, made fit for a row; unknownName when nothing of it can be seen.
QString nameOrUnknown(const QString &remote);

/// Keyed rows, no two with the same address, sorted ascending on the sort key by code point; equal keys keep the
/// order of arrival. Rows move one by one, the list is never sorted as a whole.
class ContactList : public QAbstractTableModel, public Senders
{
    Q_OBJECT

public:
    enum Column { Nickname, Workstation, IpAddress, State, PrivateWin, AvatarNum, StateText, ColumnCount };
    /// UnreadRole: how many messages nobody has seen. SharesNameRole: another contact has a name that looks like this
    /// one's. LastMessageRole: when the last message came. HiddenRole: another row stands for this one. PresenceRole: a
    /// Presence, as int. WordsRole: what is said about the contact beside its presence; where nothing
    /// is, "away" and "busy"; always "offline". MutedRole: the user is told of nothing that it sends.
    enum Role {
        KeyRole = Qt::UserRole,
        TagRole,
        PictureRole,
        UnreadRole,
        SharesNameRole,
        LastMessageRole,
        HiddenRole,
        PresenceRole,
        WordsRole,
        MutedRole,
    };

    using QAbstractTableModel::QAbstractTableModel;
    ~ContactList() override;

    /// The contact with this address, or null. The pointer is good until the contact is removed; rows changed through
    /// change() only.
    const Contact *find(const ContactAddress &ip) const;
    bool isContact(Ipv4Address ip) const override { return find(ip) != nullptr; }
    const Contact &at(int row) const;
    int rowOf(const ContactAddress &ip) const; ///< -1 when there is none
    /// The other contacts whose names look like this one's; none of them when there are more than that.
    std::vector<const Contact *> lookAlikesOf(const ContactAddress &ip, qsizetype atMost) const;
    /// In list order.
    std::vector<ContactAddress> addresses() const;

    /// False, and nothing changes, when the address is there already or empty.
    bool add(Contact contact);
    /// Applies the edit to the contact with this address and moves its row to where it belongs now. The edit must not
    /// touch the address. False when there is no such contact.
    bool change(const ContactAddress &ip, const std::function<void(Contact &)> &edit);
    bool remove(const ContactAddress &ip);
    /// Something that is shown in the contact's row, and kept elsewhere, has changed.
    void showAnew(const ContactAddress &ip);

    /// The contact that makes room first when strangers have filled the list: of those whom peers have brought in this
    /// run and to whom nobody ever spoke, one who is offline; else one who has never answered, and may be a forged
    /// address. Of several the one that came first. Empty when there is none.
    std::optional<ContactAddress> firstToMakeRoom() const;

    /// Reads the stored list; every contact starts as not yet known. The list must be empty. A list of
    /// limits::contactsOfCrowd was filled by strangers in earlier runs, and they make room as those of this run do.
    void load(const SettingsStore &store);
    /// Notes contact number n, counted from 1, for saving.
    static void saveContact(SettingsStore &store, int number, const Contact &contact);
    /// Notes the end of a stored list of this many contacts, and empties what a longer one has left behind it.
    static void saveEnd(SettingsStore &store, int count);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Messages of all contacts that nobody has seen.
    int unread() const { return m_unread; }

Q_SIGNALS:
    void unreadChanged();
    /// Somebody whom the user knows is in the list now, or no longer.
    void acquaintanceChanged(nimb::Ipv4Address ip, bool acquainted);

private:
    /// Whether it is there nevertheless, and when it came: the order in which contacts make room.
    using PlaceToGo = std::pair<bool, quint64>;
    struct Row {
        Contact contact;
        quint64 arrival = 0;
        QString look{}; ///< lookOf() the nickname
        bool toldAcquainted = false;
        std::optional<PlaceToGo> placeToGo{}; ///< in m_makeRoom
    };
    static bool before(const Row &left, const Row &right);
    int position(const Row &row) const;
    void moveRow(int from, Row &row);
    /// The row takes or gives up its place among those whose names look like its own.
    void joinLookAlikes(Row &row);
    void leaveLookAlikes(Row &row);
    bool sharesName(const Row &row) const { return m_lookAlikes.value(row.look).size() > 1; }
    void rowChanged(const Row &row);
    /// "Ann, away, Back at five, 2 unread".
    QString readOut(const Row &row) const;
    static std::optional<PlaceToGo> placeToGo(const Row &row);
    void noteWhetherItMakesRoom(Row &row);
    void tellWhetherAcquainted(Row &row, bool acquainted);
    void addUnread(int difference);

    int m_unread = 0;
    std::vector<std::unique_ptr<Row>> m_rows;
    QHash<ContactAddress, Row *> m_byAddress;
    QHash<QString, QSet<Row *>> m_lookAlikes; ///< by look
    quint64 m_arrivals = 0;
    std::map<PlaceToGo, const Row *> m_makeRoom;
};

/// The compound order of code points, which differs from that of UTF-16 units beyond U+FFFF.
int compareCodePoints(const QString &left, const QString &right);

} // namespace nimb
