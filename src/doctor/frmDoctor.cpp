#include "doctor/frmDoctor.h"

#include "base/isolated.h"
#include "base/remote_text.h"
#include "doctor/report.h"
#include "widgets/dialog_parts.h"
#include "widgets/empty_hint.h"
#include "widgets/form_text.h"
#include "widgets/muted_text.h"
#include "widgets/pictures.h"
#include "widgets/screen_room.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>

namespace nimb
{
namespace
{

using form_layout::groupDistance;
using form_layout::margin;
using form_layout::spacing;

constexpr int findingPictureSize = 16;
constexpr std::chrono::seconds refreshTime{1};
constexpr std::array checks
    = {Check::network,   Check::ownAddress, Check::port,        Check::receiveBuffer, Check::ownDatagram,
       Check::broadcast, Check::firewall,   Check::severalWays, Check::contact};

QIcon pictureOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::fine:
        return statePicture(Picture::green);
    case Verdict::doubtful:
        return statePicture(Picture::yellow);
    case Verdict::wrong:
        return statePicture(Picture::red);
    case Verdict::underWay:
        break;
    }
    return {};
}

QString wordOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::fine:
        return frmDoctor::tr("fine");
    case Verdict::doubtful:
        return frmDoctor::tr("doubtful");
    case Verdict::wrong:
        return frmDoctor::tr("wrong");
    case Verdict::underWay:
        break;
    }
    return frmDoctor::tr("under way");
}

