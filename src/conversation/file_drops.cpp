#include "conversation/file_drops.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace nimb
{

QStringList localFilesIn(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (!url.isLocalFile())
            return {};
        paths += url.toLocalFile();
    }
    return paths;
}

void FileDrops::watch(QWidget &widget)
{
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        break;
    default:
        return QObject::eventFilter(watched, event);
    }
    auto &drop = *static_cast<QDropEvent *>(event);
    const QStringList paths = localFilesIn(*drop.mimeData());
    if (paths.isEmpty())
        return QObject::eventFilter(watched, event);
    drop.setDropAction(Qt::CopyAction); // never moved: they stay where they are
    drop.accept();
    if (event->type() == QEvent::Drop)
        Q_EMIT dropped(paths);
    return true;
}

} // namespace nimb
