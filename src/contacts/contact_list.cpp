#include "contacts/contact_list.h"

#include "base/isolated.h"
#include "base/limits.h"
#include "base/look_alike.h"
#include "base/own_presence.h"
#include "base/remote_text.h"
#include "base/shown_name.h"

#include <algorithm>
#include <utility>

namespace nimb
{

QString nameOrUnknown(const QString &remote)
{
    const QString name = remoteName(remote);
    return isBlank(name) ? unknownName : name;
}

namespace
{

const QString usersSection = QStringLiteral("Users");

/// UTF-16 orders surrogates before U+E000 to U+FFFF; lifting them above restores the order of code points.
uint codePointRank(char16_t unit)
{
    return QChar::isSurrogate(unit) ? uint(unit) + 0x10000 : uint(unit);
}

/// Whether there is such a value; it is empty after the next save.
bool emptyValue(SettingsStore &store, QLatin1String prefix, int number)
{
    static const QString missing(1, QChar(0xFFFF)); // a character that is none
    const QString key = prefix + QString::number(number);
    const QString value = store.read(usersSection, key, missing);
    if (value == missing)
        return false;
    if (!value.isEmpty())
        store.write(usersSection, key, {});
    return true;
}

/// What a longer list has left behind its end is read by nobody, and of people whom the user has removed.
void emptyRest(SettingsStore &store, int end)
{
    emptyValue(store, QLatin1String("Nn"), end);
    emptyValue(store, QLatin1String("Ws"), end);
    emptyValue(store, QLatin1String("Mt"), end);
    for (int n = end + 1;; ++n) {
        const bool ip = emptyValue(store, QLatin1String("IP"), n);
        const bool nickname = emptyValue(store, QLatin1String("Nn"), n);
        const bool workstation = emptyValue(store, QLatin1String("Ws"), n);
        emptyValue(store, QLatin1String("Mt"), n);
        if (!ip && !nickname && !workstation)
            return;
    }
}

QString presenceWord(Presence presence)
{
    switch (presence) {
    case Presence::online:
        return ContactList::tr("online");
    case Presence::busy:
        return ContactList::tr("busy");
    case Presence::away:
        return ContactList::tr("away");
    case Presence::offline:
        return ContactList::tr("offline");
    case Presence::unknown:
        break;
    }
    return ContactList::tr("not yet known");
}

/// Whoever is offline does nothing else, whatever was heard last.
QString ownWordsOrPresenceOf(const Contact &contact)
{
    if (contact.presence == Presence::offline)
        return presenceWord(contact.presence);
    const QString words = ownWordsOf(contact.state);
    const bool isToBeSaid = contact.presence == Presence::busy || contact.presence == Presence::away;
    return words.isEmpty() && isToBeSaid ? presenceWord(contact.presence) : words;
}

QString wordsOf(const Contact &contact)
{
    const QString words = ownWordsOrPresenceOf(contact);
    if (contact.toBeSent == 0)
        return words;
    const QString waiting = ContactList::tr("%1 to be sent").arg(contact.toBeSent);
    return words.isEmpty() ? waiting
                           : ContactList::tr("%1, %2", "two things said of a contact").arg(isolated(words), waiting);
}

} // namespace

int compareCodePoints(const QString &left, const QString &right)
{
    const auto [l, r] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    if (l == left.end() || r == right.end())
        return (l != left.end()) - (r != right.end());
    return codePointRank(l->unicode()) < codePointRank(r->unicode()) ? -1 : 1;
}

void Contact::rename(const QString &remoteNickname)
{
    if (nickname != unknownName && nickname != unheardName)
        formerNickname = nickname;
    nickname = nameOrUnknown(remoteNickname);
}

void Contact::setPresence(Presence now)
{
    presence = now;
    sortKey = sortKeyOf(now, nickname.toUpper());
}

void Contact::setUnheard()
{
    presence = Presence::unknown;
    sortKey = sortKeyOf(presence, nickname);
}

ContactList::~ContactList() = default;

const Contact *ContactList::find(const ContactAddress &ip) const
{
    const Row *row = m_byAddress.value(ip);
    return row ? &row->contact : nullptr;
}

const Contact &ContactList::at(int row) const
{
    return m_rows.at(static_cast<std::size_t>(row))->contact;
}

int ContactList::rowOf(const ContactAddress &ip) const
{
    const Row *row = m_byAddress.value(ip);
    return row ? position(*row) : -1;
}

std::vector<const Contact *> ContactList::lookAlikesOf(const ContactAddress &ip, qsizetype atMost) const
{
    std::vector<const Contact *> others;
    const Row *const own = m_byAddress.value(ip);
    const auto alike = own ? m_lookAlikes.constFind(own->look) : m_lookAlikes.cend();
    if (alike == m_lookAlikes.cend() || alike->size() > atMost + 1)
        return others;
    for (const Row *const row : *alike) {
        if (row != own)
            others.push_back(&row->contact);
    }
    return others;
}

std::vector<ContactAddress> ContactList::addresses() const
{
    std::vector<ContactAddress> list;
    list.reserve(m_rows.size());
    for (const auto &row : m_rows)
        list.push_back(row->contact.ip);
    return list;
}

bool ContactList::before(const Row &left, const Row &right)
{
    const int order = compareCodePoints(left.contact.sortKey, right.contact.sortKey);
    return order != 0 ? order < 0 : left.arrival < right.arrival;
}

int ContactList::position(const Row &row) const
{
    const auto found
        = std::ranges::lower_bound(m_rows, row, before, [](const auto &element) -> const Row & { return *element; });
    return static_cast<int>(found - m_rows.begin());
}

bool ContactList::add(Contact contact)
{
    if (contact.ip.isEmpty() || m_byAddress.contains(contact.ip))
        return false;
    auto made = std::make_unique<Row>(Row{.contact = std::move(contact), .arrival = ++m_arrivals});
    Row &row = *made;
    const int where = position(row);
    beginInsertRows({}, where, where);
    m_byAddress.insert(row.contact.ip, &row);
    m_rows.insert(m_rows.begin() + where, std::move(made));
    endInsertRows();
    joinLookAlikes(row);
    noteWhetherItMakesRoom(row);
    tellWhetherAcquainted(row, row.contact.isAcquaintance());
    addUnread(row.contact.unread());
    return true;
}

void ContactList::addUnread(int difference)
{
    m_unread += difference;
    if (difference != 0)
        Q_EMIT unreadChanged();
}

bool ContactList::change(const ContactAddress &ip, const std::function<void(Contact &)> &edit)
{
    Row *row = m_byAddress.value(ip);
    if (!row)
        return false;
    const int from = position(*row);
    Row edited = *row;
    edit(edited.contact);
    Q_ASSERT(edited.contact.ip == row->contact.ip);
    if (edited.contact.sortKey != row->contact.sortKey)
        moveRow(from, edited);
    const bool renamed = edited.contact.nickname != row->contact.nickname;
    const int unread = row->contact.unread();
    row->contact = std::move(edited.contact);
    noteWhetherItMakesRoom(*row);
    tellWhetherAcquainted(*row, row->contact.isAcquaintance());
    if (renamed) {
        leaveLookAlikes(*row);
        joinLookAlikes(*row);
    }
    rowChanged(*row);
    addUnread(row->contact.unread() - unread);
    return true;
}

void ContactList::rowChanged(const Row &row)
{
    const int now = position(row);
    Q_EMIT dataChanged(index(now, 0), index(now, ColumnCount - 1));
}

void ContactList::showAnew(const ContactAddress &ip)
{
    if (const Row *const row = m_byAddress.value(ip))
        rowChanged(*row);
}

void ContactList::joinLookAlikes(Row &row)
{
    row.look = lookOf(row.contact.nickname);
    QSet<Row *> &alike = m_lookAlikes[row.look];
    alike.insert(&row);
    if (alike.size() != 2)
        return;
    const QSet<Row *> both = alike;
    for (const Row *const one : both)
        rowChanged(*one);
}

void ContactList::leaveLookAlikes(Row &row)
{
    QSet<Row *> &alike = m_lookAlikes[row.look];
    alike.remove(&row);
    if (alike.isEmpty())
        m_lookAlikes.remove(row.look);
    else if (alike.size() == 1)
        rowChanged(**alike.constBegin());
}

void ContactList::moveRow(int from, Row &row)
{
    // Among the other rows, which are still in order, the row itself counts as absent.
    const auto own = m_rows.begin() + from;
    const auto less = [](const auto &element, const Row &value) { return before(*element, value); };
    auto target = std::lower_bound(m_rows.begin(), own, row, less);
    if (target == own)
        target = std::lower_bound(own + 1, m_rows.end(), row, less);
    const int to = static_cast<int>(target - m_rows.begin());
    if (to == from || to == from + 1) {
        m_rows[static_cast<std::size_t>(from)]->contact.sortKey = row.contact.sortKey;
        return;
    }
    beginMoveRows({}, from, from, {}, to);
    (*own)->contact.sortKey = row.contact.sortKey;
    if (to < from)
        std::rotate(target, own, own + 1);
    else
        std::rotate(own, own + 1, target);
    endMoveRows();
}

bool ContactList::remove(const ContactAddress &ip)
{
    const int row = rowOf(ip);
    if (row < 0)
        return false;
    beginRemoveRows({}, row, row);
    m_byAddress.remove(ip);
    const std::unique_ptr<Row> gone = std::move(m_rows[static_cast<std::size_t>(row)]);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
    leaveLookAlikes(*gone);
    if (gone->placeToGo)
        m_makeRoom.erase(*gone->placeToGo);
    tellWhetherAcquainted(*gone, false);
    addUnread(-gone->contact.unread());
    return true;
}

std::optional<ContactList::PlaceToGo> ContactList::placeToGo(const Row &row)
{
    const Contact &contact = row.contact;
    if (!contact.broughtByPeer || contact.spokenTo)
        return std::nullopt;
    if (contact.presence == Presence::offline)
        return PlaceToGo(false, row.arrival);
    return contact.hasAnswered ? std::nullopt : std::optional(PlaceToGo(true, row.arrival));
}

void ContactList::noteWhetherItMakesRoom(Row &row)
{
    const std::optional<PlaceToGo> place = placeToGo(row);
    if (place == row.placeToGo)
        return;
    if (row.placeToGo)
        m_makeRoom.erase(*row.placeToGo);
    if (place)
        m_makeRoom.insert({*place, &row});
    row.placeToGo = place;
}

void ContactList::tellWhetherAcquainted(Row &row, bool acquainted)
{
    if (std::exchange(row.toldAcquainted, acquainted) != acquainted && row.contact.ip.ipv4())
        Q_EMIT acquaintanceChanged(*row.contact.ip.ipv4(), acquainted);
}

std::optional<ContactAddress> ContactList::firstToMakeRoom() const
{
    return m_makeRoom.empty() ? std::nullopt : std::optional(m_makeRoom.begin()->second->contact.ip);
}

void ContactList::load(const SettingsStore &store)
{
    std::vector<Contact> stored;
    for (int n = 1;; ++n) {
        const QString number = QString::number(n);
        const QString ip = store.read(usersSection, QLatin1String("IP") + number, endOfStoredContacts);
        if (ip == endOfStoredContacts)
            break;
        Contact contact;
        contact.ip = ip;
        contact.nickname = nameOrUnknown(store.read(usersSection, QLatin1String("Nn") + number, {}));
        contact.workstation = nameOrUnknown(store.read(usersSection, QLatin1String("Ws") + number, {}));
        contact.muted = store.read(usersSection, QLatin1String("Mt") + number, {}) == storedMute;
        contact.setUnheard();
        stored.push_back(std::move(contact));
    }
    const bool isCrowd = stored.size() >= limits::contactsOfCrowd;
    for (Contact &contact : stored) {
        contact.broughtByPeer = isCrowd;
        add(std::move(contact));
    }
}

void ContactList::saveContact(SettingsStore &store, int number, const Contact &contact)
{
    const QString n = QString::number(number);
    store.write(usersSection, QLatin1String("IP") + n, contact.ip.text());
    store.write(usersSection, QLatin1String("Nn") + n, contact.nickname);
    store.write(usersSection, QLatin1String("Ws") + n, contact.workstation);
    const QString muteKey = QLatin1String("Mt") + n;
    if (contact.muted)
        store.write(usersSection, muteKey, storedMute);
    else if (!store.read(usersSection, muteKey, {}).isEmpty())
        store.write(usersSection, muteKey, {});
}

void ContactList::saveEnd(SettingsStore &store, int count)
{
    store.write(usersSection, QLatin1String("IP") + QString::number(count + 1), endOfStoredContacts);
    emptyRest(store, count + 1);
}

int ContactList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ContactList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString ContactList::readOut(const Row &row) const
{
    const Contact &contact = row.contact;
    const QString name = sharesName(row) ? QStringLiteral("%1 (%2)").arg(isolated(contact.nickname), contact.ip.text())
                                         : isolated(contact.nickname);
    QStringList parts{name, presenceWord(contact.presence)};
    if (const QString words = ownWordsOrPresenceOf(contact); !words.isEmpty() && words != parts.back())
        parts.append(isolated(words));
    if (contact.toBeSent > 0)
        parts.append(tr("%1 to be sent").arg(contact.toBeSent));
    if (contact.unread() > 0)
        parts.append(tr("%1 unread").arg(contact.unread()));
    if (contact.muted)
        parts.append(tr("muted"));
    return parts.join(QLatin1String(", "));
}

QVariant ContactList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row &row = *m_rows[static_cast<std::size_t>(index.row())];
    const Contact &contact = row.contact;
    if (role == SharesNameRole)
        return sharesName(row);
    if (role == UnreadRole)
        return contact.unread();
    if (role == LastMessageRole)
        return contact.lastMessage;
    if (role == HiddenRole)
        return contact.shownBy.has_value();
    if (role == PresenceRole)
        return static_cast<int>(contact.presence);
    if (role == WordsRole)
        return wordsOf(contact);
    if (role == MutedRole)
        return contact.muted;
    if (role == Qt::AccessibleTextRole && index.column() == Nickname)
        return readOut(row);
    if (role == KeyRole)
        return QString(QLatin1String("IP") + contact.ip.text());
    if (role == TagRole)
        return contact.ip.text();
    if (role == PictureRole)
        return pictureKey(pictureOf(contact.presence));
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Nickname:
        return contact.nickname;
    case Workstation:
        return contact.workstation;
    case IpAddress:
        return contact.ip.text();
    case State:
        return contact.sortKey;
    case PrivateWin:
        return contact.privateWindow > 0 ? QString::number(contact.privateWindow) : QString();
    case AvatarNum:
        return contact.avatarNumber;
    default:
        return contact.state;
    }
}

QVariant ContactList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Nickname:
        return tr("Nickname");
    case Workstation:
        return tr("Workstation");
    case IpAddress:
        return tr("IP Address");
    case State:
        return tr("State");
    case PrivateWin:
        return tr("PrivateWin");
    case AvatarNum:
        return tr("AvatarNum");
    case StateText:
        return tr("Status");
    default:
        return {};
    }
}

} // namespace nimb
