#include "main_window/contact_delegate.h"

#include "base/clock_text.h"
#include "base/remote_text.h"
#include "base/timers.h"
#include "contacts/avatar_store.h"
#include "widgets/avatar_image.h"
#include "widgets/muted_colour.h"
#include "widgets/peer_picture.h"
#include "widgets/pictures.h"

#include <QPainter>
#include <QTreeView>

#include <cmath>

namespace nimb
{
namespace
{

constexpr int edge = 8;                   ///< left and right of what a row says
constexpr int edgeOfColumn = 4;           ///< the same where the columns leave little room
constexpr int gap = 6;                    ///< between the parts of a row
constexpr int aboveFace = 4;              ///< and below it, where the presence reaches into it
constexpr int lettersOfShortestName = 12; ///< before the time gives way
constexpr int lettersBesideBadge = 6;     ///< of a name, before the number goes over the picture
constexpr int smallestBadgeLetters = 9;   ///< pixels
constexpr int lettersOfShortestState = 6; ///< of a state that is shortened
constexpr double strengthOfAbsent = 0.55; ///< of the pictures of those who are offline

Presence presenceOf(const QModelIndex &contact)
{
    return static_cast<Presence>(contact.data(ContactList::PresenceRole).toInt());
}

bool isSelected(const QStyleOptionViewItem &cell)
{
    return cell.state.testFlag(QStyle::State_Selected);
}

QColor textColour(const QStyleOptionViewItem &cell, bool muted)
{
    if (isSelected(cell))
        return cell.palette.color(QPalette::HighlightedText);
    return muted ? mutedTextColour(cell.palette) : cell.palette.color(QPalette::Text);
}

/// The column of addresses has a fixed width, too narrow for long ones in many fonts; an address with an ellipsis would
/// be of no use.
void shrinkToFit(QStyleOptionViewItem &option)
{
    constexpr double smallestFont = 7; // points
    constexpr int margins = 8;
    const double room = option.rect.width() - margins;
    const double share = room / qMax(1, QFontMetrics(option.font).horizontalAdvance(option.text));
    if (share >= 1 || room <= 0)
        return;
    const double usual = option.font.pointSizeF();
    option.font.setPointSizeF(qMax(qMin(smallestFont, usual), usual * share));
    option.fontMetrics = QFontMetrics(option.font);
}

/// What is left of a row while its parts are painted, from both sides inwards. Written as for a row that is read from
/// left to right.
class Room
{
public:
    Room(QPainter &painter, const QStyleOptionViewItem &cell, const QRect &row, int beside)
        : m_painter(painter), m_cell(cell), m_row(row), m_rest(row.adjusted(beside, 0, -beside, 0))
    {
    }

