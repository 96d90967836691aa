#include "people/frmAddUser.h"

#include "base/remote_text.h"
#include "widgets/dialog_parts.h"
#include "widgets/muted_colour.h"
#include "widgets/pictures.h"

#include <QAction>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

using form_layout::margin;
using form_layout::spacing;

/// A row is one line, but what is pasted may be several.
QString typed(const QLineEdit &box)
{
    return remoteLine(box.text());
}

} // namespace

frmAddUser::frmAddUser(const AddUser &rules, QWidget *parent) : QDialog(parent), m_rules(rules)
{
    setObjectName(QStringLiteral("frmAddUser"));
    setWindowTitle(tr("Add offline user"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    connectControls();
}

void frmAddUser::buildControls()
{
    auto *const frame = named(new QGroupBox(tr("Insert user information"), this), "Frame1");
    nicktxt = nameBox(frame, "nicktxt");
    hostname = nameBox(frame, "hostname");
    ipaddress = nameBox(frame, "ipaddress");
    ipaddress->setMinimumWidth(qMax(200, 26 * ipaddress->fontMetrics().averageCharWidth()));
    Resolvebtn = named(new QPushButton(tr("Resolve"), frame), "Resolvebtn");
    Resolvebtn->setAutoDefault(false);
    auto *const grid = new QGridLayout(frame);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(spacing);
    int row = 0;
    const auto addRow = [&](const char *name, const QString &caption, QLineEdit *box, int columns) {
        auto *const label = named(new QLabel(caption, frame), name);
        label->setBuddy(box);
        grid->addWidget(label, row, 0);
        grid->addWidget(box, row++, 1, 1, columns);
    };
    addRow("Label1", tr("&Nickname"), nicktxt, 2);
    addRow("Label2", tr("&Workstation"), hostname, 2);
    addRow("Label3", tr("&IP Address"), ipaddress, 1);
    grid->addWidget(Resolvebtn, row - 1, 2);
    m_wrongAddress = ipaddress->addAction(statePicture(Picture::red), QLineEdit::TrailingPosition);
    addressRemark = named(new QLabel(frame), "addressRemark");
    addressRemark->setTextFormat(Qt::PlainText);
    addressRemark->setWordWrap(true);
    addressRemark->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // The room is kept, or the dialog would jump while somebody types: three lines, whose heights are rounded up.
    addressRemark->setFixedHeight(3 * (addressRemark->fontMetrics().lineSpacing() + 1));
    QPalette colours = addressRemark->palette();
    colours.setColor(QPalette::WindowText, contrastingOn(Qt::red, colours.color(QPalette::Window)));
    addressRemark->setPalette(colours);
    grid->addWidget(addressRemark, row, 0, 1, 3);

    auto *const buttons = new QDialogButtonBox(this);
    CmdOK = addButton(*buttons, "CmdOK", tr("OK"), QDialogButtonBox::AcceptRole);
    Command1 = addButton(*buttons, "Command1", tr("Cancel"), QDialogButtonBox::RejectRole);
    CmdOK->setDefault(true);
    stack(*this, {frame, buttons});

    const std::initializer_list<QWidget *> order = {nicktxt, hostname, ipaddress, Resolvebtn};
    for (auto control = order.begin(); control + 1 != order.end(); ++control)
        setTabOrder(*control, *(control + 1));
    nicktxt->setFocus();
    ipaddress_Change();
}

void frmAddUser::connectControls()
{
    connect(CmdOK, &QPushButton::clicked, this, &frmAddUser::CmdOK_Click);
    connect(Command1, &QPushButton::clicked, this, &frmAddUser::reject);
    connect(ipaddress, &QLineEdit::textChanged, this, &frmAddUser::ipaddress_Change);
}

void frmAddUser::ipaddress_Change()
{
    const QString remark = m_rules.remark(typed(*ipaddress));
    addressRemark->setText(remark);
    ipaddress->setAccessibleDescription(remark);
    m_wrongAddress->setToolTip(remark);
    m_wrongAddress->setVisible(!remark.isEmpty());
}

void frmAddUser::CmdOK_Click()
{
    // Refused means told: the dialog may have been closed meanwhile and be gone.
    if (m_rules.CmdOK_Click(typed(*nicktxt), typed(*hostname), typed(*ipaddress)))
        accept();
}

} // namespace nimb
