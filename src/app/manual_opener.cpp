#include "app/manual_opener.h"

#include "widgets/message_box.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QUrl>

#include <algorithm>

namespace nimb
{
namespace
{

bool isHelpKey(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

/// Of a window that has no page, such as a dialog for files, that of the window over which it stands.
QString pageOf(const QWidget &control)
{
    if (qobject_cast<const QMessageBox *>(control.window()))
        return QLatin1String(messagesManualPage);
    for (const QWidget *widget = &control; widget; widget = widget->parentWidget()) {
        const auto *const page = std::ranges::find_if(manualPages, [widget](const ManualPage &one) {
            return widget->isWindow() && widget->objectName() == QLatin1String(one.window);
        });
        if (page != manualPages.end())
            return QLatin1String(page->file);
    }
    return QLatin1String(firstManualPage);
}

} // namespace

ManualOpener::ManualOpener(std::optional<QString> folder, LinkOpener &opener)
    : m_folder(std::move(folder)), m_opener(opener)
{
    if (m_folder)
        qApp->installEventFilter(this);
}

void ManualOpener::openFor(QWidget &control)
{
    if (!m_folder)
        return;
    const QString page = QDir(*m_folder).filePath(pageOf(control));
    const auto complain = [window = QPointer<QWidget>(control.window()), page] {
        if (window)
            warn(*window, tr("Nothing on this computer opens %1.").arg(QDir::toNativeSeparators(page)));
    };
    if (!m_opener.open(QUrl::fromLocalFile(page), complain))
        complain();
}

/// The main window does not come here for its key: the entry of its menu has it. A window sees the key before its
/// controls do, as a QWindow, which is of no use here.
bool ManualOpener::eventFilter(QObject *watched, QEvent *event)
{
    auto *const control = isHelpKey(*event) ? qobject_cast<QWidget *>(watched) : nullptr;
    if (!control)
        return QObject::eventFilter(watched, event);
    event->accept();
    // A key that is held down opens the page once.
    if (!static_cast<QKeyEvent *>(event)->isAutoRepeat())
        openFor(*control);
    return true;
}

} // namespace nimb