    int width() const { return qMax(0, m_rest.width()); }
    QRect takeLeft(int width)
    {
        const QRect taken(m_rest.left(), m_rest.top(), width, m_rest.height());
        m_rest.setLeft(taken.right() + 1 + gap);
        return mirrored(taken);
    }
    void skip(int width) { m_rest.setLeft(m_rest.left() + width); }
    QRect takeRight(int width)
    {
        const QRect taken(m_rest.right() + 1 - width, m_rest.top(), width, m_rest.height());
        m_rest.setRight(taken.left() - 1 - gap);
        return mirrored(taken);
    }
    /// On one line, as much as there is room for.
    void paintLeft(const QString &text, const QFont &font, const QColor &colour)
    {
        const QString shown = QFontMetrics(font).elidedText(text, Qt::ElideRight, width());
        paint(mirrored(m_rest), shown, font, colour, Qt::AlignLeft);
    }
    /// Muted; nothing for an empty text.
    void paintRight(const QString &text)
    {
        if (!text.isEmpty())
            paint(takeRight(widthOf(text)), text, m_cell.font, textColour(m_cell, true), Qt::AlignRight);
    }
    void paintRight(const QIcon &picture)
    {
        const int side = m_cell.fontMetrics.height();
        picture.paint(&m_painter, takeRight(side), Qt::AlignCenter,
                      isSelected(m_cell) ? QIcon::Selected : QIcon::Normal);
    }
    int widthOf(const QString &text) const { return m_cell.fontMetrics.horizontalAdvance(text); }
    /// What such a text takes, and what it leaves.
    int taken(const QString &text) const { return text.isEmpty() ? 0 : widthOf(text) + gap; }
    int beside(const QString &text) const { return width() - taken(text); }
    /// As much of the text as there is room for: pixels.
    QString cut(const QString &text, int room) const
    {
        return m_cell.fontMetrics.elidedText(text, Qt::ElideRight, room);
    }
    QString cutInFront(const QString &text, int room) const
    {
        return m_cell.fontMetrics.elidedText(text, Qt::ElideLeft, room);
    }
    /// With the gap beside it.
    int badgeWidth(const QString &number) const { return widthOfBadge(number) + gap; }
    int letters(int number) const { return number * m_cell.fontMetrics.averageCharWidth(); }
    void paintBadge(const QString &number)
    {
        const QRect place = takeRight(widthOfBadge(number));
        QRect badge(0, 0, place.width(), m_cell.fontMetrics.height());
        badge.moveCenter(place.center());
        paintBadge(number, badge, m_cell.font);
    }
    /// At the upper corner of this picture, over it, in small letters.
    void paintBadgeOver(const QRect &face, const QString &number)
    {
        QFont small = m_cell.font;
        small.setPixelSize(qMax(smallestBadgeLetters, face.height() / 2));
        const QFontMetrics metrics(small);
        QRect badge(0, 0, qMax(metrics.height(), metrics.horizontalAdvance(number) + gap), metrics.height());
        badge.moveTopRight(face.topRight() + QPoint(presenceOverhang, -aboveFace + 1));
        paintBadge(number, badge, small);
    }

private:
    int widthOfBadge(const QString &number) const
    {
        return qMax(m_cell.fontMetrics.height(), widthOf(number) + 2 * gap);
    }
    void paintBadge(const QString &number, const QRect &badge, const QFont &font)
    {
        const bool selected = isSelected(m_cell);
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight));
        m_painter.drawRoundedRect(badge, badge.height() / 2.0, badge.height() / 2.0);
        const QColor colour = m_cell.palette.color(selected ? QPalette::Highlight : QPalette::HighlightedText);
        paint(badge, number, font, colour, Qt::AlignHCenter);
    }
    QRect mirrored(const QRect &rect) const { return QStyle::visualRect(m_cell.direction, m_row, rect); }
    /// The side is that of the row, whatever way the text itself is written.
    void paint(const QRect &place, const QString &text, const QFont &font, const QColor &colour, Qt::Alignment side)
    {
        const Qt::Alignment alignment = QStyle::visualAlignment(m_cell.direction, side) | Qt::AlignAbsolute;
        m_painter.setFont(font);
        m_painter.setPen(colour);
        m_painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, text);
    }

    QPainter &m_painter;
    const QStyleOptionViewItem &m_cell;
    QRect m_row;
    QRect m_rest;
};

/// Only what the name leaves, and nothing where that is too little.
void paintWords(Room &room, const QString &words, int nameWidth)
{
    const int left = room.width() - nameWidth - 2 * gap;
    if (left >= qMin(room.widthOf(words), room.letters(lettersOfShortestState)))
        room.paintRight(room.cut(words, left));
}

/// side: pixels of the screen at a scale of 1.
QPixmap painted(PeerPicture picture, int side, double scale, const QStyleOptionViewItem &cell)
{
    if (const int pixels = qRound(side * scale); !picture.avatar.isNull())
        picture.avatar = picture.avatar.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const int whole = qRound((side + presenceOverhang) * scale);
    QPixmap pixmap(whole, whole);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setFont(cell.font);
    paintPeerPicture(painter, {0, 0, side, side}, picture, cell.palette);
    return pixmap;
}

} // namespace

ContactDelegate::ContactDelegate(QTreeView &view) : QStyledItemDelegate(&view), m_view(view) { }

bool ContactDelegate::isStateShown() const
{
    return !m_view.isColumnHidden(ContactList::StateText);
}

QSize ContactDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {hint.width(), qMax(rowHeight, hint.height() + aboveFace)};
}

void ContactDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = paintedName(option->text);
    option->textElideMode = Qt::ElideRight;
    const bool enabled = option->state.testFlag(QStyle::State_Enabled);
    const bool active = option->state.testFlag(QStyle::State_Active);
    option->palette.setCurrentColorGroup(!enabled     ? QPalette::Disabled
                                             : active ? QPalette::Active
                                                      : QPalette::Inactive);
    if (index.column() == ContactList::Nickname)
        return;
    option->palette.setColor(QPalette::Text, mutedTextColour(option->palette));
    if (index.column() == ContactList::IpAddress)
        shrinkToFit(*option);
}

/// Each of the columns that a row's parts lie over paints the ground and what lies over itself: any of them may be
/// painted anew without the others.
void ContactDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (index.column() != ContactList::Nickname && index.column() != ContactList::StateText)
        return QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index.siblingAtColumn(ContactList::Nickname));
    m_view.style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, &m_view);
    painter->save();
    painter->setClipRect(cell.rect, Qt::IntersectClip);
    paintRow(*painter, cell, index.siblingAtColumn(ContactList::Nickname));
    painter->restore();
}

