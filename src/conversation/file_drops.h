// Files that are dropped on a window.
#pragma once

#include <QObject>
#include <QStringList>

class QMimeData;
class QWidget;

namespace nimb
{

/// Takes local files and folders wherever they are dropped on the watched widgets, before those see them; all else is
/// left to them.
class FileDrops : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void watch(QWidget &widget);

Q_SIGNALS:
    void dropped(const QStringList &paths);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

/// Empty where there is anything but local files.
QStringList localFilesIn(const QMimeData &data);

} // namespace nimb
