#include "main_window/contact_view.h"

#include "base/clock_text.h"
#include "base/remote_text.h"
#include "contacts/contact_list.h"
#include "widgets/muted_colour.h"
#include "widgets/picture_delegate.h"
#include "widgets/pictures.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace nimb
{
namespace
{

class ContactDelegate : public PictureDelegate
{
public:
    using PictureDelegate::PictureDelegate;

    /// A nickname without a state beside it takes the state's room too.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (index.column() == ContactList::StateText && !hasState(index))
            return;
        QStyleOptionViewItem placed = option;
        const auto *const view = qobject_cast<const QTreeView *>(option.widget);
        if (view && index.column() == ContactList::Nickname && !hasState(index))
            placed.rect.setWidth(placed.rect.width() + view->columnWidth(ContactList::StateText));
        PictureDelegate::paint(painter, placed, index);
        if (isLastSeen(placed, index))
            paintRightSide(*painter, placed, index);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        PictureDelegate::initStyleOption(option, index);
        option->text = paintedName(option->text);
        option->textElideMode = Qt::ElideRight;
        if (index.column() != ContactList::Nickname)
            option->palette.setColor(QPalette::Text, mutedTextColour(option->palette));
        if (index.column() == ContactList::Nickname && index.data(ContactList::UnreadRole).toInt() > 0) {
            option->font.setBold(true);
            option->fontMetrics = QFontMetrics(option->font);
        }
        if (index.column() == ContactList::IpAddress)
            shrinkToFit(*option);
        const int taken = rightSideWidth(*option, index);
        if (taken > 0) {
            const int picture = index.column() == ContactList::Nickname ? pictureSide + gap : 0;
            const int room = option->rect.width() - picture - 2 * gap - taken;
            option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, qMax(room, 2 * gap));
        }
    }

private:
    static constexpr int gap = 6;

    static bool hasState(const QModelIndex &index)
    {
        return !index.siblingAtColumn(ContactList::StateText).data().toString().isEmpty();
    }

    /// What stands at the right side of a row takes its room from the state where there is one: the name matters more.
    static bool isLastSeen(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const auto *const view = qobject_cast<const QTreeView *>(option.widget);
        const bool stateIsSeen = view && hasState(index) && !view->isColumnHidden(ContactList::StateText);
        return view && index.column() == (stateIsSeen ? ContactList::StateText : ContactList::Nickname);
    }

    /// Names that look alike are told apart by what cannot be chosen, unless it stands in a column of its own.
    static QString address(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const auto *const view = qobject_cast<const QTreeView *>(option.widget);
        const bool isShown = isLastSeen(option, index) && view->isColumnHidden(ContactList::IpAddress)
            && index.data(ContactList::SharesNameRole).toBool();
        return isShown ? paintedName(index.data(ContactList::TagRole).toString()) : QString();
    }
    /// How many messages nobody has seen, empty for none.
    static QString unread(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const int number = isLastSeen(option, index) ? index.data(ContactList::UnreadRole).toInt() : 0;
        return number > 0 ? QString::number(number) : QString();
    }
    /// When the last of them came.
    static QString unreadSince(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        return unread(option, index).isEmpty() ? QString()
                                               : shortTime(index.data(ContactList::LastMessageRole).toDateTime());
    }
    /// What stands before the number: the address, and the time.
    static QString muted(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        QStringList words{address(option, index), unreadSince(option, index)};
        words.removeAll(QString());
        return words.join(QLatin1Char(' '));
    }
    static int badgeWidth(const QStyleOptionViewItem &option, const QString &number)
    {
        return qMax(option.fontMetrics.height(), option.fontMetrics.horizontalAdvance(number) + 2 * gap);
    }
    static int rightSideWidth(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const QString shown = muted(option, index), number = unread(option, index);
        return (shown.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(shown) + gap)
            + (number.isEmpty() ? 0 : badgeWidth(option, number) + gap);
    }

    /// The address and the time, and behind them how many messages nobody has seen.
    static void paintRightSide(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const QString shown = muted(option, index), number = unread(option, index);
        if (shown.isEmpty() && number.isEmpty())
            return;
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        QRect room = option.rect.adjusted(0, 0, -gap, 0);
        painter.save();
        painter.setFont(option.font);
        if (!number.isEmpty()) {
            QRect badge(0, 0, badgeWidth(option, number), option.fontMetrics.height());
            badge.moveCenter(room.center());
            badge.moveRight(room.right());
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight));
            painter.drawRoundedRect(badge, badge.height() / 2.0, badge.height() / 2.0);
            painter.setPen(option.palette.color(selected ? QPalette::Highlight : QPalette::HighlightedText));
            painter.drawText(badge, Qt::AlignCenter, number);
            room.setRight(badge.left() - gap);
        }
        painter.setPen(selected ? option.palette.color(QPalette::HighlightedText) : mutedTextColour(option.palette));
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, shown);
        painter.restore();
    }

    /// The column of addresses has a fixed width, too narrow for long ones in many fonts; an address with an ellipsis
    /// would be of no use.
    static void shrinkToFit(QStyleOptionViewItem &option)
    {
        constexpr double smallest = 0.75;
        constexpr int margins = 8;
        const double room = option.rect.width() - margins;
        const double share = room / qMax(1, QFontMetrics(option.font).horizontalAdvance(option.text));
        if (share >= 1 || room <= 0)
            return;
        option.font.setPointSizeF(option.font.pointSizeF() * qMax(smallest, share));
        option.fontMetrics = QFontMetrics(option.font);
    }
};

} // namespace

