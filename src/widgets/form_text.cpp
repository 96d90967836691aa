#include "widgets/form_text.h"

#include "base/line_break.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTextDocument>

namespace nimb
{

QString typedText(const QPlainTextEdit &box)
{
    return box.toPlainText().replace(QLatin1Char('\n'), lineBreak);
}

void setTypedText(QPlainTextEdit &box, const QString &text)
{
    box.setPlainText(QString(text).replace(lineBreak, QLatin1String("\n")));
    box.moveCursor(QTextCursor::End);
}

void nameCombo(QComboBox &combo, const QString &name)
{
    combo.setAccessibleName(name);
    combo.view()->setAccessibleName(name);
}

void setWindowCaption(QWidget &window, const QString &caption)
{
    window.setWindowTitle(QString(caption).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace nimb
