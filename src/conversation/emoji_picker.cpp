#include "conversation/emoji_picker.h"

#include "conversation/emoji_model.h"
#include "conversation/emoji_stock.h"
#include "widgets/elided_label.h"
#include "widgets/empty_hint.h"
#include "widgets/form_layout.h"
#include "widgets/muted_colour.h"
#include "widgets/pictures.h"

#include <QAbstractItemDelegate>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace nimb
{
namespace
{

constexpr int emojiPixels = 22, emojiCell = 34, groupPixels = 16, groupCell = 24, roundness = 4, headingIndent = 6;
constexpr int widthWithName = 460;

/// The family is the name under which systems with fontconfig know their font of emoji: it comes before those which
/// have some of them in black and white. Where no such font is known, the desktop's own comes with its substitutes.
QFont emojiFont(QFont font, int pixels)
{
    font.setFamilies({QStringLiteral("emoji"), font.family()});
    font.setPixelSize(pixels);
    return font;
}

int headingHeight(const QFontMetrics &metrics)
{
    return metrics.height() + form_layout::spacing;
}

/// What a font has no glyph for but shows by way of others: joiners, styles and tags.
bool isJoining(char32_t c)
{
    return c == 0x200D || c == 0xFE0F || (c >= 0xE0020 && c <= 0xE007F);
}

/// An emoji of several characters may still come out as several pictures; to know that it would have to be laid out.
std::vector<bool> offeredBy(const EmojiTable &table, const QFont &font)
{
    const QFontMetrics metrics(font);
    std::vector<bool> offered;
    offered.reserve(table.all().size());
    for (const EmojiTable::Emoji &emoji : table.all()) {
        const QList<uint> characters = emoji.text.toUcs4();
        offered.push_back(
            std::ranges::all_of(characters, [&metrics](char32_t c) { return isJoining(c) || metrics.inFontUcs4(c); }));
    }
    return offered;
}

class EmojiDelegate : public QAbstractItemDelegate
{
public:
    explicit EmojiDelegate(QListView *list) : QAbstractItemDelegate(list), m_list(*list) { }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        painter->save();
        if (EmojiModel::isHeading(index))
            paintHeading(*painter, option, index.data().toString());
        else
            paintEmoji(*painter, option, index.data().toString());
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (EmojiModel::isHeading(index))
            return {m_list.viewport()->width(), headingHeight(option.fontMetrics)};
        return {emojiCell, emojiCell};
    }

private:
    void paintHeading(QPainter &painter, const QStyleOptionViewItem &option, const QString &text) const
    {
        // Not the option's, which is that of a disabled control: a heading cannot be chosen, but it is to be read.
        painter.setPen(mutedTextColour(m_list.palette()));
        painter.drawText(option.rect.adjusted(headingIndent, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
    }

    static void paintEmoji(QPainter &painter, const QStyleOptionViewItem &option, QString text)
    {
        text.remove(QChar(0xFE0F)); // the font is that of the emoji already, and some toolkits break sequences at it
        const bool selected = option.state & QStyle::State_Selected;
        if (selected || option.state & QStyle::State_MouseOver) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(selected ? option.palette.highlight() : QBrush(tintedGround(option.palette)));
            painter.drawRoundedRect(option.rect.adjusted(1, 1, -1, -1), roundness, roundness);
        }
        painter.setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        const QFont font = emojiFont(option.font, emojiPixels);
        const QFontMetrics metrics(font);
        painter.setFont(font);
        // Aligned by the text itself they would stand at different heights: some have a character of another font.
        const int left = option.rect.left() + (option.rect.width() - metrics.horizontalAdvance(text)) / 2;
        const int top = option.rect.top() + (option.rect.height() - metrics.ascent() - metrics.descent()) / 2;
        painter.drawText(left, top + metrics.ascent(), text);
    }

    const QListView &m_list;
};

bool isEnterKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

EmojiPicker::EmojiPicker(EmojiStock &emoji, QWidget *parent) : QWidget(parent), m_emoji(emoji)
{
    setObjectName(QStringLiteral("emojiPicker"));
    setAccessibleName(tr("Emoji"));
    buildControls();
    connect(m_search, &QLineEdit::textChanged, this, &EmojiPicker::showRows);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, &EmojiPicker::showName);
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex &index) {
        if (pick(index))
            Q_EMIT inputWanted();
    });
}

