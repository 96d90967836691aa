// The dialog with the tip of the day.
#pragma once

#include "base/prompts.h"
#include "welcome/tip_of_the_day.h"

#include <QDialog>

class QCheckBox;
class QFrame;
class QPlainTextEdit;
class QPushButton;

namespace nimb
{

/// Modeless, destroyed when it is closed. However it ends, its settings are saved once.
class frmTipOfTheDay : public QDialog
{
    Q_OBJECT

public:
    /// The settings store must outlive the dialog.
    frmTipOfTheDay(TipOfTheDay tips, Prompts &prompts, QWidget *parent);
    ~frmTipOfTheDay() override;

    /// Closes it because something else ends; a failure to save is left to whoever saves then.
    void unload();
    void done(int result) override;

private:
    void buildControls();
    QFrame *tipFrame();
    void connectControls();
    void nextbtn_Click();
    void showTip(const ShownTip &tip);
    std::optional<QString> Form_Unload();

    TipOfTheDay m_tips;
    Prompts &m_prompts;
    bool m_unloaded = false;
    QPlainTextEdit *Text1 = nullptr;
    QCheckBox *Checkbx = nullptr;
    QPushButton *nextbtn = nullptr;
    QPushButton *closebtn = nullptr;
};

} // namespace nimb
