#include "log/log_file_dialogs.h"

#include "log/rich_text_log.h"
#include "log/saved_log.h"
#include "widgets/file_dialogs.h"
#include "widgets/message_box.h"

#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>

namespace nimb
{
namespace
{

QString titleOf(const RichTextLogEdit &log)
{
    return log.window()->windowTitle();
}

/// What a name of a window becomes as that of a file, on every system. Whose conversation it is says enough.
QString fileNameOf(const QString &title)
{
    static const QRegularExpression forbidden(QStringLiteral("[/\\\\:*?\"<>|\\x{0}-\\x{1f}]+"));
    static const QRegularExpression program(QStringLiteral(" [-–—] NIMB-Chat.*$"));
    QString name = QString(title).remove(program).left(100);
    name.replace(forbidden, QStringLiteral("-"));
    return name.trimmed() + QLatin1String(".txt");
}

} // namespace

void askWhereToSave(RichTextLogEdit &log)
{
    const QString filters
        = RichTextLogEdit::tr("Text (*.txt)") + QLatin1String(";;") + RichTextLogEdit::tr("Web page (*.html)");
    askForNewFile(*log.window(), fileNameOf(titleOf(log)), filters, [&log](const QString &path) {
        log.writeGathered();
        if (const QString reason = saveLog(*log.document(), titleOf(log), path); !reason.isEmpty())
            warn(*log.window(),
                 RichTextLogEdit::tr("%1 cannot be written: %2.").arg(QFileInfo(path).fileName(), reason));
    });
}

void askHowToPrint(RichTextLogEdit &log)
{
    auto *const dialog = new QPrintDialog(log.window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, qOverload<QPrinter *>(&QPrintDialog::accepted), &log, [&log](QPrinter *printer) {
        log.writeGathered();
        printer->setDocName(titleOf(log));
        printLog(*log.document(), titleOf(log), *printer);
    });
    dialog->open();
}

} // namespace nimb
