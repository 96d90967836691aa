#include "dialogs/frmNotify.h"

#include "core/limits.h"
#include "core/pictures.h"
#include "core/twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace nimb
{
namespace
{
constexpr double distanceFromScreenEdge = 120; // twips
}

frmNotify::frmNotify()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus)
{
    setObjectName(QStringLiteral("frmNotify"));
    setWindowTitle(tr("NIMBChat Notify!"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_ShowWithoutActivating);
    buildControls();
    resize(220, 120);
    park();
}

void frmNotify::buildControls()
{
    m_rows = new QStandardItemModel(0, 1, this);
    ListViewNotify = new QTreeView(this);
    ListViewNotify->setObjectName(QStringLiteral("ListViewNotify"));
    ListViewNotify->setModel(m_rows);
    ListViewNotify->setHeaderHidden(true);
    ListViewNotify->setRootIsDecorated(false);
    ListViewNotify->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(ListViewNotify);
}

void frmNotify::park()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    move(screen.right() + 1 - width() - pixels(distanceFromScreenEdge),
         screen.bottom() + 1 + pixels(distanceFromScreenEdge));
}

void frmNotify::add(const QString &text, Picture picture)
{
    auto *const row = new QStandardItem(statePicture(picture), text);
    row->setData(pictureKey(picture), Qt::UserRole + 2);
    m_rows->appendRow(row);
    if (m_rows->rowCount() > limits::notifications)
        m_rows->removeRow(0);
}

} // namespace nimb
