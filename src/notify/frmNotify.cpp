#include "notify/frmNotify.h"

#include "widgets/elided_label.h"
#include "widgets/form_layout.h"
#include "widgets/picture_delegate.h"
#include "widgets/picture_label.h"
#include "widgets/pictures.h"
#include "widgets/twips.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

using form_layout::margin;
using form_layout::spacing;

/// Pixels; larger letters than those of most desktops want more.
QSize popUpSizeFor(const QFontMetrics &letters)
{
    constexpr int lettersInARow = 40, rows = 10;
    return QSize(320, 150).expandedTo({lettersInARow * letters.averageCharWidth(), rows * letters.height()});
}

std::int32_t inTwips(int pixels)
{
    return pixels * twipsPerPixel;
}

/// Who comes or goes does so behind his name; of what somebody has sent the beginning says most.
class NotifyDelegate : public PictureDelegate
{
public:
    using PictureDelegate::PictureDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        PictureDelegate::initStyleOption(option, index);
        option->textElideMode = index.data(NotifyRows::IsNoticeRole).toBool() ? Qt::ElideRight : Qt::ElideMiddle;
    }
};

bool anotherScreenShows(const QRect &place)
{
    for (const QScreen *const screen : QGuiApplication::screens()) {
        if (screen != QGuiApplication::primaryScreen() && screen->geometry().intersects(place))
            return true;
    }
    return false;
}

} // namespace

frmNotify::frmNotify(NotifySlide &slide)
    : QFrame(nullptr,
             Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus
                 | Qt::BypassWindowManagerHint),
      m_slide(slide)
{
    setObjectName(QStringLiteral("frmNotify"));
    setWindowTitle(tr("NIMBChat Notify!"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    buildControls();
    connectControls();
    setFixedSize(popUpSizeFor(fontMetrics()));
}

void frmNotify::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        setFixedSize(popUpSizeFor(fontMetrics()));
    QFrame::changeEvent(event);
}

frmNotify::~frmNotify()
{
    m_slide.Form_Unload();
}

void frmNotify::buildControls()
{
    auto *const picture = new PictureLabel(windowIcon(), PictureDelegate::pictureSide, this);
    auto *const caption = new ElidedLabel(this);
    caption->setText(windowTitle());
    closebtn = named(new QPushButton(tr("hide"), this), "closebtn");
    closebtn->setFocusPolicy(Qt::NoFocus);
    auto *const top = new QHBoxLayout;
    top->setSpacing(spacing);
    top->addWidget(picture);
    top->addWidget(caption, 1);
    top->addWidget(closebtn);

    ListViewNotify = named(new QTreeView(this), "ListViewNotify");
    ListViewNotify->setAccessibleName(tr("What happened"));
    ListViewNotify->setModel(&m_slide.list());
    ListViewNotify->setItemDelegate(new NotifyDelegate(ListViewNotify));
    ListViewNotify->setHeaderHidden(true);
    ListViewNotify->setRootIsDecorated(false);
    ListViewNotify->setUniformRowHeights(true);
    ListViewNotify->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ListViewNotify->setSelectionMode(QAbstractItemView::NoSelection);
    ListViewNotify->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ListViewNotify->setFocusPolicy(Qt::NoFocus);
    ListViewNotify->setFrameShape(QFrame::NoFrame);

    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, spacing, margin, margin);
    column->setSpacing(spacing);
    column->addLayout(top);
    column->addWidget(ListViewNotify, 1);
}

void frmNotify::connectControls()
{
    connect(closebtn, &QPushButton::clicked, this, [this] { m_slide.closebtn_Click(); });
    connect(ListViewNotify, &QTreeView::clicked, this,
            // A copy, for the row goes as soon as its window is looked at.
            [this](const QModelIndex &row) { Q_EMIT opened(NoticePlace(m_slide.list().placeOf(row.row()))); });
    connect(&m_slide.list(), &NotifyRows::rowsInserted, ListViewNotify, &QTreeView::scrollToBottom);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, [this] { m_slide.screenChanged(); });
    connect(qApp, &QGuiApplication::screenAdded, this, &frmNotify::follow);
    for (const QScreen *const screen : QGuiApplication::screens())
        follow(screen);
}

void frmNotify::follow(const QScreen *screen)
{
    connect(screen, &QScreen::geometryChanged, this, [this] { m_slide.screenChanged(); });
}

NotifyView::Measures frmNotify::measures() const
{
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    return {inTwips(screen.width()), inTwips(screen.height()), inTwips(width()), inTwips(height())};
}

void frmNotify::SetWindowPos(int left, int top)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QRect place(screen.topLeft() + QPoint(left, top), size());
    // Below this screen there may be another one, which is no part of the way.
    const QRect seen = place & screen;
    const bool trimmed = anotherScreenShows(place);
    const bool hidden = trimmed && seen.isEmpty();
    // Before it moves: it must not be seen over there, and a platform may hold a visible window back at the edge.
    if (hidden)
        hide();
    move(place.topLeft());
    if (hidden)
        return;
    raise();
    if (trimmed)
        setMask(seen.translated(-place.topLeft()));
    else
        clearMask();
    show();
}

} // namespace nimb