RoomyHeader::RoomyHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setMinimumSectionSize(0);
    setSectionsClickable(false);
    setHighlightSections(false);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void RoomyHeader::setRoom(int room)
{
    m_room = room;
    updateGeometry();
}

void RoomyHeader::setCaptionsShown(bool shown)
{
    m_captionsShown = shown;
    updateGeometry();
    viewport()->update();
}

QSize RoomyHeader::sizeHint() const
{
    const QSize hint = QHeaderView::sizeHint();
    return {hint.width(), m_room + (m_captionsShown ? hint.height() : 0)};
}

void RoomyHeader::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().window());
    if (!m_captionsShown)
        return;
    for (int section = 0; section < count(); ++section) {
        const QRect place(sectionViewportPosition(section), m_room, sectionSize(section), height() - m_room);
        if (!isSectionHidden(section))
            paintSection(&painter, place, section);
    }
}

ContactView::ContactView(QWidget *parent)
    : QTreeView(parent), m_header(new RoomyHeader(this)), m_scrollBarRoom(new QWidget(this)),
      m_invitation(new QWidget(viewport()))
{
    buildInvitation();
    setHeader(m_header);
    m_header->setStretchLastSection(false);
    addScrollBarWidget(m_scrollBarRoom, Qt::AlignTop);
    setItemDelegate(new ContactDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
}

void ContactView::setRoomAbove(int room)
{
    m_header->setRoom(room);
    m_scrollBarRoom->setFixedHeight(room);
}

void ContactView::setDetailColumns(int workstation, int ipAddress, int stateText)
{
    const auto set = [this](int column, int width) {
        m_header->setSectionResizeMode(column, QHeaderView::Fixed);
        m_header->setSectionHidden(column, width == 0);
        if (width > 0)
            m_header->resizeSection(column, width);
    };
    m_header->setSectionResizeMode(ContactList::Nickname, QHeaderView::Stretch);
    set(ContactList::Workstation, workstation);
    set(ContactList::IpAddress, ipAddress);
    set(ContactList::State, 0);
    set(ContactList::PrivateWin, 0);
    set(ContactList::AvatarNum, 0);
    set(ContactList::StateText, stateText);
    m_header->setCaptionsShown(ipAddress > 0);
    updateGeometries();
}

int ContactView::selectedRow() const
{
    const QModelIndexList rows = selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    if (rows.isEmpty())
        return -1;
    return selectionModel()->isRowSelected(currentIndex().row()) ? currentIndex().row() : rows.front().row();
}

QStringList ContactView::selectedAddresses() const
{
    QModelIndexList rows = selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    std::ranges::sort(rows, {}, [](const QModelIndex &index) { return index.row(); });
    QStringList addresses;
    for (const QModelIndex &index : std::as_const(rows))
        addresses.append(index.data(ContactList::TagRole).toString());
    return addresses;
}

QString ContactView::selectedAddress() const
{
    const int row = selectedRow();
    return row < 0 ? QString() : model()->index(row, 0).data(ContactList::TagRole).toString();
}

QString ContactView::addressAt(const QPoint &position) const
{
    return indexAt(position).data(ContactList::TagRole).toString();
}

void ContactView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button();
    m_pressedAddress = addressAt(event->position().toPoint());
    QTreeView::mousePressEvent(event);
}

