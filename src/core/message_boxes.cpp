#include "core/message_boxes.h"

#include <QMessageBox>

#include <cstdio>

namespace nimb
{
namespace
{

int show(QMessageBox::Icon icon, QMessageBox::StandardButtons buttons, const QString &text, const QString &title,
         QWidget *parent)
{
    QMessageBox box(icon, title, {}, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    return box.exec();
}

} // namespace

bool MessageBoxes::confirm(const QString &text, const QString &title)
{
    if (m_unattended)
        return false;
    return show(QMessageBox::Question, QMessageBox::Ok | QMessageBox::Cancel, text, title, m_window) == QMessageBox::Ok;
}

void MessageBoxes::tell(const QString &text, const QString &title)
{
    if (m_unattended)
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(title), qUtf8Printable(text));
    else
        show(QMessageBox::Warning, QMessageBox::Ok, text, title, m_window);
}

} // namespace nimb
