#include "files/frmTransfers.h"

#include "base/isolated.h"
#include "files/file_name.h"
#include "widgets/dialog_parts.h"
#include "widgets/empty_hint.h"
#include "widgets/file_dialogs.h"
#include "widgets/form_text.h"
#include "widgets/message_box.h"
#include "widgets/pictures.h"
#include "widgets/screen_room.h"

#include <QComboBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QPointer>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>

namespace nimb
{
namespace
{

QTreeView *transferList(QWidget *parent, const char *name, const QString &accessible, QAbstractItemModel &model)
{
    auto *const list = named(new QTreeView(parent), name);
    list->setAccessibleName(accessible);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setTabKeyNavigation(false);
    list->setModel(&model);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    const int letter = list->fontMetrics().averageCharWidth();
    // How it goes may take a whole sentence to say.
    constexpr int sentence = 2, widths[] = {36, 16, 36, 28};
    list->header()->setStretchLastSection(false);
    for (int column = 0; column < static_cast<int>(std::size(widths)); ++column)
        list->header()->resizeSection(column, widths[column] * letter);
    list->header()->setSectionResizeMode(sentence, QHeaderView::Stretch);
    return list;
}

QHBoxLayout *buttonLine(std::initializer_list<QWidget *> controls)
{
    auto *const line = new QHBoxLayout;
    line->setSpacing(form_layout::spacing);
    line->addStretch(1);
    for (QWidget *const control : controls)
        line->addWidget(control);
    return line;
}

QPushButton *transferButton(QWidget *parent, const char *name, const QString &caption)
{
    auto *const button = named(new QPushButton(caption, parent), name);
    button->setAutoDefault(false);
    return button;
}

} // namespace

frmTransfers::frmTransfers(FileTransfers &transfers, LinkOpener &folders, Prompts &prompts, QWidget *parent)
    : QDialog(parent), m_transfers(transfers), m_folders(folders), m_prompts(prompts)
{
    setObjectName(QStringLiteral("frmTransfers"));
    setWindowTitle(tr("NIMB-Chat - Transfers"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    connectControls();
    showWhatCanBeDone();
    resize(QSize(840, 520).boundedTo(roomOnScreen(*this)));
}

void frmTransfers::buildControls()
{
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(form_layout::margin, form_layout::margin, form_layout::margin, form_layout::margin);
    column->setSpacing(form_layout::groupDistance);
    column->addWidget(offeredPart(), 1);
    column->addWidget(receivedPart(), 1);
    auto *const buttons = new QDialogButtonBox(this);
    closeBtn = addButton(*buttons, "closeBtn", tr("Close"), QDialogButtonBox::RejectRole);
    closeBtn->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
}

QGroupBox *frmTransfers::offeredPart()
{
    auto *const part = new QGroupBox(tr("What you offer, as long as NIMB-Chat runs"), this);
    offerList = transferList(part, "offerList", tr("What you offer"), m_transfers.offers);
    new EmptyHint(*offerList, "offerHint",
                  tr("Nothing is offered. Drop files or folders on a conversation, or press the paper clip there."));
    lifeBox = named(new QComboBox(part), "lifeBox");
    nameCombo(*lifeBox, tr("Until when it is offered"));
    lifeBox->addItems({tr("For 24 hours"), tr("Until it has been fetched once"), tr("Until it is stopped")});
    stopOfferBtn = transferButton(part, "stopOfferBtn", tr("&Stop"));
    auto *const column = new QVBoxLayout(part);
    column->addWidget(offerList, 1);
    column->addLayout(buttonLine({lifeBox, stopOfferBtn}));
    return part;
}

QGroupBox *frmTransfers::receivedPart()
{
    auto *const part = new QGroupBox(tr("What others offer you"), this);
    receivedList = transferList(part, "receivedList", tr("What others offer you"), m_transfers.received);
    new EmptyHint(*receivedList, "receivedHint", tr("Nobody has offered you a file since NIMB-Chat was started."));
    saveReceivedBtn = transferButton(part, "saveReceivedBtn", tr("S&ave..."));
    saveAllReceivedBtn = transferButton(part, "saveAllReceivedBtn", tr("Save A&ll..."));
    saveAllReceivedBtn->setToolTip(tr("Saves all that is offered and has not been fetched, in one folder"));
    pauseReceivedBtn = transferButton(part, "pauseReceivedBtn", tr("&Pause"));
    resumeReceivedBtn = transferButton(part, "resumeReceivedBtn", tr("&Resume"));
    openReceivedBtn = transferButton(part, "openReceivedBtn", tr("&Open Folder"));
    discardReceivedBtn = transferButton(part, "discardReceivedBtn", tr("&Discard..."));
    discardReceivedBtn->setToolTip(tr("Gives the file up, and removes what has come of it"));
    auto *const column = new QVBoxLayout(part);
    column->addWidget(receivedList, 1);
    column->addLayout(buttonLine({saveReceivedBtn, saveAllReceivedBtn, pauseReceivedBtn, resumeReceivedBtn,
                                  openReceivedBtn, discardReceivedBtn}));
    return part;
}

void frmTransfers::connectControls()
{
    for (QTreeView *const list : {offerList, receivedList}) {
        connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this, &frmTransfers::showWhatCanBeDone);
        for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
            connect(list->model(), signal, this, &frmTransfers::showWhatCanBeDone);
        connect(list->model(), &QAbstractItemModel::dataChanged, this, &frmTransfers::showWhatCanBeDone);
        connect(list, &QWidget::customContextMenuRequested, this,
                [this, list](const QPoint &place) { showMenu(*list, place); });
    }
    connect(lifeBox, &QComboBox::activated, this, &frmTransfers::lifeBox_Click);
    connect(stopOfferBtn, &QPushButton::clicked, this, [this] { m_transfers.offers.stop(chosenOffer()); });
    connect(saveReceivedBtn, &QPushButton::clicked, this, &frmTransfers::saveReceivedBtn_Click);
    connect(saveAllReceivedBtn, &QPushButton::clicked, this, &frmTransfers::saveAllReceivedBtn_Click);
    connect(pauseReceivedBtn, &QPushButton::clicked, this, [this] {
        if (const ReceivedFile *const file = chosenFile())
            m_transfers.received.pause(file->number);
    });
    connect(resumeReceivedBtn, &QPushButton::clicked, this, [this] {
        if (const ReceivedFile *const file = chosenFile())
            m_transfers.received.resume(file->number);
    });
    connect(openReceivedBtn, &QPushButton::clicked, this, &frmTransfers::openReceivedBtn_Click);
    connect(discardReceivedBtn, &QPushButton::clicked, this, &frmTransfers::discardReceivedBtn_Click);
}

int frmTransfers::chosenOffer() const
{
    return offerList->currentIndex().row();
}

const ReceivedFile *frmTransfers::chosenFile() const
{
    const QModelIndex current = receivedList->currentIndex();
    return current.isValid() ? &m_transfers.received.at(current.row()) : nullptr;
}

void frmTransfers::showWhatCanBeDone()
{
    const bool isLive = chosenOffer() >= 0 && m_transfers.offers.isLive(chosenOffer());
    stopOfferBtn->setEnabled(isLive);
    lifeBox->setEnabled(isLive);
    if (isLive)
        lifeBox->setCurrentIndex(static_cast<int>(m_transfers.offers.lifeOf(chosenOffer())));
    using State = ReceivedFile::State;
    const ReceivedFile *const file = chosenFile();
    const bool isIdle = file && !file->isUnderWay();
    saveReceivedBtn->setEnabled(isIdle && file->state != State::paused);
    const std::size_t offered = m_transfers.received.offered().size();
    saveAllReceivedBtn->setEnabled(offered > 1);
    saveAllReceivedBtn->setText(offered > 1 ? tr("Save A&ll (%1)...").arg(offered) : tr("Save A&ll..."));
    pauseReceivedBtn->setEnabled(file && file->isUnderWay());
    resumeReceivedBtn->setEnabled(file && file->isHalted());
    discardReceivedBtn->setEnabled(file && file->isHalted());
    openReceivedBtn->setEnabled(isIdle && file->state == State::done);
}

void frmTransfers::lifeBox_Click(int life)
{
    if (chosenOffer() >= 0)
        m_transfers.offers.setLife(chosenOffer(), static_cast<OfferLife>(life));
}

void frmTransfers::saveReceivedBtn_Click()
{
    const ReceivedFile *const file = chosenFile();
    if (!file)
        return;
    askWhereToSave([this, number = file->number](const QString &path) { m_transfers.received.save(number, path); });
}

void frmTransfers::saveAllReceivedBtn_Click()
{
    askWhereToSave([this, numbers = m_transfers.received.offered()](const QString &path) {
        for (const int number : numbers)
            m_transfers.received.save(number, path);
    });
}

void frmTransfers::askWhereToSave(std::function<void(const QString &folder)> chosen)
{
    const QString &last = m_transfers.received.lastFolder();
    askForSaveFolder(*this, last.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) : last,
                     std::move(chosen));
}

void frmTransfers::openReceivedBtn_Click()
{
    const ReceivedFile *const file = chosenFile();
    if (!file || file->path.isEmpty())
        return;
    const QString folder = QFileInfo(file->path).absolutePath();
    const auto failed = [form = QPointer(this), folder] {
        if (form)
            warn(*form, tr("Nothing on this computer opens %1.").arg(folder));
    };
    if (!m_folders.open(QUrl::fromLocalFile(folder), failed))
        failed();
}

void frmTransfers::discardReceivedBtn_Click()
{
    const ReceivedFile *const file = chosenFile();
    if (!file)
        return;
    // The window may be gone when the question is answered.
    ReceivedFiles &received = m_transfers.received;
    const int number = file->number;
    const QString shown = isolated(file->link.name), size = fileSizeText(file->place);
    const std::optional<bool> isWanted = m_prompts.decideCarefully(
        tr("Discard \"%1\"? What has come of it, %2, is removed from the disk.").arg(shown, size), windowTitle());
    if (isWanted.value_or(false))
        received.discard(number);
}

/// What the buttons below that list can do now.
void frmTransfers::showMenu(const QTreeView &list, const QPoint &place)
{
    auto *const menu = named(new QMenu(this), "transferMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QPushButton *const button : list.parentWidget()->findChildren<QPushButton *>()) {
        if (!button->isEnabled())
            continue;
        const QAction *const action = named(menu->addAction(button->text()), qPrintable(button->objectName()));
        connect(action, &QAction::triggered, button, &QPushButton::click);
    }
    if (menu->isEmpty())
        delete menu;
    else
        menu->popup(list.viewport()->mapToGlobal(place));
}

} // namespace nimb
