#include "people/frmSendContact.h"

#include "base/remote_text.h"
#include "widgets/dialog_parts.h"
#include "widgets/empty_hint.h"
#include "widgets/form_text.h"
#include "widgets/picture_delegate.h"
#include "widgets/pictures.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

using form_layout::groupDistance;
using form_layout::margin;
using form_layout::spacing;

class NameDelegate : public PictureDelegate
{
public:
    using PictureDelegate::PictureDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        PictureDelegate::initStyleOption(option, index);
        option->text = paintedName(option->text);
        option->textElideMode = Qt::ElideRight;
    }
};

/// A list of contacts of which several can be selected.
class NameView : public QTreeView
{
public:
    NameView(TransferList &rows, QWidget *parent) : QTreeView(parent)
    {
        setModel(&rows);
        setItemDelegate(new NameDelegate(this));
        setRootIsDecorated(false);
        setItemsExpandable(false);
        setUniformRowHeights(true);
        setEditTriggers(NoEditTriggers);
        setSelectionMode(ExtendedSelection);
        setTabKeyNavigation(false);
        header()->setSectionsClickable(false);
    }
};

std::vector<int> selectedRows(const QTreeView &view)
{
    std::vector<int> rows;
    for (const QModelIndex &index : view.selectionModel()->selectedRows())
        rows.push_back(index.row());
    return rows;
}

} // namespace

frmSendContact::frmSendContact(std::unique_ptr<ContactTransfer> transfer, const QString &nickname, QWidget *parent)
    : QDialog(parent), m_transfer(std::move(transfer))
{
    setObjectName(QStringLiteral("frmSendContact"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowIcon(programIcon());
    setWindowCaption(*this, tr("NIMB-Chat - Send Contacts to '%1'").arg(nickname));
    m_transfer->Form_Load();
    buildControls();
    connectControls();
    resize(520, 340);
}

QPushButton *frmSendContact::moveButton(const char *name, const QString &arrow, const QString &hint,
                                        std::function<void()> move)
{
    auto *const button = named(new QPushButton(arrow, this), name);
    button->setToolTip(hint);
    button->setAccessibleName(hint);
    connect(button, &QPushButton::clicked, this, std::move(move));
    return button;
}

QLayout *frmSendContact::moveButtons()
{
    ContactTransfer &transfer = *m_transfer;
    auto *const column = new QVBoxLayout;
    column->setSpacing(spacing);
    column->addStretch(1);
    column->addWidget(moveButton("btnsendone", QStringLiteral(">"), tr("Choose the selected contacts"),
                                 [this, &transfer] { transfer.btnsendone_Click(selectedRows(*ListView1)); }));
    column->addWidget(moveButton("btnsendall", QStringLiteral(">>"), tr("Choose all contacts"),
                                 [&transfer] { transfer.btnsendall_Click(); }));
    column->addSpacing(groupDistance - spacing);
    column->addWidget(moveButton("btnRemoveOne", QStringLiteral("<"), tr("Take the selected contacts back"),
                                 [this, &transfer] { transfer.btnRemoveOne_Click(selectedRows(*ListView2)); }));
    column->addWidget(moveButton("btnremoveall", QStringLiteral("<<"), tr("Take all contacts back"),
                                 [&transfer] { transfer.btnremoveall_Click(); }));
    column->addStretch(1);
    return column;
}

void frmSendContact::buildControls()
{
    // Made in the order in which the Tab key visits them.
    auto *const request = named(new QLabel(tr("Select the contacts you want to send"), this), "Label1");
    ListView1 = named(new NameView(m_transfer->offered(), this), "ListView1");
    ListView1->setAccessibleName(tr("Contacts that can be sent"));
    new EmptyHint(*ListView1, "noneOffered", tr("No more contacts to send"));
    QLayout *const moves = moveButtons();
    ListView2 = named(new NameView(m_transfer->chosen(), this), "ListView2");
    ListView2->setAccessibleName(tr("Contacts chosen for sending"));
    new EmptyHint(*ListView2, "noneChosen", tr("Contacts moved here will be sent"));
    auto *const buttons = new QDialogButtonBox(this);
    sendbtn = addButton(*buttons, "sendbtn", tr("&Send"), QDialogButtonBox::AcceptRole);
    cancelbtn = addButton(*buttons, "cancelbtn", tr("&Cancel"), QDialogButtonBox::RejectRole);
    sendbtn->setDefault(true);

    auto *const lists = new QHBoxLayout;
    lists->setSpacing(groupDistance);
    lists->addWidget(ListView1, 1);
    lists->addLayout(moves);
    lists->addWidget(ListView2, 1);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(request);
    column->addLayout(lists, 1);
    column->addSpacing(groupDistance - spacing);
    column->addWidget(buttons);
}

void frmSendContact::connectControls()
{
    ContactTransfer &transfer = *m_transfer;
    connect(ListView1, &QTreeView::doubleClicked, this,
            [&transfer](const QModelIndex &index) { transfer.btnsendone_Click({index.row()}); });
    connect(ListView2, &QTreeView::doubleClicked, this,
            [&transfer](const QModelIndex &index) { transfer.btnRemoveOne_Click({index.row()}); });
    connect(sendbtn, &QPushButton::clicked, this, &frmSendContact::sendbtn_Click);
    connect(cancelbtn, &QPushButton::clicked, this, &frmSendContact::reject);
}

void frmSendContact::sendbtn_Click()
{
    m_transfer->sendbtn_Click();
    accept();
}

} // namespace nimb
