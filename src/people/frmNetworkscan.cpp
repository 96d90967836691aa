#include "people/frmNetworkscan.h"

#include "widgets/dialog_parts.h"
#include "widgets/form_text.h"
#include "widgets/pictures.h"

#include <QComboBox>
#include <QGroupBox>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

using form_layout::margin;
using form_layout::spacing;

constexpr int explanationWidth = 380;

} // namespace

frmNetworkscan::frmNetworkscan(const NetworkScan &scan, QWidget *parent) : QDialog(parent), m_scan(scan)
{
    setObjectName(QStringLiteral("frmNetworkscan"));
    setWindowTitle(tr("NIMB-Chat - Network Scan"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    connectControls();
    Form_Load();
}

void frmNetworkscan::buildControls()
{
    auto *const frame = named(new QGroupBox(tr("Scan/search the network for new NIMB-Chat users"), this), "Frame1");
    auto *const caption = named(new QLabel(tr("&Workstation name / IP Address:"), frame), "Label1");
    Text1 = nameBox(frame, "Text1");
    caption->setBuddy(Text1);
    networksCombo = named(new QComboBox(frame), "networksCombo");
    nameCombo(*networksCombo, tr("Everybody on a network of this computer"));
    networksCombo->setPlaceholderText(tr("Everybody on..."));
    networksCombo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto *const row = new QHBoxLayout;
    row->setSpacing(spacing);
    row->addWidget(Text1, 1);
    row->addWidget(networksCombo);
    auto *const note
        = runningText(frame, "Label2",
                      tr("Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is "
                         "192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is "
                         "192.168.1.255)"),
                      explanationWidth);
    m_noNetwork = makeNoNetwork(frame);
    auto *const inFrame = new QVBoxLayout(frame);
    inFrame->setContentsMargins(margin, margin, margin, margin);
    inFrame->setSpacing(spacing);
    inFrame->addWidget(caption);
    inFrame->addLayout(row);
    inFrame->addWidget(note);
    inFrame->addWidget(m_noNetwork);

    auto *const buttons = new QDialogButtonBox(this);
    Command1 = addButton(*buttons, "Command1", tr("Scan"), QDialogButtonBox::AcceptRole);
    Command2 = addButton(*buttons, "Command2", tr("Cancel"), QDialogButtonBox::RejectRole);
    Command1->setDefault(true);
    stack(*this, {frame, buttons});
}

/// Where there is nothing to choose from, it says so and where to go on.
QWidget *frmNetworkscan::makeNoNetwork(QWidget *parent)
{
    auto *const part = named(new QWidget(parent), "noNetwork");
    auto *const sentence = named(new QLabel(tr("This computer is in no network now."), part), "noNetworkLabel");
    auto *const doctor = named(new QPushButton(tr("Network &doctor..."), part), "doctorBtn");
    doctor->setAutoDefault(false);
    connect(doctor, &QPushButton::clicked, this, [this] {
        reject();
        Q_EMIT doctorWanted();
    });
    auto *const row = new QHBoxLayout(part);
    row->setContentsMargins(0, spacing, 0, 0);
    row->setSpacing(spacing);
    row->addWidget(sentence, 1);
    row->addWidget(doctor);
    return part;
}

void frmNetworkscan::connectControls()
{
    connect(networksCombo, &QComboBox::activated, this, &frmNetworkscan::networksCombo_Click);
    connect(Command1, &QPushButton::clicked, this, &frmNetworkscan::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &frmNetworkscan::reject);
}

void frmNetworkscan::Form_Load()
{
    for (const SearchedNetwork &network : m_scan.networks()) {
        const QString everybody = addressText(network.everybody);
        networksCombo->addItem(tr("%1 (%2)").arg(everybody, network.name), everybody);
    }
    networksCombo->setCurrentIndex(-1);
    networksCombo->setVisible(networksCombo->count() > 0);
    m_noNetwork->setVisible(networksCombo->count() == 0);
    Text1->setText(m_scan.Form_Load());
    Text1->selectAll();
    Text1->setFocus();
}

void frmNetworkscan::networksCombo_Click(int position)
{
    Text1->setText(networksCombo->itemData(position).toString());
}

void frmNetworkscan::Command1_Click()
{
    m_scan.Command1_Click(Text1->text());
    accept();
}

} // namespace nimb
