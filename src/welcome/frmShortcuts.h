// The page that lists the keys.
#pragma once

#include <QDialog>

namespace nimb
{

/// Deletes itself when it is closed.
class frmShortcuts : public QDialog
{
    Q_OBJECT

public:
    explicit frmShortcuts(QWidget *parent);
};

} // namespace nimb
