#include "main_window/contact_view.h"

#include "base/isolated.h"
#include "base/remote_text.h"
#include "contacts/contact_list.h"
#include "main_window/accessible_contacts.h"
#include "main_window/contact_delegate.h"
#include "main_window/contact_filter.h"
#include "widgets/focus_edge.h"
#include "widgets/folded_caption.h"
#include "widgets/form_layout.h"
#include "widgets/muted_text.h"
#include "widgets/pictures.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace nimb
{
namespace
{

/// The rows come in their order.
void addRow(QItemSelection &rows, const QModelIndex &row)
{
    if (!rows.isEmpty() && rows.back().bottom() + 1 == row.row())
        rows.back() = QItemSelectionRange(rows.back().topLeft(), row);
    else
        rows.append(QItemSelectionRange(row));
}

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
    : QTreeView(parent), m_delegate(new ContactDelegate(*this)), m_header(new RoomyHeader(this)),
      m_scrollBarRoom(new QWidget(this)), m_invitation(new QWidget(viewport())),
      m_filter(new ContactFilter(parent ? parent : this)), m_nobodyPart(new QWidget(viewport())),
      m_nobody(new QLabel(m_nobodyPart))
{
    QAccessible::installFactory(AccessibleContacts::make); // again and again, which Qt ignores
    buildInvitation();
    buildFilter();
    setHeader(m_header);
    m_header->setStretchLastSection(false);
    addScrollBarWidget(m_scrollBarRoom, Qt::AlignTop);
    setItemDelegate(m_delegate);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setFrameShape(NoFrame);
    new FocusEdge(*this);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
}

void ContactView::setRoomAbove(int room)
{
    m_room = room;
    placeFilter();
}

void ContactView::setAvatars(const AvatarStore &avatars)
{
    m_delegate->setAvatars(avatars);
    viewport()->update();
}

void ContactView::setClock(const WallClock &clock)
{
    m_delegate->setClock(clock);
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
        open(ip);
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
        open(selectedAddress());
    else if (event->key() == Qt::Key_Delete && !(event->modifiers() & ~Qt::KeypadModifier))
        Q_EMIT removalWanted();
    else if (event->key() == Qt::Key_Escape && !m_filter->isHidden())
        endSearch();
    else if (isTyped(*event))
        type(*event);
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

void ContactView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    const QScopedValueRollback counting(m_countsCells, true);
    QTreeView::currentChanged(current, previous);
}

void ContactView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    const QScopedValueRollback counting(m_countsCells, true);
    QTreeView::selectionChanged(selected, deselected);
}

void ContactView::buildInvitation()
{
    auto *const sentence
        = new QLabel(tr("Nobody is in your list yet. One click asks everybody on your network."), m_invitation);
    sentence->setWordWrap(true);
    sentence->setAlignment(Qt::AlignCenter);
    sentence->setForegroundRole(QPalette::WindowText); // on the ground of a list it would be that of its rows
    keepMuted(*sentence);
    m_everybody = new QPushButton(namedPicture(QStringLiteral("search")), tr("Find everybody here"), m_invitation);
    m_everybody->setObjectName(QStringLiteral("findEverybodyBtn"));
    auto *const layout = new QVBoxLayout(m_invitation);
    layout->addStretch();
    layout->addWidget(sentence);
    layout->addWidget(m_everybody, 0, Qt::AlignHCenter);
    layout->addStretch();
    connect(m_everybody, &QPushButton::clicked, this, &ContactView::everybodyWanted);
}

void ContactView::setModel(QAbstractItemModel *model)
{
    QTreeView::setModel(model);
    m_hidden = 0;
    placeInvitation();
    if (!model)
        return;
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first, int last) { rowsGo(first, last); });
    connect(model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { hideRows(first, last); });
    connect(model, &QAbstractItemModel::rowsRemoved, this, &ContactView::placeNobody);
    connect(model, &QAbstractItemModel::rowsInserted, this, &ContactView::placeInvitation);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &ContactView::placeInvitation);
    connect(model, &QAbstractItemModel::modelReset, this, &ContactView::placeInvitation);
    connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last) { hideRows(first.row(), last.row()); });
    hideRows(0, model->rowCount() - 1);
}