QLabel *textLabel(QWidget *parent, const QByteArray &name)
{
    auto *const label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

frmDoctor::frmDoctor(const Doctor::Parts &parts, QWidget *parent) : QDialog(parent), m_doctor(parts, *this)
{
    setObjectName(QStringLiteral("frmDoctor"));
    setWindowTitle(tr("NIMB-Chat - Network Doctor"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    connectControls();
    fillContacts();
    constexpr int linesSeen = 40;
    resize(QSize(660, qMax(690, linesSeen * fontMetrics().height())).boundedTo(roomOnScreen(*this)));
    examineBtn_Click();
}

frmDoctor::~frmDoctor() = default;

void frmDoctor::buildControls()
{
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(groupDistance);
    column->addWidget(findingsPart(), 3);
    column->addWidget(contactPart());
    column->addWidget(datagramsPart(), 2);
    auto *const buttons = new QDialogButtonBox(this);
    examineBtn = addButton(*buttons, "examineBtn", tr("Check &Again"), QDialogButtonBox::ActionRole);
    copyReportBtn = addButton(*buttons, "copyReportBtn", tr("Copy &Report"), QDialogButtonBox::ActionRole);
    closeBtn = addButton(*buttons, "closeBtn", tr("Close"), QDialogButtonBox::RejectRole);
    closeBtn->setDefault(true);
    column->addWidget(buttons);
}

QWidget *frmDoctor::findingsPart()
{
    auto *const area = named(new QScrollArea(this), "findingsArea");
    auto *const page = new QWidget(area);
    auto *const grid = new QGridLayout(page);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setHorizontalSpacing(spacing);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    for (const Check check : checks)
        m_lines[check] = addLine(*grid, check);
    grid->setRowStretch(grid->rowCount(), 1);
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A page to read, as the log is.
    page->setBackgroundRole(QPalette::Base);
    page->setAutoFillBackground(true);
    return area;
}

frmDoctor::Line frmDoctor::addLine(QGridLayout &grid, Check check)
{
    QWidget *const page = grid.parentWidget();
    const QByteArray name(nameOf(check));
    Line line{.picture = new QLabel(page),
              .sentence = textLabel(page, name + "Sentence"),
              .advice = textLabel(page, name + "Advice")};
    line.picture->setObjectName(QLatin1String(name + "Picture"));
    line.picture->setFixedSize(findingPictureSize, findingPictureSize);
    keepMuted(*line.advice);
    const int row = grid.rowCount();
    grid.addWidget(line.picture, row, 0, Qt::AlignTop);
    grid.addWidget(line.sentence, row, 1);
    grid.addWidget(line.advice, row + 1, 1);
    grid.setRowMinimumHeight(row + 2, spacing);
    line.advice->hide();
    if (check == Check::contact)
        line.sentence->hide(); // until somebody is chosen
    return line;
}

QWidget *frmDoctor::contactPart()
{
    auto *const part = new QWidget(this);
    auto *const row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    auto *const caption = named(new QLabel(tr("&Does this contact answer?"), part), "contactLabel");
    contactCombo = named(new QComboBox(part), "contactCombo");
    nameCombo(*contactCombo, tr("Contact to be asked"));
    contactCombo->setPlaceholderText(tr("Nobody is in your list yet"));
    contactCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    caption->setBuddy(contactCombo);
    askContactBtn = named(new QPushButton(tr("As&k"), part), "askContactBtn");
    row->addWidget(caption);
    row->addWidget(contactCombo, 1);
    row->addWidget(askContactBtn);
    return part;
}

QWidget *frmDoctor::datagramsPart()
{
    auto *const part = named(new QGroupBox(tr("The latest datagrams"), this), "datagramsFrame");
    datagramList = named(new QTreeWidget(part), "datagramList");
    datagramList->setHeaderLabels({tr("Time"), tr("Way"), tr("Address"), tr("Bytes"), tr("Kind"), tr("Text")});
    datagramList->setAccessibleName(tr("The latest datagrams"));
    datagramList->setRootIsDecorated(false);
    datagramList->setUniformRowHeights(true);
    datagramList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    new EmptyHint(*datagramList, "noDatagrams", tr("Nothing has been sent or received yet."));
    showTextsBox = named(new QCheckBox(tr("Show what &people wrote"), part), "showTextsBox");
    dropsLabel = textLabel(part, "dropsLabel");
    dropsLabel->setWordWrap(false); // its lines are short, and it gets the room that it needs
    auto *const column = new QVBoxLayout(part);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(datagramList, 1);
    column->addWidget(showTextsBox);
    column->addWidget(dropsLabel);
    return part;
}

void frmDoctor::connectControls()
{
    connect(examineBtn, &QPushButton::clicked, this, &frmDoctor::examineBtn_Click);
    connect(copyReportBtn, &QPushButton::clicked, this, &frmDoctor::copyReportBtn_Click);
    connect(closeBtn, &QPushButton::clicked, this, &frmDoctor::close);
    connect(askContactBtn, &QPushButton::clicked, this, &frmDoctor::askContactBtn_Click);
    connect(showTextsBox, &QCheckBox::toggled, this, &frmDoctor::showDatagrams);
    m_refresh = new QTimer(this);
    connect(m_refresh, &QTimer::timeout, this, &frmDoctor::showDatagrams);
    connect(m_refresh, &QTimer::timeout, this, &frmDoctor::fillContacts);
    m_refresh->start(refreshTime);
    const auto note = [this] { m_contactsHaveChanged = true; };
    connect(&m_doctor.contacts(), &ContactList::rowsInserted, this, note);
    connect(&m_doctor.contacts(), &ContactList::rowsRemoved, this, note);
    connect(&m_doctor.contacts(), &ContactList::dataChanged, this, note);
}

void frmDoctor::fillContacts()
{
    if (!m_contactsHaveChanged || contactCombo->view()->isVisible())
        return;
    m_contactsHaveChanged = false;
    const QVariant chosen = contactCombo->currentData();
    contactCombo->clear();
    for (int row = 0; row < m_doctor.contacts().rowCount(); ++row) {
        const Contact &contact = m_doctor.contacts().at(row);
        const QString ip = contact.ip.text();
        contactCombo->addItem(QStringLiteral("%1 (%2)").arg(isolated(paintedName(contact.nickname)), remoteName(ip)),
                              ip);
    }
    contactCombo->setCurrentIndex(std::max(contactCombo->findData(chosen), std::min(contactCombo->count() - 1, 0)));
    contactCombo->setEnabled(contactCombo->count() > 0);
    askContactBtn->setEnabled(contactCombo->count() > 0);
}

void frmDoctor::showFinding(const Finding &finding)
{
    const Line &line = m_lines.at(finding.check);
    const QIcon picture = pictureOf(finding.verdict);
    line.picture->setPixmap(picture.pixmap(findingPictureSize));
    line.picture->setAccessibleName(wordOf(finding.verdict));
    line.sentence->setText(finding.sentence);
    line.sentence->setAccessibleDescription(wordOf(finding.verdict));
    line.sentence->show();
    line.advice->setText(finding.advice);
    line.advice->setVisible(!finding.advice.isEmpty());
    showDatagrams();
}

void frmDoctor::examined()
{
    examineBtn->setEnabled(true);
}

void frmDoctor::showDatagrams()
{
    showLines(m_doctor.datagrams(showTextsBox->isChecked()));
    const QString drops = m_doctor.drops();
    dropsLabel->setText(drops.isEmpty() ? tr("Nothing has been dropped.") : tr("Dropped:") + u'\n' + drops);
}

/// Left alone while nothing changes, for somebody may walk through them.
void frmDoctor::showLines(const std::vector<TraceLine> &lines)
{
    if (lines == m_shownLines)
        return;
    m_shownLines = lines;
    QScrollBar &bar = *datagramList->verticalScrollBar();
    const bool follows = bar.value() == bar.maximum();
    datagramList->clear();
    for (const TraceLine &line : lines)
        datagramList->addTopLevelItem(
            new QTreeWidgetItem({line.time, line.direction, line.address, line.size, line.kind, line.text}));
    if (follows)
        datagramList->scrollToBottom();
}

void frmDoctor::examineBtn_Click()
{
    examineBtn->setEnabled(false);
    m_doctor.examine();
}

void frmDoctor::askContactBtn_Click()
{
    m_doctor.ask(contactCombo->currentData().toString());
}

void frmDoctor::copyReportBtn_Click()
{
    QGuiApplication::clipboard()->setText(m_doctor.report(showTextsBox->isChecked()));
}

} // namespace nimb
