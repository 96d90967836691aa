#include "contacts/contact_transfer.h"

#include "base/isolated.h"
#include "base/name_list.h"
#include "protocol/send_datagram.h"
#include "protocol/wire_text.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace nimb
{
namespace
{

void moveRows(TransferList &from, TransferList &to, std::vector<int> rows)
{
    const auto isMissing = [&from](int row) { return row < 0 || row >= from.rowCount(); };
    std::erase_if(rows, isMissing);
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    to.append(from.take(rows));
}

void moveAll(TransferList &from, TransferList &to)
{
    std::vector<int> rows(from.rows().size());
    std::iota(rows.begin(), rows.end(), 0);
    moveRows(from, to, std::move(rows));
}

wire::SharedContact sharedContact(const Contact &contact)
{
    return {wire::Identity{toWire(contact.ip.text()), toWire(oneWord(contact.workstation)), toWire(contact.nickname)}};
}

} // namespace

// --- the rows

void TransferList::append(std::vector<TransferRow> rows)
{
    if (rows.empty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(rows.size()) - 1);
    std::move(rows.begin(), rows.end(), std::back_inserter(m_rows));
    endInsertRows();
}

std::vector<TransferRow> TransferList::take(const std::vector<int> &rows)
{
    std::vector<TransferRow> taken;
    taken.reserve(rows.size());
    for (const int row : rows)
        taken.push_back(m_rows[static_cast<std::size_t>(row)]);
    // Neighbours go together, the last ones first, so that the numbers of the others stay good.
    for (std::size_t end = rows.size(); end > 0;) {
        std::size_t first = end - 1;
        while (first > 0 && rows[first - 1] == rows[first] - 1)
            --first;
        beginRemoveRows({}, rows[first], rows[end - 1]);
        m_rows.erase(m_rows.begin() + rows[first], m_rows.begin() + rows[end - 1] + 1);
        endRemoveRows();
        end = first;
    }
    return taken;
}

int TransferList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TransferList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const TransferRow &row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case KeyRole:
        return QString(QLatin1String("IP") + row.address.text());
    case TagRole:
        return row.address.text();
    case PictureRole:
        return pictureKey(pictureOf(row.presence));
    default:
        return {};
    }
}

QVariant TransferList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section != 0 || orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return tr("Nickname");
}

// --- the rules

ContactTransfer::ContactTransfer(Winsock &socket, const ContactList &contacts, MainLog &log, ContactAddress destination)
    : m_socket(socket), m_contacts(contacts), m_log(log), m_destination(std::move(destination))
{
}

void ContactTransfer::Form_Load()
{
    std::vector<TransferRow> rows;
    for (int row = 0; row < m_contacts.rowCount(); ++row) {
        const Contact &contact = m_contacts.at(row);
        if (contact.ip != m_destination)
            rows.push_back({contact.nickname, contact.ip, contact.presence});
    }
    m_offered.append(std::move(rows));
}

void ContactTransfer::btnsendone_Click(std::vector<int> selected)
{
    moveRows(m_offered, m_chosen, std::move(selected));
}

void ContactTransfer::btnsendall_Click()
{
    moveAll(m_offered, m_chosen);
}

void ContactTransfer::btnRemoveOne_Click(std::vector<int> selected)
{
    moveRows(m_chosen, m_offered, std::move(selected));
}

void ContactTransfer::btnremoveall_Click()
{
    moveAll(m_chosen, m_offered);
}

void ContactTransfer::sendbtn_Click()
{
    QStringList names;
    for (const TransferRow &row : m_chosen.rows()) {
        const Contact *const contact = m_contacts.find(row.address);
        if (!contact)
            continue;
        sendDatagram(m_socket, m_destination.ipv4(), sharedContact(*contact));
        names.append(contact->nickname);
    }
    tellSent(names);
}

void ContactTransfer::tellSent(const QStringList &names) const
{
    const Contact *const receiver = m_contacts.find(m_destination);
    if (names.isEmpty() || !receiver)
        return;
    m_log.note(
        tr("contacts sent to %1: %2").arg(isolated(paintedName(receiver->nickname)), nameList(names, names.size())));
}

} // namespace nimb
