// The participants as a list shows them: in the colours in which they write.
#pragma once

#include <QIdentityProxyModel>

class QWidget;

namespace nimb
{

class ParticipantsProxy : public QIdentityProxyModel
{
    Q_OBJECT

public:
    /// The list becomes the parent; the colours are readable on its ground, whatever that becomes.
    explicit ParticipantsProxy(QWidget &list);

    /// Nobody is there any more: no picture of presence, and the names are muted.
    void setOver();
    QVariant data(const QModelIndex &index, int role) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void looksChanged();

    QWidget &m_list;
    bool m_isOver = false;
};

} // namespace nimb
