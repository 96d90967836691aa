// What the small dialogs are made of.
#pragma once

#include "base/limits.h"
#include "widgets/form_layout.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

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

/// Several lines of running text, that many pixels wide, or wider where the window is.
inline QLabel *runningText(QWidget *parent, const char *name, const QString &text, int width)
{
    auto *const label = named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    // The height follows from the width that it gets, which a group's title may widen.
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    label->setSizePolicy(policy);
    label->setMinimumWidth(width);
    return label;
}

/// Puts these below each other into a dialog that is as large as they need.
inline void stack(QDialog &dialog, std::initializer_list<QWidget *> parts)
{
    auto *const column = new QVBoxLayout(&dialog);
    column->setContentsMargins(form_layout::margin, form_layout::margin, form_layout::margin, form_layout::margin);
    column->setSpacing(form_layout::groupDistance);
    for (QWidget *const part : parts)
        column->addWidget(part);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace nimb
