// Tool tips that show names of peers must not follow markup in them.
#pragma once

#include <QObject>

namespace nimb
{

/// Installed on the application: shows every widget's tool tip as the plain text that it is.
class PlainToolTips : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace nimb