QRect ContactDelegate::rowAround(const QRect &cell) const
{
    const auto column = [this, &cell](int number) {
        return QRect(m_view.columnViewportPosition(number), cell.top(), m_view.columnWidth(number), cell.height());
    };
    const QRect name = column(ContactList::Nickname);
    return isStateShown() ? name | column(ContactList::StateText) : name;
}

/// Names that look alike are told apart by what cannot be chosen, unless it stands in a column of its own.
QString ContactDelegate::addressBeside(const QModelIndex &contact) const
{
    const bool isNeeded
        = contact.data(ContactList::SharesNameRole).toBool() && m_view.isColumnHidden(ContactList::IpAddress);
    return isNeeded ? paintedName(contact.data(ContactList::TagRole).toString()) : QString();
}

/// When the last message came, or on which day.
QString ContactDelegate::timeBeside(const QModelIndex &contact) const
{
    const QDateTime last = contact.data(ContactList::LastMessageRole).toDateTime();
    if (!last.isValid())
        return {};
    return timeOrDate(last, m_clock ? m_clock->now().date() : last.date());
}

void ContactDelegate::paintRow(QPainter &painter, const QStyleOptionViewItem &cell, const QModelIndex &contact) const
{
    const bool offline = presenceOf(contact) == Presence::offline;
    const int unread = contact.data(ContactList::UnreadRole).toInt();
    QFont nameFont = cell.font;
    nameFont.setBold(unread > 0);
    // Rounded up, or a name would be cut in a room that is a part of a pixel too narrow.
    const int nameWidth = static_cast<int>(std::ceil(QFontMetricsF(nameFont).horizontalAdvance(cell.text)));

    Room room(painter, cell, rowAround(cell.rect), isStateShown() ? edge : edgeOfColumn);
    const QRect face = room.takeLeft(cell.rect.height() - 2 * aboveFace);
    paintFace(painter, face.adjusted(0, aboveFace, 0, -aboveFace), cell, contact);
    if (isStateShown())
        room.skip(presenceOverhang);
    if (const QString number = QString::number(unread); unread > 0) {
        const int besideBadge = room.width() - room.badgeWidth(number);
        if (besideBadge >= qMin(nameWidth, room.letters(lettersBesideBadge)))
            room.paintBadge(number);
        else
            room.paintBadgeOver(face.adjusted(0, aboveFace, 0, -aboveFace), number);
    }
    if (contact.data(ContactList::MutedRole).toBool())
        room.paintRight(namedPicture(QStringLiteral("muted")));
    const QString address = addressBeside(contact);
    if (unread > 0) {
        const QString time = timeBeside(contact);
        if (room.beside(time) - room.taken(address) >= qMin(nameWidth, room.letters(lettersOfShortestName)))
            room.paintRight(time);
    }
    // Of an address the end tells two of one network apart.
    const int besideName = room.width() - qMin(nameWidth, room.letters(lettersOfShortestName)) - gap;
    room.paintRight(room.taken(address) <= besideName ? address : room.cutInFront(address, besideName));
    if (isStateShown() || offline)
        paintWords(room, paintedName(contact.data(ContactList::WordsRole).toString()), nameWidth);
    room.paintLeft(cell.text, nameFont, textColour(cell, offline));
}

void ContactDelegate::paintFace(QPainter &painter, const QRect &place, const QStyleOptionViewItem &cell,
                                const QModelIndex &contact) const
{
    const QString address = contact.data(ContactList::TagRole).toString();
    const QPalette::ColorRole ground = isSelected(cell) ? QPalette::Highlight : QPalette::Base;
    const Looks looks{.name = contact.data().toString(),
                      .presence = presenceOf(contact),
                      .ground = cell.palette.color(ground).rgb(),
                      .base = cell.palette.color(QPalette::Base).rgb(),
                      .side = place.height(),
                      .scale = painter.device()->devicePixelRatioF()};
    const QByteArray avatar = m_avatars ? m_avatars->of(address).body : QByteArray();
    const Face *face = m_faces.object(address);
    // An avatar that is kept here keeps its place in memory, so no other one can stand there.
    if (!face || face->looks != looks || face->avatar.constData() != avatar.constData()) {
        PeerPicture picture{.name = looks.name, .avatar = avatarImage(avatar), .presence = looks.presence};
        picture.ground = ground;
        picture.strength = looks.presence == Presence::offline ? strengthOfAbsent : 1;
        auto *const made = new Face{looks, avatar, painted(picture, looks.side, looks.scale, cell)};
        m_faces.insert(address, made); // takes it over
        face = made;
    }
    painter.drawPixmap(place.topLeft(), face->picture);
}

} // namespace nimb
