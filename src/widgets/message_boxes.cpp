#include "widgets/message_boxes.h"

#include "widgets/message_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>

#include <cstdio>

namespace nimb
{

QWidget *MessageBoxes::over() const
{
    QWidget *active = QApplication::activeWindow();
    // A dialog that is just closing would take the box with it, and the focus would go to anybody.
    while (active && !active->isVisible())
        active = active->parentWidget() ? active->parentWidget()->window() : nullptr;
    return active ? active : m_window.data();
}

/// A box of the window in which somebody types would get the keyboard from most window managers, and a letter that was
/// meant for a message would answer it. So it belongs to no window, and all others go on.
int MessageBoxes::answerBeside(QMessageBox &box)
{
    box.setAttribute(Qt::WA_ShowWithoutActivating);
    box.setWindowModality(Qt::NonModal);
    QEventLoop loop;
    QObject::connect(&box, &QMessageBox::finished, &loop, &QEventLoop::quit);
    QObject::connect(&box, &QObject::destroyed, &loop, &QEventLoop::quit);
    const QPointer<QMessageBox> shown = &box;
    box.show();
    loop.exec();
    const QAbstractButton *const clicked = shown ? shown->clickedButton() : nullptr;
    return clicked ? shown->standardButton(const_cast<QAbstractButton *>(clicked)) : QMessageBox::NoButton;
}

int MessageBoxes::show(const QString &picture, QMessageBox::StandardButtons buttons, const QString &text,
                       const QString &title, Manner manner)
{
    // The window may end while its box is open, and takes the box with it.
    const QPointer<QMessageBox> box
        = new QMessageBox(QMessageBox::NoIcon, title, {}, buttons, manner == Manner::unasked ? nullptr : over());
    dress(*box, picture);
    box->setText(text);
    if (manner != Manner::usual)
        box->setDefaultButton(QMessageBox::No);
    m_open.push_back(box);
    const int answer = manner == Manner::unasked ? answerBeside(*box) : box->exec();
    m_open.pop_back();
    delete box;
    return answer;
}

void MessageBoxes::setUnattended()
{
    m_unattended = true;
    for (const QPointer<QMessageBox> &box : m_open) {
        if (box)
            box->reject();
    }
}

bool MessageBoxes::confirm(const QString &text, const QString &title)
{
    if (m_unattended)
        return false;
    return show(questionPicture, QMessageBox::Ok | QMessageBox::Cancel, text, title) == QMessageBox::Ok;
}

bool MessageBoxes::ask(const QString &text, const QString &title)
{
    if (m_unattended)
        return false;
    return show(questionPicture, QMessageBox::Yes | QMessageBox::No, text, title) == QMessageBox::Yes;
}

std::optional<bool> MessageBoxes::decide(const QString &text, const QString &title)
{
    const bool yes = ask(text, title);
    // A box that was taken away has not been answered.
    return m_unattended ? std::nullopt : std::optional(yes);
}

std::optional<bool> MessageBoxes::decideCarefully(const QString &text, const QString &title)
{
    return decideIn(Manner::careful, text, title);
}

std::optional<bool> MessageBoxes::decideUnasked(const QString &text, const QString &title)
{
    return decideIn(Manner::unasked, text, title);
}

std::optional<bool> MessageBoxes::decideIn(Manner manner, const QString &text, const QString &title)
{
    if (m_unattended)
        return std::nullopt;
    const bool yes = show(questionPicture, QMessageBox::Yes | QMessageBox::No, text, title, manner) == QMessageBox::Yes;
    return m_unattended ? std::nullopt : std::optional(yes);
}

bool MessageBoxes::tell(const QString &text, const QString &title)
{
    if (!m_unattended)
        show(warningPicture, QMessageBox::Ok, text, title);
    if (!m_unattended)
        return true;
    // Nobody, or whoever is there had its box taken away.
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(title), qUtf8Printable(text));
    m_missed = true;
    return false;
}

} // namespace nimb
