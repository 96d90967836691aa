#include "conference/participants.h"

#include "log/emoticon_tables.h"

#include <algorithm>

namespace nimb
{

int Participants::rowOf(const ContactAddress &ip) const
{
    const auto found = std::ranges::find(m_rows, ip, &Participant::ip);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

const Participant *Participants::find(const ContactAddress &ip) const
{
    const int row = rowOf(ip);
    return row < 0 ? nullptr : &at(row);
}

bool Participants::add(const Participant &participant)
{
    if (rowOf(participant.ip) >= 0)
        return false;
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_rows.push_back(participant);
    endInsertRows();
    return true;
}

bool Participants::remove(const ContactAddress &ip)
{
    const int row = rowOf(ip);
    if (row < 0)
        return false;
    beginRemoveRows({}, row, row);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
    return true;
}

template <class Change> void Participants::change(const ContactAddress &ip, const Change &change)
{
    const int row = rowOf(ip);
    if (row < 0)
        return;
    change(*std::next(m_rows.begin(), row));
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

void Participants::setPresent(const ContactAddress &ip)
{
    change(ip, [this](Participant &participant) {
        participant.present = true;
        if (!participant.colour)
            participant.colour = nextColour();
    });
}

void Participants::setAllAbsent()
{
    for (Participant &participant : m_rows)
        participant.present = participant.own;
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void Participants::setOwnAddress(const ContactAddress &ip)
{
    const auto own = std::ranges::find(m_rows, true, &Participant::own);
    if (own == m_rows.end() || own->ip == ip)
        return;
    const ContactAddress before = own->ip;
    remove(ip);
    change(before, [&ip](Participant &participant) { participant.ip = ip; });
}

void Participants::setName(const ContactAddress &ip, const QString &name)
{
    const Participant *const row = find(ip);
    if (row && !row->own && row->name != name)
        change(ip, [&name](Participant &participant) { participant.name = name; });
}

Colour Participants::nextColour()
{
    const auto &table = emoticonTables.participantColours;
    for (const Colour colour : table) {
        const bool taken = std::ranges::find(m_rows, colour, &Participant::colour) != m_rows.end();
        if (!taken)
            return colour;
    }
    return table[m_turn++ % table.size()];
}

int Participants::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int Participants::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant Participants::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Participant &participant = at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        if (index.column() == NickName)
            return participant.name;
        return participant.own ? QStringLiteral("!") : QString();
    case KeyRole:
        return QString(QLatin1String("IP") + participant.ip.text());
    case TagRole:
        return participant.ip.text();
    case PictureRole:
        return participant.present ? QStringLiteral("green") : QStringLiteral("blue");
    case ColourRole:
        return participant.colour ? QVariant(*participant.colour) : QVariant();
    default:
        return {};
    }
}

QVariant Participants::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section != NickName)
        return {};
    return tr("NickName");
}

} // namespace nimb
