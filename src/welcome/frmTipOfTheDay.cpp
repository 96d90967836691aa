#include "welcome/frmTipOfTheDay.h"

#include "widgets/dialog_parts.h"
#include "widgets/form_text.h"
#include "widgets/picture_label.h"
#include "widgets/pictures.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

using form_layout::groupDistance;
using form_layout::margin;
using form_layout::spacing;

constexpr int bulbSize = 48;
constexpr int usualWidth = 460;
constexpr int linesSeen = 4; ///< of a tip, at least

} // namespace

frmTipOfTheDay::frmTipOfTheDay(TipOfTheDay tips, Prompts &prompts, QWidget *parent)
    : QDialog(parent), m_tips(std::move(tips)), m_prompts(prompts)
{
    setObjectName(QStringLiteral("frmTipOfTheDay"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowIcon(programIcon());
    buildControls();
    connectControls();
    resize(usualWidth, qMax(240, layout()->totalMinimumHeightForWidth(usualWidth)));
    Checkbx->setChecked(m_tips.showsAtStart());
    showTip(m_tips.Form_Load());
}

frmTipOfTheDay::~frmTipOfTheDay()
{
    Form_Unload();
}

/// The bulb and the tip on a sheet of their own.
QFrame *frmTipOfTheDay::tipFrame()
{
    auto *const frame = named(new QFrame(this), "Frame1");
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setBackgroundRole(QPalette::Base);
    frame->setAutoFillBackground(true);
    auto *const bulb = new PictureLabel(namedPicture(QStringLiteral("tip")), bulbSize, frame);
    auto *const question = named(new QLabel(tr("Did you know?"), frame), "Label1");
    question->setForegroundRole(QPalette::Text);
    QFont large = question->font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    question->setFont(large);
    Text1 = named(new QPlainTextEdit(frame), "Text1");
    Text1->setAccessibleName(tr("Tip"));
    Text1->setReadOnly(true);
    Text1->setMinimumHeight(linesSeen * Text1->fontMetrics().lineSpacing());
    Text1->setTabChangesFocus(true);
    Text1->setFrameShape(QFrame::NoFrame);
    Text1->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    Text1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text1->document()->setDocumentMargin(0);

    auto *const grid = new QGridLayout(frame);
    grid->setContentsMargins(groupDistance, groupDistance, groupDistance, groupDistance);
    grid->setHorizontalSpacing(groupDistance);
    grid->setVerticalSpacing(0);
    grid->addWidget(bulb, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(question, 0, 1);
    grid->addWidget(Text1, 1, 1);
    grid->setColumnStretch(1, 1);
    return frame;
}

void frmTipOfTheDay::buildControls()
{
    QFrame *const tip = tipFrame();
    auto *const licence = named(new QLabel(tr("NIMB-Chat is free software under the MIT licence. You are welcome to "
                                              "pass it on to everybody in your network."),
                                           this),
                                "Label2");
    licence->setWordWrap(true);
    Checkbx = named(new QCheckBox(tr("&Show tips at start"), this), "Checkbx");
    auto *const buttons = new QDialogButtonBox(this);
    nextbtn = addButton(*buttons, "nextbtn", tr("&Next tip"), QDialogButtonBox::ActionRole);
    closebtn = addButton(*buttons, "closebtn", tr("&Close"), QDialogButtonBox::RejectRole);
    closebtn->setDefault(true);
    closebtn->setFocus();

    auto *const bottom = new QHBoxLayout;
    bottom->setSpacing(groupDistance);
    bottom->addWidget(Checkbx);
    bottom->addWidget(buttons, 1);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(tip, 1);
    column->addWidget(licence);
    column->addSpacing(groupDistance - spacing);
    column->addLayout(bottom);
}

void frmTipOfTheDay::connectControls()
{
    connect(nextbtn, &QPushButton::clicked, this, &frmTipOfTheDay::nextbtn_Click);
    connect(closebtn, &QPushButton::clicked, this, &frmTipOfTheDay::reject);
}

void frmTipOfTheDay::nextbtn_Click()
{
    showTip(m_tips.nextbtn_Click());
}

void frmTipOfTheDay::showTip(const ShownTip &tip)
{
    setTypedText(*Text1, tip.text);
    Text1->moveCursor(QTextCursor::Start);
    setWindowCaption(*this, tip.caption);
}

/// Every way in which the user closes it leads here.
void frmTipOfTheDay::done(int result)
{
    const std::optional<QString> problem = Form_Unload();
    // The dialog may be gone when the user has read the message.
    Prompts &prompts = m_prompts;
    QDialog::done(result);
    if (problem)
        prompts.tell(*problem, programTitle);
}

void frmTipOfTheDay::unload()
{
    Form_Unload();
    close();
}

std::optional<QString> frmTipOfTheDay::Form_Unload()
{
    if (std::exchange(m_unloaded, true))
        return std::nullopt;
    return m_tips.Form_Unload(Checkbx->isChecked());
}

} // namespace nimb
