#include "main_window/auto_reply_frame.h"

#include "widgets/form_layout.h"
#include "widgets/form_text.h"
#include "widgets/plain_text_box.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace nimb
{
namespace
{
const QColor unfocusedColour(0x80, 0x80, 0x80);
}

AutoreplyFrame::AutoreplyFrame(QWidget *parent) : QGroupBox(parent)
{
    setObjectName(QStringLiteral("AutoreplyFrame"));
    setAutoFillBackground(true);
    buildControls();
    connect(Autoreplypanelclosebtn, &QPushButton::clicked, this, &AutoreplyFrame::closed);
    hide();
}

void AutoreplyFrame::buildControls()
{
    AutoReplyTxt = named(new PlainTextBox(this), "AutoReplyTxt");
    AutoReplyTxt->setAccessibleName(tr("AutoReply text"));
    AutoReplyTxt->setTabChangesFocus(true);
    AutoReplyTxt->installEventFilter(this);
    showUnfocused();
    Autoreplypanelclosebtn = named(new QPushButton(tr("Close"), this), "Autoreplypanelclosebtn");
    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(form_layout::margin, form_layout::spacing, form_layout::margin, form_layout::margin);
    grid->setSpacing(form_layout::spacing);
    grid->addWidget(AutoReplyTxt, 0, 0, 1, 2);
    grid->addWidget(Autoreplypanelclosebtn, 1, 1);
    grid->setColumnStretch(0, 1);
}

void AutoreplyFrame::setReply(const QString &caption, const QString &text)
{
    setTitle(caption);
    setTypedText(*AutoReplyTxt, text);
}

void AutoreplyFrame::edit()
{
    show();
    raise();
    AutoReplyTxt->setFocus();
}

void AutoreplyFrame::leaveText()
{
    if (AutoReplyTxt->hasFocus())
        AutoReplyTxt_LostFocus();
}

bool AutoreplyFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == AutoReplyTxt && event->type() == QEvent::FocusIn)
        AutoReplyTxt_GotFocus();
    else if (watched == AutoReplyTxt && event->type() == QEvent::FocusOut)
        AutoReplyTxt_LostFocus();
    return QGroupBox::eventFilter(watched, event);
}

void AutoreplyFrame::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closed();
    else
        QGroupBox::keyPressEvent(event);
}

void AutoreplyFrame::showUnfocused()
{
    QPalette grey = AutoReplyTxt->palette();
    grey.setColor(QPalette::Text, unfocusedColour);
    AutoReplyTxt->setPalette(grey);
}

void AutoreplyFrame::AutoReplyTxt_GotFocus()
{
    AutoReplyTxt->setPalette({});
}

void AutoreplyFrame::AutoReplyTxt_LostFocus()
{
    showUnfocused();
    Q_EMIT textLeft(typedText(*AutoReplyTxt));
}

} // namespace nimb