void EmojiPicker::buildControls()
{
    m_search = named(new QLineEdit(this), "emojiSearch");
    m_search->setPlaceholderText(tr("Find an emoji"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_search->addAction(namedPicture(QStringLiteral("search")), QLineEdit::LeadingPosition);
    m_search->installEventFilter(this);
    m_name = named(new ElidedLabel(this), "emojiName");
    buildList();

    auto *const above = new QHBoxLayout;
    above->setSpacing(form_layout::groupDistance);
    above->addWidget(m_search, 3);
    above->addWidget(m_name, 2);
    above->addLayout(makeGroups());
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(form_layout::spacing);
    column->addLayout(above);
    column->addWidget(m_list, 1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void EmojiPicker::buildList()
{
    m_list = named(new QListView(this), "emojiList");
    m_list->setAccessibleName(tr("Emoji"));
    m_list->setFlow(QListView::LeftToRight);
    m_list->setWrapping(true);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setMovement(QListView::Static);
    m_list->setSelectionRectVisible(false);
    m_list->setEditTriggers(QListView::NoEditTriggers);
    m_list->setVerticalScrollMode(QListView::ScrollPerPixel);
    m_list->verticalScrollBar()->setSingleStep(emojiCell);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // One that came and went with what is found would lay out everything twice.
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_list->setFocusPolicy(Qt::TabFocus); // a click goes on to the message
    m_list->viewport()->setAttribute(Qt::WA_Hover);
    m_list->installEventFilter(this);
    m_list->setItemDelegate(new EmojiDelegate(m_list));
    const EmojiTable &table = m_emoji.table();
    m_rows = new EmojiModel(table, offeredBy(table, emojiFont(m_list->font(), emojiPixels)), this);
    m_list->setModel(m_rows);
    new EmptyHint(*m_list, "noEmoji", tr("No emoji has such a name. Try another word."));
}

/// Each shows the first emoji of its group.
QHBoxLayout *EmojiPicker::makeGroups()
{
    m_rows->showAll({});
    auto *const row = new QHBoxLayout;
    row->setSpacing(0);
    for (int group = 0; group < EmojiTable::groups; ++group) {
        const std::optional<int> heading = m_rows->headingOf(group);
        if (!heading)
            continue;
        auto *const button = named(new QToolButton(this), "emojiGroup");
        button->setText(m_rows->index(*heading + 1).data().toString());
        button->setFont(emojiFont(font(), groupPixels));
        button->setToolTip(EmojiTable::groupName(group));
        button->setAccessibleName(button->toolTip());
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus); // the keyboard has its own ways
        button->setFixedSize(groupCell, groupCell);
        connect(button, &QToolButton::clicked, this, [this, group] { showGroup(group); });
        row->addWidget(button);
    }
    return row;
}

QSize EmojiPicker::sizeHint() const
{
    return {m_search->sizeHint().width(), heightOf(m_leastRows)}; // or a line would be cut
}

QSize EmojiPicker::minimumSizeHint() const
{
    return {layout()->minimumSize().width(), heightOf(m_leastRows)};
}

int EmojiPicker::heightOf(int rows) const
{
    const int frames = 2 * m_list->frameWidth() + form_layout::spacing;
    const int above = qMax(m_search->sizeHint().height(), groupCell);
    return above + frames + m_headings * headingHeight(m_list->fontMetrics()) + rows * emojiCell;
}

void EmojiPicker::setLeastRows(int rows)
{
    m_leastRows = rows;
    m_headings = m_emoji.recent().isEmpty() ? 1 : 2;
    updateGeometry();
}

int EmojiPicker::rowsWith(int room) const
{
    return qBound(fewestRows, m_leastRows + room / emojiCell, mostRows);
}

// --- what is shown

void EmojiPicker::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    // What was used since stands at the head now; it does not move while somebody chooses.
    const QSignalBlocker quiet(m_search);
    m_search->clear();
    showRows();
}

/// Where there is no room for both, the tool tip has the name as well.
void EmojiPicker::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_name->setVisible(width() >= widthWithName);
}

void EmojiPicker::showRows()
{
    const QString typed = m_search->text();
    if (typed.trimmed().isEmpty())
        m_rows->showAll(m_emoji.recent());
    else
        m_rows->showFound(typed);
    chooseFirst();
    showName();
}

void EmojiPicker::showGroup(int group)
{
    m_search->clear();
    const std::optional<int> heading = m_rows->headingOf(group);
    if (!heading)
        return;
    m_list->setCurrentIndex(m_rows->index(*heading + 1));
    m_list->scrollTo(m_rows->index(*heading), QListView::PositionAtTop);
}

void EmojiPicker::showName()
{
    const QModelIndex current = m_list->currentIndex();
    m_name->setText(current.isValid() ? current.data(EmojiModel::nameRole).toString() : tr("Not found"));
}

// --- choosing

bool EmojiPicker::pick(const QModelIndex &index)
{
    if (!index.isValid() || EmojiModel::isHeading(index))
        return false;
    Q_EMIT picked(index.data().toString());
    return true;
}

void EmojiPicker::pickCurrent()
{
    if (pick(m_list->currentIndex()))
        m_search->selectAll(); // the next word replaces this one
}

void EmojiPicker::chooseFirst()
{
    m_list->setCurrentIndex({});
    step(1);
    m_list->scrollToTop();
}

bool EmojiPicker::isInFirstLine() const
{
    const QModelIndex first = m_rows->index(EmojiModel::isHeading(m_rows->index(0)) ? 1 : 0);
    return m_list->visualRect(first).top() == m_list->visualRect(m_list->currentIndex()).top();
}

void EmojiPicker::step(int by)
{
    const QModelIndex current = m_list->currentIndex();
    int row = current.isValid() ? current.row() + by : 0;
    while (row >= 0 && row < m_rows->rowCount() && EmojiModel::isHeading(m_rows->index(row)))
        row += by;
    if (row >= 0 && row < m_rows->rowCount())
        m_list->setCurrentIndex(m_rows->index(row));
}

// --- keys

bool EmojiPicker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if (isEnterKey(key.key())) {
        pickCurrent();
        return true;
    }
    return watched == m_search ? takesInSearch(key) : takesInList(key);
}

bool EmojiPicker::takesInSearch(const QKeyEvent &event)
{
    if (event.key() != Qt::Key_Down)
        return false;
    m_list->setFocus(Qt::OtherFocusReason);
    return true;
}

bool EmojiPicker::takesInList(const QKeyEvent &event)
{
    const int forwards = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    if (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right) {
        step(event.key() == forwards ? 1 : -1);
        return true;
    }
    const bool isTyped = !event.text().isEmpty() && event.text().front().isPrint()
        && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (event.key() == Qt::Key_Home) {
        chooseFirst();
        return true;
    }
    if (event.key() == Qt::Key_Up && isInFirstLine()) {
        m_search->setFocus(Qt::OtherFocusReason);
        return true;
    }
    if (!isTyped && event.key() != Qt::Key_Backspace)
        return false;
    m_search->setFocus(Qt::OtherFocusReason);
    QKeyEvent again(event.type(), event.key(), event.modifiers(), event.text());
    QCoreApplication::sendEvent(m_search, &again);
    return true;
}

/// Nothing that is typed here is meant for the conversation; only the window knows what Escape leaves.
void EmojiPicker::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(event->key() != Qt::Key_Escape);
}

} // namespace nimb
