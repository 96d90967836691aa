#include "people/frmInvite.h"

#include "base/isolated.h"
#include "base/remote_text.h"
#include "widgets/dialog_parts.h"
#include "widgets/elided_label.h"
#include "widgets/pictures.h"

#include <QEvent>
#include <QGroupBox>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

using form_layout::groupDistance;
using form_layout::margin;
using form_layout::spacing;

constexpr int labelWidth = 360, letters = 52;

/// One line that never widens the dialog; what there is no room for can be read in its tool tip.
QLabel *textLine(QWidget *parent, const char *name)
{
    auto *const label = named(new ElidedLabel(parent), name);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    // With large letters more, so that the standard text has room.
    label->setMinimumWidth(qMax(labelWidth, letters * label->fontMetrics().averageCharWidth()));
    return label;
}

/// What belongs to an option button stands under its caption.
QLayout *underCaption(const QRadioButton &option, QWidget *content)
{
    const QStyle &style = *option.style();
    const int indent = style.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &option)
        + style.pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &option);
    auto *const row = new QHBoxLayout;
    row->setContentsMargins(indent, 0, 0, 0);
    row->addWidget(content);
    return row;
}

} // namespace

frmInvite::frmInvite(Invite invite, const QString &selectedAddress, QWidget *parent)
    : QDialog(parent), m_invite(std::move(invite))
{
    setObjectName(QStringLiteral("frmInvite"));
    setWindowTitle(tr("NIMB-Chat - Invite by net send"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    connectControls();
    Form_Load(selectedAddress);
}

void frmInvite::buildControls()
{
    Label1 = textLine(this, "Label1");
    QWidget *const frame = buildFrame();
    auto *const buttons = new QDialogButtonBox(this);
    sendbtn = addButton(*buttons, "sendbtn", tr("&Send"), QDialogButtonBox::AcceptRole);
    Command1 = addButton(*buttons, "Command1", tr("Cancel"), QDialogButtonBox::RejectRole);
    sendbtn->setDefault(true);
    stack(*this, {Label1, frame, buttons});
}

QWidget *frmInvite::buildFrame()
{
    auto *const frame = named(new QGroupBox(tr("Message"), this), "Frame1");
    Option1 = named(new QRadioButton(tr("S&tandard text"), frame), "Option1");
    stdtext = textLine(frame, "stdtext");
    Option2 = named(new QRadioButton(tr("&Own text"), frame), "Option2");
    Text1 = named(new QLineEdit(frame), "Text1");
    Text1->setAccessibleName(tr("Own text"));
    Text1->installEventFilter(this);
    Option1->setChecked(true);
    auto *const inFrame = new QVBoxLayout(frame);
    inFrame->setContentsMargins(margin, margin, margin, margin);
    inFrame->setSpacing(spacing);
    inFrame->addWidget(Option1);
    inFrame->addLayout(underCaption(*Option1, stdtext));
    inFrame->addSpacing(groupDistance - spacing);
    inFrame->addWidget(Option2);
    inFrame->addLayout(underCaption(*Option2, Text1));
    return frame;
}

void frmInvite::connectControls()
{
    connect(sendbtn, &QPushButton::clicked, this, &frmInvite::sendbtn_Click);
    connect(Command1, &QPushButton::clicked, this, &frmInvite::reject);
}

void frmInvite::Form_Load(const QString &selectedAddress)
{
    const QString standardText = m_invite.Form_Load(selectedAddress);
    stdtext->setText(standardText);
    stdtext->setToolTip(standardText);
    Option1->setAccessibleDescription(standardText);
    const Invite::Target &target = m_invite.target();
    const QString toWhom = tr("Send to the computer %2, for %1");
    Label1->setText(toWhom.arg(isolated(paintedName(target.nickname)), isolated(paintedName(target.computer))));
    Label1->setToolTip(toWhom.arg(isolated(target.nickname), isolated(target.computer)));
    Option1->setFocus();
}

/// Text1_GotFocus: whoever goes to type a text chooses it.
bool frmInvite::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == Text1 && event->type() == QEvent::FocusIn)
        Option2->setChecked(true);
    return QDialog::eventFilter(watched, event);
}

void frmInvite::sendbtn_Click()
{
    // Refused means told: the dialog may have been closed meanwhile and be gone.
    if (m_invite.sendbtn_Click(Option1->isChecked() ? stdtext->text() : Text1->text()))
        accept();
}

} // namespace nimb
