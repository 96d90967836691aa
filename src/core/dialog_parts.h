// What the small dialogs are made of.
#pragma once

#include "core/form_layout.h"
#include "core/limits.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace nimb
{

/// A button at its role's place in the platform's order.
inline QPushButton *addButton(QDialogButtonBox &box, const char *name, const QString &caption,
                              QDialogButtonBox::ButtonRole role)
{
    return named(box.addButton(caption, role), name);
}

/// A text box for a name or an address.
inline QLineEdit *nameBox(QWidget *parent, const char *name)
{
    auto *const box = named(new QLineEdit(parent), name);
    box->setMaxLength(int(limits::nameLength));
    return box;
}

/// Several lines of running text, that many pixels wide.
inline QLabel *runningText(QWidget *parent, const char *name, const QString &text, int width)
{
    auto *const label = named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    label->setFixedWidth(width);
    return label;
}

} // namespace nimb
