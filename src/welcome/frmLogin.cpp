#include "welcome/frmLogin.h"

#include "widgets/form_layout.h"
#include "widgets/picture_label.h"
#include "widgets/pictures.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace nimb
{

frmLogin::frmLogin(Login &login, Prompts &prompts) : m_login(login), m_prompts(prompts)
{
    setObjectName(QStringLiteral("frmLogin"));
    setWindowTitle(tr("NIMB-Chat"));
    setWindowIcon(programIcon());
    buildControls();
    connectControls();
    Form_Load();
}

void frmLogin::buildControls()
{
    auto *const picture = new PictureLabel(programIcon(), 48, this);
    auto *const welcome = new QLabel(tr("Welcome to NIMB-Chat!"), this);
    QFont large = welcome->font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    welcome->setFont(large);
    auto *const request = new QLabel(tr("Please, choose a nickname for this session"), this);
    auto *const caption = new QLabel(tr("&NickName:"), this);
    txtUserName = new QLineEdit(this);
    txtUserName->setObjectName(QStringLiteral("txtUserName"));
    txtUserName->setMinimumWidth(220);
    caption->setBuddy(txtUserName);
    CmdOK = new QPushButton(tr("OK"), this);
    CmdOK->setObjectName(QStringLiteral("CmdOK"));
    CmdOK->setDefault(true);

    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(form_layout::groupDistance, form_layout::groupDistance, form_layout::groupDistance,
                             form_layout::groupDistance);
    grid->setSpacing(form_layout::spacing);
    grid->addWidget(picture, 0, 0, 2, 1, Qt::AlignCenter);
    grid->addWidget(welcome, 0, 1);
    grid->addWidget(request, 1, 1);
    grid->setRowMinimumHeight(2, form_layout::spacing);
    grid->addWidget(caption, 3, 0);
    grid->addWidget(txtUserName, 3, 1);
    grid->setRowMinimumHeight(4, form_layout::spacing);
    grid->addWidget(CmdOK, 5, 1, Qt::AlignRight);
    grid->setSizeConstraint(QLayout::SetFixedSize);
}

void frmLogin::connectControls()
{
    connect(CmdOK, &QPushButton::clicked, this, &frmLogin::CmdOK_Click);
}

void frmLogin::Form_Load()
{
    txtUserName->setText(m_login.Form_Load());
    txtUserName->selectAll();
    // The focus cannot be set while the dialog is still loading.
    QTimer::singleShot(10, this, [this] { txtUserName->setFocus(); });
}

void frmLogin::CmdOK_Click()
{
    if (const std::optional<QString> problem = m_login.CmdOK_Click(txtUserName->text()))
        m_prompts.tell(*problem, windowTitle());
    // The program may have been ended while the user was being told.
    if (isVisible())
        accept();
}

} // namespace nimb
