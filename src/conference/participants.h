// The participants of one conference: an item model of keyed rows, the own one first.
#pragma once

#include "base/colour.h"
#include "base/contact_address.h"

#include <QAbstractTableModel>
#include <QHash>

#include <iterator>
#include <optional>
#include <vector>

namespace nimb
{

struct Participant {
    ContactAddress ip;
    QString name;                                ///< the row's text
    bool present = false;                        ///< "green"; otherwise invited and not there yet, "blue"
    bool own = false;                            ///< marked with "!"
    std::optional<Colour> colour = std::nullopt; ///< of what the participant writes, once it is present

    /// The row is not the own one and gets what is relayed.
    bool isPresentPeer() const { return present && !own; }
};

/// No two rows have the same address. Rows keep their order of arrival.
class Participants : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NickName, Mark, ColumnCount };
    /// The key ("IP" and the address), the address, "green" or "blue", and the colour as a 32-bit number.
    enum Role { KeyRole = Qt::UserRole, TagRole, PictureRole, ColourRole };

    using QAbstractTableModel::QAbstractTableModel;

    const std::vector<Participant> &rows() const { return m_rows; }
    /// Null when there is none with this address.
    const Participant *find(const ContactAddress &ip) const;

    /// False, and nothing changes, when the address is there already.
    bool add(const Participant &participant);
    bool remove(const ContactAddress &ip);
    /// Marks a row as present and gives it a colour, unless it has one: the lowest of the table that no row has, and
    /// once all are taken one after the other in turn.
    void setPresent(const ContactAddress &ip);
    /// Marks all but the own row as not there.
    void setAllAbsent();
    /// Of the own row. Another row with that address goes: it has been somebody else's.
    void setOwnAddress(const ContactAddress &ip);
    /// The own row keeps its name.
    void setName(const ContactAddress &ip, const QString &name);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int rowOf(const ContactAddress &ip) const; ///< -1 when there is none
    const Participant &at(int row) const { return *std::next(m_rows.begin(), row); }
    template <class Change> void change(const ContactAddress &ip, const Change &change);
    Colour nextColour();

    std::vector<Participant> m_rows;
    std::size_t m_turn = 0;
};

} // namespace nimb