void ContactView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    const QString ip = addressAt(event->position().toPoint());
    if (m_pressed == Qt::LeftButton && !ip.isEmpty() && ip == m_pressedAddress)
        Q_EMIT contactClicked(ip);
    if (m_pressed == Qt::RightButton)
        Q_EMIT menuWanted(event->globalPosition().toPoint());
}

void ContactView::mouseDoubleClickEvent(QMouseEvent *event)
{
    // Between the two clicks the row may have made room for somebody else.
    const QString ip = addressAt(event->position().toPoint());
    const bool opens = m_pressed == Qt::LeftButton && event->button() == Qt::LeftButton && ip == m_pressedAddress;
    QTreeView::mouseDoubleClickEvent(event);
    if (opens && !ip.isEmpty())
        Q_EMIT contactOpened(ip);
}

void ContactView::mouseMoveEvent(QMouseEvent *event)
{
    QTreeView::mouseMoveEvent(event);
    Q_EMIT pointedAt(addressAt(event->position().toPoint()));
}

void ContactView::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !selectedAddress().isEmpty())
        Q_EMIT contactOpened(selectedAddress());
    else
        QTreeView::keyPressEvent(event);
}

void ContactView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuWanted(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
    event->accept();
}

/// Whoever comes with the keyboard acts on the row that is marked, so that row is selected.
void ContactView::focusInEvent(QFocusEvent *event)
{
    QTreeView::focusInEvent(event);
    if (selectionModel() && !selectionModel()->hasSelection() && currentIndex().isValid())
        selectionModel()->select(currentIndex(), QItemSelectionModel::SelectCurrent | QItemSelectionModel::Rows);
}

void ContactView::buildInvitation()
{
    auto *const sentence
        = new QLabel(tr("Nobody is in your list yet. One click asks everybody on your network."), m_invitation);
    sentence->setWordWrap(true);
    sentence->setAlignment(Qt::AlignCenter);
    auto *const button
        = new QPushButton(namedPicture(QStringLiteral("search")), tr("Find everybody here"), m_invitation);
    button->setObjectName(QStringLiteral("findEverybodyBtn"));
    auto *const layout = new QVBoxLayout(m_invitation);
    layout->addStretch();
    layout->addWidget(sentence);
    layout->addWidget(button, 0, Qt::AlignHCenter);
    layout->addStretch();
    connect(button, &QPushButton::clicked, this, &ContactView::everybodyWanted);
}

void ContactView::setModel(QAbstractItemModel *model)
{
    QTreeView::setModel(model);
    placeInvitation();
    if (!model)
        return;
    connect(model, &QAbstractItemModel::rowsInserted, this, &ContactView::placeInvitation);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &ContactView::placeInvitation);
    connect(model, &QAbstractItemModel::modelReset, this, &ContactView::placeInvitation);
    connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last) { hideRows(first.row(), last.row()); });
    hideRows(0, model->rowCount() - 1);
}

void ContactView::hideRows(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = model()->index(row, 0);
        const bool hidden = index.data(ContactList::HiddenRole).toBool();
        if (hidden == isRowHidden(row, {}))
            continue;
        if (hidden) { // what acts on the selection acts on what is seen
            selectionModel()->select(index, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
            if (currentIndex().row() == row)
                selectionModel()->clearCurrentIndex();
        }
        setRowHidden(row, {}, hidden);
    }
}

void ContactView::placeInvitation()
{
    const bool isEmpty = model() && model()->rowCount() == 0;
    // Hiding a control that has the focus would pass it on to whatever comes next.
    if (!isEmpty && m_invitation->isAncestorOf(focusWidget()))
        setFocus();
    m_invitation->setGeometry(viewport()->rect());
    m_invitation->setVisible(isEmpty);
}

void ContactView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    placeInvitation();
}

} // namespace nimb