void ContactView::hideRows(int first, int last)
{
    QItemSelection unseen;
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = model()->index(row, 0);
        const bool hidden = index.data(ContactList::HiddenRole).toBool() || !isLookedFor(index);
        if (hidden == isRowHidden(row, {}))
            continue;
        if (hidden && selectionModel()->isRowSelected(row))
            addRow(unseen, index);
        if (hidden && currentIndex().row() == row)
            selectionModel()->clearCurrentIndex();
        setRowHidden(row, {}, hidden);
        m_hidden += hidden ? 1 : -1;
    }
    // What acts on the selection acts on what is seen. All at once, for somebody listens to each change.
    if (!unseen.isEmpty())
        selectionModel()->select(unseen, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    placeNobody();
}

void ContactView::rowsGo(int first, int last)
{
    for (int row = first; row <= last; ++row)
        m_hidden -= isRowHidden(row, {}) ? 1 : 0;
    Q_EMIT rowsAboutToGo(first, last);
}

int ContactView::shownCount() const
{
    return model() ? model()->rowCount() - m_hidden : 0;
}

/// All rows are of one height, so that where one lies says which one it is.
QModelIndex ContactView::shownAt(int number) const
{
    const QModelIndex first = indexAt({0, -verticalOffset()});
    if (number <= 0)
        return number < 0 ? QModelIndex() : first.siblingAtColumn(0);
    return indexAt({0, number * visualRect(first).height() - verticalOffset()}).siblingAtColumn(0);
}

int ContactView::numberOf(const QModelIndex &contact) const
{
    const QRect place = visualRect(contact);
    return place.isEmpty() ? -1 : (place.top() + verticalOffset()) / place.height();
}

QList<QWidget *> ContactView::partsOverRows() const
{
    return {m_nobodyPart, m_invitation};
}

// --- finding contacts

void ContactView::buildFilter()
{
    m_filter->hide();
    connect(m_filter, &ContactFilter::textChanged, this, &ContactView::search);
    connect(m_filter, &ContactFilter::cancelled, this, &ContactView::endSearch);
    connect(m_filter, &ContactFilter::leftEmpty, this, &ContactView::endSearch);
    connect(m_filter, &ContactFilter::listWanted, this, &ContactView::goToFirstFound);
    connect(m_filter, &ContactFilter::entered, this, &ContactView::openFirstFound);
    m_nobody->setObjectName(QStringLiteral("nobodyFound"));
    m_nobody->setTextFormat(Qt::PlainText);
    m_nobody->setWordWrap(true);
    m_nobody->setAlignment(Qt::AlignCenter);
    m_nobody->setForegroundRole(QPalette::Text);
    auto *const everybody = new QPushButton(tr("Show everybody"), m_nobodyPart);
    everybody->setObjectName(QStringLiteral("showEverybodyBtn"));
    everybody->setFocusPolicy(Qt::NoFocus); // the keyboard has Escape
    connect(everybody, &QPushButton::clicked, this, &ContactView::endSearch);
    auto *const column = new QVBoxLayout(m_nobodyPart);
    column->addWidget(m_nobody);
    column->addWidget(everybody, 0, Qt::AlignHCenter);
    m_nobodyPart->hide();
}

QWidget &ContactView::filterBox() const
{
    return *m_filter;
}

void ContactView::find()
{
    showFilter();
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

void ContactView::showFilter()
{
    if (!m_filter->isHidden())
        return;
    m_before = selectedRow() < 0 ? QModelIndex() : model()->index(selectedRow(), 0);
    m_filter->show();
    placeFilter();
}

void ContactView::endSearch()
{
    if (m_filter->isHidden())
        return;
    const bool hadFocus = m_filter->hasFocus();
    m_filter->clear();
    const QModelIndex before = std::exchange(m_before, {});
    const bool isChosen = selectionModel() && selectionModel()->hasSelection();
    // Nobody, said outright, or the view would mark its first row when it gets the focus.
    if (!isChosen)
        setCurrentIndex(before.isValid() && !isRowHidden(before.row(), {}) ? before : QModelIndex());
    if (hadFocus)
        setFocus();
    m_filter->hide();
    placeFilter();
    scrollTo(currentIndex());
}

/// The rows make room for it, and the controls above stay where they are.
void ContactView::placeFilter()
{
    constexpr int lowest = 26;
    constexpr int distance = form_layout::spacing / 2;
    const int height = qMax(lowest, m_filter->sizeHint().height());
    const QPoint corner = m_filter->parentWidget() == this ? QPoint() : pos();
    m_filter->setGeometry(corner.x(), corner.y() + m_room + distance, width(), height);
    const int room = m_room + (m_filter->isHidden() ? 0 : height + 2 * distance);
    m_header->setRoom(room);
    m_scrollBarRoom->setFixedHeight(room);
    updateGeometries();
}

bool ContactView::isLookedFor(const QModelIndex &contact) const
{
    if (m_words.isEmpty())
        return true;
    QString all = contact.data(ContactList::WordsRole).toString();
    for (const int column :
         {ContactList::Nickname, ContactList::Workstation, ContactList::IpAddress, ContactList::StateText})
        all += QLatin1Char('\n') + contact.siblingAtColumn(column).data().toString();
    return std::ranges::all_of(m_words,
                               [&all](const QString &word) { return all.contains(word, Qt::CaseInsensitive); });
}

void ContactView::search()
{
    m_words = m_filter->words();
    if (!model())
        return;
    hideRows(0, model()->rowCount() - 1);
    scrollToTop();
}

QModelIndex ContactView::firstFound() const
{
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (!isRowHidden(row, {}))
            return model()->index(row, 0);
    }
    return {};
}

