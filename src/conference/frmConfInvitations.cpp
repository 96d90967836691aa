#include "conference/frmConfInvitations.h"

#include "widgets/bring_back.h"
#include "widgets/empty_hint.h"
#include "widgets/form_layout.h"
#include "widgets/keyed_selection.h"
#include "widgets/picture_delegate.h"
#include "widgets/pictures.h"
#include "widgets/screen_room.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
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

} // namespace

frmConfInvitations::frmConfInvitations(Invitations &invitations) : m_invitations(invitations)
{
    setObjectName(QStringLiteral("frmConfInvitations"));
    setWindowTitle(tr("Conference Invitations - NIMB-Chat"));
    setWindowIcon(programIcon());
    buildControls();
    connectControls();
    constexpr int lettersSeen = 90;
    resize(QSize(qMax(720, lettersSeen * fontMetrics().averageCharWidth()), 280).boundedTo(roomOnScreen(*this)));
    m_invitations.Form_Load(*this);
}

void frmConfInvitations::buildControls()
{
    ListView1 = named(new QTreeView(this), "ListView1");
    ListView1->setAccessibleName(tr("Invitations"));
    ListView1->setRootIsDecorated(false);
    ListView1->setUniformRowHeights(true);
    ListView1->setItemDelegate(new PictureDelegate(ListView1));
    setModelOfKeyedRows(*ListView1, m_invitations.list());
    ListView1->header()->setStretchLastSection(false);
    ListView1->header()->setSectionResizeMode(InvitationList::Text, QHeaderView::Stretch);
    // Only what is seen is measured: a thousand rows would take seconds with every change.
    ListView1->header()->setResizeContentsPrecision(0);
    for (const int column : {InvitationList::Arrived, InvitationList::Age, InvitationList::Number})
        ListView1->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);

    auto *const hint = new EmptyHint(*ListView1, "noInvitations",
                                     tr("Nobody has invited you to a conference. Begin one yourself, and invite your "
                                        "contacts to it from their menu."));
    connect(hint->addButton("newConferenceBtn", tr("Begin a conference")), &QPushButton::clicked, this,
            &frmConfInvitations::conferenceWanted);

    ConfAgreebtn = named(new QPushButton(tr("&Accept"), this), "ConfAgreebtn");
    ConfDenybtn = named(new QPushButton(tr("&Deny"), this), "ConfDenybtn");
    ConfDenyAllbtn = named(new QPushButton(tr("Deny a&ll"), this), "ConfDenyAllbtn");
    clearbtn = named(new QPushButton(tr("&Clear"), this), "clearbtn");
    clearbtn->setToolTip(tr("Removes the invitations that are over"));
    ConfAgreebtn->setEnabled(false);
    ConfDenybtn->setEnabled(false);
    ConfDenyAllbtn->setEnabled(false);
    clearbtn->setEnabled(false);
    auto *const answers = new QHBoxLayout;
    answers->setSpacing(spacing);
    for (QPushButton *const button : {ConfAgreebtn, ConfDenybtn, ConfDenyAllbtn, clearbtn})
        answers->addWidget(button);
    answers->addStretch(1);

    autorefuse = named(new QCheckBox(tr("Refuse automatically after"), this), "autorefuse");
    autorefusemins = named(new QLineEdit(this), "autorefusemins");
    autorefusemins->setAccessibleName(tr("Minutes"));
    autorefusemins->setFixedWidth(60);
    auto *const minutes = named(new QLabel(tr("minute(s)"), this), "Label1");
    auto *const refusal = new QHBoxLayout;
    refusal->setSpacing(spacing);
    refusal->addWidget(autorefuse);
    refusal->addWidget(autorefusemins);
    refusal->addWidget(minutes);
    refusal->addStretch(1);

    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(ListView1, 1);
    column->addLayout(answers);
    column->addSpacing(groupDistance - spacing);
    column->addLayout(refusal);
}

