// Paints the rows of the contact list.
#pragma once

#include "base/presence.h"

#include <QCache>
#include <QPixmap>
#include <QRgb>
#include <QStyledItemDelegate>

class QTreeView;

namespace nimb
{

class AvatarStore;
class WallClock;

/// The picture with the presence, the name with all the room that it needs, and at the other side what is said beside
/// it: the state muted and shortened first, the address of whoever has a name that looks like another's, when the last
/// unread message came and how many there are. Where the state has a column, all of this goes over both columns.
class ContactDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int rowHeight = 32; ///< pixels; more where the font needs more

    explicit ContactDelegate(QTreeView &view);
    /// Until then everybody has initials.
    void setAvatars(const AvatarStore &avatars) { m_avatars = &avatars; }
    /// Until then every message is one of today.
    void setClock(const WallClock &clock) { m_clock = &clock; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    /// What decides how somebody looks, apart from the avatar.
    struct Looks {
        QString name;
        Presence presence;
        QRgb ground, base;
        int side; ///< pixels
        double scale;
        bool operator==(const Looks &) const = default;
    };
    struct Face {
        Looks looks;
        QByteArray avatar;
        QPixmap picture;
    };

    bool isStateShown() const;
    QRect rowAround(const QRect &cell) const;
    QString timeBeside(const QModelIndex &contact) const;
    QString addressBeside(const QModelIndex &contact) const;
    void paintRow(QPainter &painter, const QStyleOptionViewItem &cell, const QModelIndex &contact) const;
    void paintFace(QPainter &painter, const QRect &place, const QStyleOptionViewItem &cell,
                   const QModelIndex &contact) const;

    QTreeView &m_view;
    const AvatarStore *m_avatars = nullptr;
    const WallClock *m_clock = nullptr;
    mutable QCache<QString, Face> m_faces{500}; ///< by address; as many as ever fit on a screen, and more
};

} // namespace nimb