void ContactView::goToFirstFound()
{
    const QModelIndex found = m_words.isEmpty() && currentIndex().isValid() ? currentIndex() : firstFound();
    if (!found.isValid())
        return;
    setCurrentIndex(found);
    setFocus();
}

/// As long as nothing is typed nobody is meant.
void ContactView::openFirstFound()
{
    const QModelIndex found = m_words.isEmpty() ? QModelIndex() : firstFound();
    if (!found.isValid())
        return;
    setCurrentIndex(found);
    open(found.data(ContactList::TagRole).toString());
}

/// Whoever has found somebody wants to see the others again later.
void ContactView::open(const QString &ip)
{
    endSearch();
    Q_EMIT contactOpened(ip);
}

bool ContactView::isTyped(const QKeyEvent &event) const
{
    const bool searching = !m_filter->isHidden();
    if (event.key() == Qt::Key_Backspace)
        return searching;
    const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Together they are the third level of a keyboard on some systems.
    const bool isCommand = held && held != (Qt::ControlModifier | Qt::AltModifier);
    const QString text = event.text();
    if (isCommand || text.isEmpty() || !text.front().isPrint())
        return false;
    return searching || !text.front().isSpace(); // a blank selects the row that is marked
}

void ContactView::type(QKeyEvent &event)
{
    showFilter();
    m_filter->setFocus();
    m_filter->end(false);
    QCoreApplication::sendEvent(m_filter, &event);
}

void ContactView::placeNobody()
{
    const bool isNobody = !m_words.isEmpty() && m_hidden > 0 && shownCount() == 0;
    const QString words = paintedName(m_words.join(QLatin1Char(' ')));
    const auto sentence = [isNobody](const QString &looked) {
        return isNobody ? tr("Nobody here is called \"%1\"").arg(isolated(looked)) : QString();
    };
    const int width = viewport()->width();
    // A word alone can be longer than a line.
    m_nobody->setText(sentence(m_nobody->fontMetrics().elidedText(words, Qt::ElideRight, width * 2 / 3)));
    m_nobodyPart->setGeometry(0, 0, width, m_nobodyPart->heightForWidth(width));
    m_nobodyPart->setAccessibleName(sentence(words));
    m_nobodyPart->setVisible(isNobody);
    m_filter->setAccessibleDescription(sentence(words));
}

void ContactView::placeInvitation()
{
    const bool isEmpty = model() && model()->rowCount() == 0;
    // Hiding a control that has the focus would pass it on to whatever comes next.
    if (!isEmpty && m_invitation->isAncestorOf(focusWidget())) {
        setFocus();
        selectionModel()->clear(); // nobody has been chosen yet
    }
    const QMargins margins = m_invitation->layout()->contentsMargins();
    showCaption(*m_everybody, tr("Find everybody here"), viewport()->width() - margins.left() - margins.right());
    m_invitation->setGeometry(viewport()->rect());
    m_invitation->setVisible(isEmpty);
}

void ContactView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    placeInvitation();
    placeNobody();
    placeFilter();
}

void ContactView::moveEvent(QMoveEvent *event)
{
    QTreeView::moveEvent(event);
    placeFilter();
}

} // namespace nimb