void frmConfInvitations::connectControls()
{
    connect(ConfAgreebtn, &QPushButton::clicked, this, [this] { m_invitations.ConfAgreebtn_Click(selectedRow()); });
    connect(ConfDenybtn, &QPushButton::clicked, this, [this] { m_invitations.ConfDenybtn_Click(selectedRow()); });
    connect(ConfDenyAllbtn, &QPushButton::clicked, this, [this] { m_invitations.ConfDenyAllbtn_Click(); });
    connect(clearbtn, &QPushButton::clicked, this, [this] { m_invitations.clearbtn_Click(); });
    connect(autorefuse, &QCheckBox::toggled, this, [this](bool on) { m_invitations.setAutorefuse(on); });
    connect(autorefusemins, &QLineEdit::textChanged, this, &frmConfInvitations::autorefusemins_Change);
    connect(ListView1->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmConfInvitations::ListView1_ItemClick);
    const InvitationList &list = m_invitations.list();
    connect(&list, &InvitationList::dataChanged, this, &frmConfInvitations::ListView1_ItemClick);
    connect(&list, &InvitationList::dataChanged, this, &frmConfInvitations::offerWhatConcernsSeveral);
    connect(&list, &InvitationList::rowsInserted, this, &frmConfInvitations::offerWhatConcernsSeveral);
    connect(&list, &InvitationList::rowsRemoved, this, &frmConfInvitations::offerWhatConcernsSeveral);
    // Who is looking chooses himself: a click must not meet an invitation that has come this moment.
    connect(ListView1->model(), &QAbstractItemModel::rowsInserted, this, [this] {
        if (!isActiveWindow())
            selectTheOnlyOne();
    });
}

void frmConfInvitations::selectTheOnlyOne()
{
    if (ListView1->model()->rowCount() == 1 && selectedRow() < 0)
        ListView1->setCurrentIndex(ListView1->model()->index(0, 0));
}

int frmConfInvitations::selectedRow() const
{
    const QModelIndexList rows = ListView1->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void frmConfInvitations::ListView1_ItemClick()
{
    const bool pending = m_invitations.isPending(selectedRow());
    // Whoever presses on must not press what the focus would pass on to.
    if (!pending && (ConfAgreebtn->hasFocus() || ConfDenybtn->hasFocus()))
        ListView1->setFocus();
    ConfAgreebtn->setEnabled(pending);
    ConfDenybtn->setEnabled(pending);
}

void frmConfInvitations::offerWhatConcernsSeveral()
{
    ConfDenyAllbtn->setEnabled(m_invitations.isAnyPending());
    const bool isAnyOver = m_invitations.isAnyOver();
    // As above; an empty list hides the window anyway.
    if (!isAnyOver && clearbtn->hasFocus())
        ListView1->setFocus();
    clearbtn->setEnabled(isAnyOver);
}

void frmConfInvitations::autorefusemins_Change()
{
    const QString number = m_invitations.setAutorefuseMins(autorefusemins->text());
    if (number != autorefusemins->text())
        autorefusemins->setText(number);
}

void frmConfInvitations::setAutoRefusal(bool on, int minutes)
{
    autorefuse->setChecked(on);
    autorefusemins->setText(QString::number(minutes));
}

void frmConfInvitations::showWithoutFocus()
{
    if (isVisible() && !isMinimized())
        return;
    setAttribute(Qt::WA_ShowWithoutActivating, true);
    bringBack(*this);
}

void frmConfInvitations::showWindow()
{
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    selectTheOnlyOne();
    bringBack(*this);
    activateWindow();
}

void frmConfInvitations::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActive())
        m_invitations.Form_Activate();
}

void frmConfInvitations::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    if (!isEnter || event->isAutoRepeat())
        return QWidget::keyPressEvent(event);
    // Which has come to be chosen here, never by itself while one types: the list selects nothing in an active window.
    if (ListView1->hasFocus())
        ConfAgreebtn->click();
    else if (auto *const button = qobject_cast<QPushButton *>(focusWidget()))
        button->click();
}

void frmConfInvitations::closeEvent(QCloseEvent *event)
{
    event->ignore();
    hide();
}

} // namespace nimb
