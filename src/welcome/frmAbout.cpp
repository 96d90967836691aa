#include "welcome/frmAbout.h"

#include "widgets/dialog_parts.h"
#include "widgets/picture_label.h"
#include "widgets/pictures.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

using form_layout::groupDistance;
using form_layout::margin;
using form_layout::spacing;

constexpr int textWidth = 340;
constexpr int pictureSize = 64;

} // namespace

frmAbout::frmAbout(SystemInformation &system, Prompts &prompts, const QString &version, QWidget *parent)
    : QDialog(parent), m_system(system), m_prompts(prompts)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About NIMB-Chat"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls(version);
    connectControls();
}

QHBoxLayout *frmAbout::buildTexts(const QString &version)
{
    auto *const picIcon = named(new PictureLabel(programIcon(), pictureSize, this), "picIcon");
    picIcon->setAccessibleName(tr("NIMB-Chat's picture"));
    auto *const lblTitle = runningText(this, "lblTitle", tr("NIMB-Chat"), textWidth);
    QFont large = lblTitle->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    lblTitle->setFont(large);
    auto *const texts = new QVBoxLayout;
    texts->setSpacing(spacing);
    texts->addWidget(lblTitle);
    texts->addWidget(runningText(this, "lblVersion", tr("Version %1").arg(version), textWidth));
    texts->addSpacing(groupDistance - spacing);
    texts->addWidget(runningText(
        this, "lblDescription",
        tr("A simple messenger that works with UDP/IP and it's been intended for use on a small LAN"), textWidth));
    texts->addSpacing(groupDistance - spacing);
    texts->addWidget(runningText(this, "lblDisclaimer",
                                 tr("Free software under the MIT licence, without any warranty. Nothing that is sent "
                                    "is encrypted: everybody on your network can read it."),
                                 textWidth));

    auto *const row = new QHBoxLayout;
    row->setSpacing(groupDistance);
    row->addWidget(picIcon, 0, Qt::AlignTop);
    row->addLayout(texts);
    return row;
}

void frmAbout::buildControls(const QString &version)
{
    auto *const buttons = new QDialogButtonBox(this);
    cmdOK = addButton(*buttons, "cmdOK", tr("OK"), QDialogButtonBox::AcceptRole);
    cmdSysInfo = addButton(*buttons, "cmdSysInfo", tr("&System Info..."), QDialogButtonBox::ActionRole);
    cmdOK->setDefault(true);
    cmdOK->setFocus();

    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(groupDistance, groupDistance, groupDistance, groupDistance);
    column->setSpacing(groupDistance);
    column->addLayout(buildTexts(version));
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void frmAbout::connectControls()
{
    connect(cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
    connect(cmdSysInfo, &QPushButton::clicked, this, &frmAbout::cmdSysInfo_Click);
}

void frmAbout::cmdSysInfo_Click()
{
    if (!m_system.StartSysInfo())
        m_prompts.tell(tr("System Information Is Unavailable At This Time"), tr("About NIMB-Chat"));
}

} // namespace nimb
