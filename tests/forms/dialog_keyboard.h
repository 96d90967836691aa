// What the keyboard reaches in a dialog.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <string>
#include <vector>

namespace nimb::test
{

/// Letters of the access keys, in no order, each as often as it is used.
inline std::vector<std::string> accessKeys(const QWidget &window)
{
    std::vector<std::string> keys;
    const auto add = [&](const QString &caption) {
        const QKeySequence key = QKeySequence::mnemonic(caption);
        if (!key.isEmpty())
            keys.push_back(key.toString(QKeySequence::PortableText).toStdString());
    };
    for (const QAbstractButton *const button : window.findChildren<QAbstractButton *>())
        add(button->text());
    for (const QGroupBox *const frame : window.findChildren<QGroupBox *>())
        add(frame->title());
    for (const QLabel *const label : window.findChildren<QLabel *>()) {
        if (label->buddy())
            add(label->text());
    }
    return keys;
}

/// Names of the controls that Tab goes through, from the focused one until it comes back there.
inline std::vector<std::string> tabRound(QWidget &window)
{
    std::vector<std::string> names;
    const QWidget *const first = QApplication::focusWidget();
    for (int steps = 0; steps < 50; ++steps) {
        QWidget *const now = QApplication::focusWidget();
        if (!now || (now == first && steps > 0))
            break;
        names.push_back(now->objectName().toStdString());
        QTest::keyClick(now, Qt::Key_Tab);
    }
    return QApplication::focusWidget() == first && window.isAncestorOf(first) ? names
                                                                              : std::vector<std::string>{"(trapped)"};
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

/// Texts of labels that would be taken for markup, or of which a piece is cut off.
inline std::vector<std::string> badLabels(const QWidget &window)
{
    std::vector<std::string> bad;
    for (const QLabel *const label : window.findChildren<QLabel *>()) {
        const bool guesses = label->textFormat() != Qt::PlainText && Qt::mightBeRichText(label->text());
        const bool cut = label->wordWrap() && label->height() < label->heightForWidth(label->width());
        if (guesses || cut)
            bad.push_back(label->objectName().toStdString());
    }
    return bad;
}

} // namespace nimb::test
