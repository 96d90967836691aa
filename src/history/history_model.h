// Kept messages as a list, a piece of all of them.
#pragma once

#include "base/history.h"

#include <QAbstractListModel>
#include <QHash>

namespace nimb
{

class HistoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        NumberRole = Qt::UserRole, ///< of the message
        ConversationRole,          ///< number of it
        HeadRole,                  ///< who wrote it, and when
    };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    void setMessages(std::vector<StoredMessage> messages);
    /// In front of those that are there.
    void addOlder(const std::vector<StoredMessage> &messages);
    void addNewer(const std::vector<StoredMessage> &messages);
    /// Names of conversations, which stand beside messages where those of several are shown.
    void setNames(QHash<std::int64_t, QString> names, bool shown);

    const std::vector<StoredMessage> &messages() const { return m_messages; }
    /// -1: it is not there.
    int rowOf(std::int64_t number) const;

private:
    QString headOf(const StoredMessage &stored) const;

    std::vector<StoredMessage> m_messages;
    QHash<std::int64_t, QString> m_names;
    bool m_namesShown = false;
};

} // namespace nimb
