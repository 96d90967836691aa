// The panel in which a personalised state is made.
#pragma once

#include "base/own_presence.h"

#include <QFrame>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace nimb
{

class PersonalizedStateFrame : public QFrame
{
    Q_OBJECT

public:
    explicit PersonalizedStateFrame(QWidget *parent);

    /// Shows the panel above its neighbours and places the focus in the text.
    void ask();
    void clearText();
    void focusText();

Q_SIGNALS:
    /// The text may be empty.
    void chosen(nimb::BaseState base, const QString &text);
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildControls();
    void PersonalizedOkbtn_Click();

    QComboBox *ImageComboPers = nullptr;
    QLineEdit *PersonalizedMessageText = nullptr;
    QPushButton *PersonalizedOkbtn = nullptr;
    QPushButton *m_cancel = nullptr;
};

} // namespace nimb
