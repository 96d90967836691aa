// The panel with the text of the automatic reply.
#pragma once

#include <QGroupBox>

class QPushButton;

namespace nimb
{

class PlainTextBox;

/// The text is grey while it does not have the focus. It counts once the focus leaves it.
class AutoreplyFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit AutoreplyFrame(QWidget *parent);

    void setReply(const QString &caption, const QString &text);
    /// Shows the panel above its neighbours and places the focus in the text.
    void edit();
    /// Counts a text that is still being typed as left.
    void leaveText();

Q_SIGNALS:
    /// Line breaks are CR LF.
    void textLeft(const QString &text);
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildControls();
    void showUnfocused();
    void AutoReplyTxt_GotFocus();
    void AutoReplyTxt_LostFocus();

    PlainTextBox *AutoReplyTxt = nullptr;
    QPushButton *Autoreplypanelclosebtn = nullptr;
};

} // namespace nimb
