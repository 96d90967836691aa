// The list of emoticons to choose from.
#pragma once

#include <QListWidget>

namespace nimb
{

/// Nine faces in a row, in every window with an input box. The texts are the items' texts, the keys of the pictures
/// ("i1" to "i9") their Qt::UserRole.
class EmoticonPicker : public QListWidget
{
    Q_OBJECT

public:
    explicit EmoticonPicker(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void picked(const QString &emoticon);
};

} // namespace nimb
