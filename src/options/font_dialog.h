// The dialog that chooses the font of the logs.
#pragma once

#include "base/Common.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QListWidget;
class QSpinBox;

namespace nimb
{

/// Family, size, bold and italic: what the stored font can hold, and no more. A stored family that is not installed
/// stands in the list too, so that it stays unless another one is chosen.
class LogFontDialog : public QDialog
{
    Q_OBJECT

public:
    LogFontDialog(const LogFont &preset, QWidget *parent);

    LogFont chosenFont() const;

private:
    void buildControls();
    void listFamilies(const QString &chosen);
    void preset(const LogFont &font);
    void showSample();

    QListWidget *m_family = nullptr;
    QSpinBox *m_size = nullptr;
    QCheckBox *m_bold = nullptr;
    QCheckBox *m_italic = nullptr;
    QLabel *m_sample = nullptr;
};

} // namespace nimb
