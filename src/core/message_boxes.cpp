#include "core/message_boxes.h"

#include <cstdio>

namespace nimb
{

int MessageBoxes::show(QMessageBox::Icon icon, QMessageBox::StandardButtons buttons, const QString &text,
                       const QString &title)
{
    QMessageBox box(icon, title, {}, buttons, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    m_open.push_back(&box);
    const int answer = box.exec();
    m_open.pop_back();
    return answer;
}

void MessageBoxes::setUnattended()
{
    m_unattended = true;
    for (QMessageBox *const box : m_open)
        box->reject();
}

bool MessageBoxes::confirm(const QString &text, const QString &title)
{
    if (m_unattended)
        return false;
    return show(QMessageBox::Question, QMessageBox::Ok | QMessageBox::Cancel, text, title) == QMessageBox::Ok;
}

bool MessageBoxes::ask(const QString &text, const QString &title)
{
    if (m_unattended)
        return false;
    return show(QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, text, title) == QMessageBox::Yes;
}

void MessageBoxes::tell(const QString &text, const QString &title)
{
    if (m_unattended)
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(title), qUtf8Printable(text));
    else
        show(QMessageBox::Warning, QMessageBox::Ok, text, title);
}

} // namespace nimb
