// What the keyboard can do in a window, for a test to compare.
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QTest>

#include <string>
#include <vector>

namespace nimb::test
{

/// Names of the controls that the Tab key visits in one round, by pressing it. The round begins with the first control
/// of the window; a control that keeps the focus ends it early.
inline std::vector<std::string> tabStops(QWidget &window)
{
    window.activateWindow();
    QWidget *first = window.nextInFocusChain();
    while (first != &window && !(first->focusPolicy() & Qt::TabFocus && first->isVisibleTo(&window)))
        first = first->nextInFocusChain();
    first->setFocus(Qt::TabFocusReason);
    std::vector<std::string> names;
    for (QWidget *stop = first; stop && names.size() < 100;) {
        names.push_back(stop->objectName().toStdString());
        QTest::keyClick(stop, Qt::Key_Tab);
        QWidget *const next = window.focusWidget();
        if (next == first || next == stop)
            break;
        stop = next;
    }
    return names;
}

/// The keys that act at once, such as "Alt+S", in no order and each as often as it is used: of buttons, frames and
/// labels.
inline std::vector<std::string> accessKeys(const QWidget &window)
{
    std::vector<std::string> keys;
    const auto note = [&keys](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            keys.push_back(key.toString(QKeySequence::PortableText).toStdString());
    };
    for (const auto *const button : window.findChildren<QAbstractButton *>())
        note(button->text());
    for (const auto *const frame : window.findChildren<QGroupBox *>())
        note(frame->title());
    for (const auto *const label : window.findChildren<QLabel *>()) {
        if (label->buddy())
            note(label->text());
    }
    return keys;
}

/// Names of the controls the Tab key visits that a screen reader could not name.
inline std::vector<std::string> withoutAccessibleName(const QWidget &window)
{
    std::vector<std::string> names;
    for (QWidget *const control : window.findChildren<QWidget *>()) {
        if (!(control->focusPolicy() & Qt::TabFocus) || control->objectName().startsWith(QLatin1String("qt_")))
            continue;
        QAccessibleInterface *const reader = QAccessible::queryAccessibleInterface(control);
        if (!reader || reader->text(QAccessible::Name).isEmpty())
            names.push_back(control->metaObject()->className() + (" " + control->objectName().toStdString()) + " of "
                            + control->parentWidget()->objectName().toStdString());
    }
    return names;
}

/// Types into whatever has the focus.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

inline void type(const char *text)
{
    QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
}

} // namespace nimb::test
