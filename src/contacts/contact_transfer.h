// Which contacts are sent to another contact, and their sending.
#pragma once

#include "base/main_log.h"
#include "contacts/contact_list.h"
#include "protocol/winsock.h"

#include <QAbstractListModel>
#include <QCoreApplication>

namespace nimb
{

struct TransferRow {
    QString text; ///< the nickname when the row was made
    ContactAddress address;
    Presence presence = Presence::unknown;
};

/// One of the two lists: rows in the order in which they came.
class TransferList : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The key ("IP" and the address), the address, the name of the picture.
    enum Role { KeyRole = Qt::UserRole, TagRole, PictureRole };

    using QAbstractListModel::QAbstractListModel;

    const std::vector<TransferRow> &rows() const { return m_rows; }
    void append(std::vector<TransferRow> rows);
    /// Removes these rows, which must be there, ascending and without doubles, and returns them in their order.
    std::vector<TransferRow> take(const std::vector<int> &rows);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<TransferRow> m_rows;
};

/// The engine half of frmSendContact.
class ContactTransfer
{
    Q_DECLARE_TR_FUNCTIONS(ContactTransfer)

public:
    /// destination: address of the contact to whom the others are sent.
    ContactTransfer(Winsock &socket, const ContactList &contacts, MainLog &log, ContactAddress destination);

    /// Offers every contact but the destination, in the order of the contact list.
    void Form_Load();
    TransferList &offered() { return m_offered; }
    TransferList &chosen() { return m_chosen; }

    /// The selected rows, in any order; rows that are not there are left alone.
    void btnsendone_Click(std::vector<int> selected);
    void btnsendall_Click();
    void btnRemoveOne_Click(std::vector<int> selected);
    void btnremoveall_Click();

    /// Sends every chosen contact as the contact list has it now, and says so in the log. One that was removed
    /// meanwhile is left out.
    void sendbtn_Click();

private:
    void tellSent(const QStringList &names) const;

    Winsock &m_socket;
    const ContactList &m_contacts;
    MainLog &m_log;
    const ContactAddress m_destination;
    TransferList m_offered;
    TransferList m_chosen;
};

} // namespace nimb
