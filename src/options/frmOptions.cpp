#include "options/frmOptions.h"

#include "base/program_languages.h"
#include "base/remote_text.h"
#include "log/log_font.h"
#include "options/font_dialog.h"
#include "widgets/avatar_image.h"
#include "widgets/avatar_picture.h"
#include "widgets/dialog_parts.h"
#include "widgets/elided_label.h"
#include "widgets/file_dialogs.h"
#include "widgets/fitting_area.h"
#include "widgets/form_text.h"
#include "widgets/pictures.h"
#include "widgets/screen_room.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <utility>

namespace nimb
{
namespace
{

using form_layout::groupDistance;
using form_layout::margin;
using form_layout::spacing;

/// Positions in PolledPicturebox.
enum PolledPosition { cameraPosition, folderPosition };

QLabel *note(const QString &text, QWidget *parent)
{
    auto *const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QVBoxLayout *columnOf(QGroupBox *group)
{
    auto *const column = new QVBoxLayout(group);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    return column;
}

/// The first local file that the data names; empty when there is none.
QString fileOf(const QMimeData &given)
{
    const QList<QUrl> urls = given.urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}

} // namespace

frmOptions::frmOptions(OptionValues values, Prompts &prompts, QWidget *parent)
    : QDialog(parent), m_values(std::move(values)), m_prompts(prompts)
{
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(tr("NIMB-Chat - Options"));
    setWindowIcon(programIcon());
    setAcceptDrops(true);
    buildControls();
    connectControls();
    Form_Load();
}

void frmOptions::buildControls()
{
    auto *const left = new QVBoxLayout;
    left->setSpacing(groupDistance);
    left->addWidget(makeSounds());
    left->addWidget(makePrivateWindows());
    left->addWidget(makeProgram());
    left->addWidget(makeFont());
    left->addStretch(1);
    auto *const right = new QVBoxLayout;
    right->setSpacing(groupDistance);
    right->addWidget(makeYou());
    right->addWidget(makeNotices());
    right->addWidget(makeHistory());
    right->addWidget(makeAvatar());
    right->addStretch(1);
    FittingArea *const area = makeArea(left, right);
    auto *const buttons = new QDialogButtonBox(this);
    CmdOK = addButton(*buttons, "CmdOK", tr("OK"), QDialogButtonBox::AcceptRole);
    CmdOK->setDefault(true);
    Command1 = addButton(*buttons, "Command1", tr("Cancel"), QDialogButtonBox::RejectRole);

    auto *const whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(groupDistance);
    whole->addWidget(area);
    whole->addWidget(buttons);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    area->setHeightBeside(2 * margin + groupDistance + buttons->sizeHint().height());
}

/// Both columns side by side, or below each other where the font is too large for the screen.
FittingArea *frmOptions::makeArea(QVBoxLayout *left, QVBoxLayout *right)
{
    auto *const area = named(new FittingArea(this), "optionsArea");
    auto *const page = new QWidget(area);
    auto *const columns = new QBoxLayout(QBoxLayout::LeftToRight, page);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(groupDistance);
    columns->addLayout(left);
    columns->addLayout(right);
    if (columns->sizeHint().width() > roomOnScreen(*this).width())
        columns->setDirection(QBoxLayout::TopToBottom);
    area->setWidget(page);
    return area;
}

QGroupBox *frmOptions::makeYou()
{
    auto *const group = new QGroupBox(tr("You"), this);
    nicknameText = nameBox(group, "nicknameText");
    auto *const nickname = new QLabel(tr("Nickname:"), group);
    nickname->setBuddy(nicknameText);
    statesCombo = named(new QComboBox(group), "statesCombo");
    statesCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    statesCombo->setMinimumContentsLength(12);
    nameCombo(*statesCombo, tr("Your own states"));
    auto *const states = new QLabel(tr("Own states:"), group);
    states->setBuddy(statesCombo);
    removeStateBtn = named(new QPushButton(tr("Remove"), group), "removeStateBtn");
    auto *const grid = new QGridLayout;
    grid->setSpacing(spacing);
    grid->addWidget(nickname, 0, 0);
    grid->addWidget(nicknameText, 0, 1, 1, 2);
    grid->addWidget(states, 1, 0);
    grid->addWidget(statesCombo, 1, 1);
    grid->addWidget(removeStateBtn, 1, 2);
    grid->setColumnStretch(1, 1);
    columnOf(group)->addLayout(grid);
    return group;
}

QGroupBox *frmOptions::makeSounds()
{
    auto *const group = new QGroupBox(tr("Sounds and notices"), this);
    addOptions(OptionGroup::sounds, *columnOf(group));
    return group;
}

QGroupBox *frmOptions::makeNotices()
{
    auto *const group = new QGroupBox(tr("What arrives while you look elsewhere"), this);
    addOptions(OptionGroup::notices, *columnOf(group));
    return group;
}

QGroupBox *frmOptions::makeHistory()
{
    auto *const group = new QGroupBox(tr("History"), this);
    keepHistoryCombo = named(new QComboBox(group), "keepHistoryCombo");
    nameCombo(*keepHistoryCombo, tr("Keep conversations"));
    keepHistoryCombo->addItem(tr("no"), static_cast<int>(KeepHistory::no));
    keepHistoryCombo->addItem(tr("for a year"), static_cast<int>(KeepHistory::year));
    keepHistoryCombo->addItem(tr("for ever"), static_cast<int>(KeepHistory::ever));
    auto *const caption = new QLabel(tr("Keep conversations:"), group);
    caption->setBuddy(keepHistoryCombo);
    auto *const row = new QHBoxLayout;
    row->setSpacing(spacing);
    row->addWidget(caption);
    row->addWidget(keepHistoryCombo, 1);
    columnOf(group)->addLayout(row);
    return group;
}

QGroupBox *frmOptions::makePrivateWindows()
{
    auto *const group = new QGroupBox(tr("Private windows"), this);
    addOptions(OptionGroup::privateWindows, *columnOf(group));
    return group;
}

QGroupBox *frmOptions::makeProgram()
{
    auto *const group = new QGroupBox(tr("Main window and network"), this);
    QVBoxLayout *const column = columnOf(group);
    addOptions(OptionGroup::mainWindow, *column);
    autostartBox = named(new QCheckBox(tr("Start with the desktop"), group), "autostartBox");
    autostartBox->setToolTip(tr("At every login, minimised, under your nickname"));
    column->addWidget(autostartBox);
    UDPPorttxt = named(new QLineEdit(group), "UDPPorttxt");
    UDPPorttxt->setFixedWidth(80);
    auto *const portCaption = new QLabel(tr("UDP &port:"), group);
    portCaption->setBuddy(UDPPorttxt);
    ownAddressCombo = named(new QComboBox(group), "ownAddressCombo");
    nameCombo(*ownAddressCombo, tr("Your address"));
    ownAddressCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    ownAddressCombo->setMinimumContentsLength(12);
    auto *const addressCaption = new QLabel(tr("Yo&ur address:"), group);
    addressCaption->setBuddy(ownAddressCombo);
    auto *const network = new QGridLayout;
    network->setSpacing(spacing);
    network->addWidget(portCaption, 0, 0);
    network->addWidget(UDPPorttxt, 0, 1, Qt::AlignLeft);
    network->addWidget(addressCaption, 1, 0);
    network->addWidget(ownAddressCombo, 1, 1);
    languageCombo = named(new QComboBox(group), "languageCombo");
    nameCombo(*languageCombo, tr("Language"));
    languageCombo->addItem(tr("the desktop's"), QString());
    for (const ProgramLanguage &language : programLanguages)
        languageCombo->addItem(QString::fromUtf16(language.name), QLatin1String(language.code));
    auto *const languageCaption = new QLabel(tr("Language:"), group);
    languageCaption->setBuddy(languageCombo);
    network->addWidget(languageCaption, 2, 0);
    network->addWidget(languageCombo, 2, 1);
    network->setColumnStretch(1, 1);
    column->addLayout(network);
    column->addWidget(note(tr("A change takes effect at the next start."), group));
    return group;
}

void frmOptions::addOptions(OptionGroup group, QVBoxLayout &column)
{
    for (const bool choices : {true, false}) {
        for (const OptionRow &row : optionRows) {
            if (row.group == group && (row.opposite.name != nullptr) == choices)
                addOption(row, column);
        }
    }
}

void frmOptions::addOption(const OptionRow &row, QVBoxLayout &column)
{
    QWidget *const parent = column.parentWidget();
    QAbstractButton *box = nullptr;
    if (row.opposite.name) {
        auto *const opposite = named(new QRadioButton(tr(row.opposite.caption), parent), row.opposite.name);
        box = named(new QRadioButton(tr(row.box.caption), parent), row.box.name);
        auto *const choice = new QButtonGroup(parent);
        choice->addButton(opposite);
        choice->addButton(box);
        opposite->setChecked(true);
        column.addWidget(opposite);
    } else {
        box = named(new QCheckBox(tr(row.box.caption), parent), row.box.name);
    }
    if (row.toolTip)
        box->setToolTip(tr(row.toolTip));
    column.addWidget(box);
    m_options.push_back({&row, box});
}

QGroupBox *frmOptions::makeFont()
{
    auto *const group = new QGroupBox(tr("Font of the logs"), this);
    m_fontSample = named(new ElidedLabel(group), "fontSample");
    // The largest font must not make the dialog jump.
    m_fontSample->setFixedHeight(44);
    m_fontSample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    font_btn = named(new QPushButton(tr("&Font..."), group), "font_btn");
    auto *const row = new QHBoxLayout;
    row->setSpacing(spacing);
    row->addWidget(m_fontSample, 1);
    row->addWidget(font_btn);
    QVBoxLayout *const column = columnOf(group);
    column->addLayout(row);
    column->addWidget(note(tr("New windows use it; open ones keep theirs."), group));
    return group;
}

QGroupBox *frmOptions::makeAvatar()
{
    auto *const group = new QGroupBox(tr("Your avatar"), this);
    Option1 = named(new QRadioButton(tr("No &avatar"), group), "Option1");
    Option2 = named(new QRadioButton(tr("A p&icture:"), group), "Option2");
    Option3 = named(new QRadioButton(tr("Pictures that chan&ge:"), group), "Option3");
    Picture2 = named(new AvatarPicture(group, 1), "Picture2");
    Picture2->setAccessibleName(tr("The picture"));
    LoadAvatarbtn = named(new QPushButton(tr("L&oad..."), group), "LoadAvatarbtn");
    PolledPicturebox = named(new QComboBox(group), "PolledPicturebox");
    nameCombo(*PolledPicturebox, tr("Where the pictures come from"));
    PolledPicturebox->insertItem(cameraPosition, tr("of the camera"));
    PolledPicturebox->insertItem(folderPosition, tr("of a folder"));
    Folderbtn = named(new QPushButton(tr("Choos&e..."), group), "Folderbtn");

    auto *const grid = new QGridLayout;
    grid->setSpacing(spacing);
    grid->addWidget(Option1, 0, 0, 1, 3);
    grid->addWidget(Option2, 1, 0);
    grid->addWidget(Picture2, 1, 1);
    grid->addWidget(LoadAvatarbtn, 1, 2);
    grid->addWidget(Option3, 2, 0);
    grid->addWidget(PolledPicturebox, 2, 1);
    grid->addWidget(Folderbtn, 2, 2);
    grid->setColumnStretch(1, 1);
    QWidget *previous = Option1;
    for (QWidget *const next :
         std::initializer_list<QWidget *>{Option2, LoadAvatarbtn, Option3, PolledPicturebox, Folderbtn}) {
        setTabOrder(previous, next);
        previous = next;
    }
    QVBoxLayout *const column = columnOf(group);
    column->addLayout(grid);
    column->addWidget(note(tr("A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; "
                              "the picture is kept."),
                           group));
    return group;
}

void frmOptions::connectControls()
{
    connect(CmdOK, &QPushButton::clicked, this, &frmOptions::CmdOK_Click);
    connect(Command1, &QPushButton::clicked, this, &frmOptions::reject);
    connect(removeStateBtn, &QPushButton::clicked, this, &frmOptions::removeStateBtn_Click);
    connect(font_btn, &QPushButton::clicked, this, &frmOptions::font_btn_Click);
    connect(LoadAvatarbtn, &QPushButton::clicked, this, &frmOptions::LoadAvatarbtn_Click);
    connect(Folderbtn, &QPushButton::clicked, this, &frmOptions::Folderbtn_Click);
    connect(PolledPicturebox, &QComboBox::activated, this, &frmOptions::PolledPicturebox_Click);
}

void frmOptions::Form_Load()
{
    const OptionControls now = m_values.Form_Load();
    for (const ShownOption &shown : m_options)
        shown.box->setChecked(shown.row->isTicked(now.options));
    nicknameText->setText(now.nickname);
    for (const QString &state : m_values.states())
        statesCombo->addItem(paintedName(state), statesCombo->count());
    showStates();
    if (now.keepHistory == KeepHistory::notAsked)
        keepHistoryCombo->insertItem(0, tr("ask me"), static_cast<int>(KeepHistory::notAsked));
    keepHistoryCombo->setCurrentIndex(keepHistoryCombo->findData(static_cast<int>(now.keepHistory)));
    UDPPorttxt->setText(now.UDPPorttxt);
    for (const OptionValues::Card &card : m_values.cards())
        ownAddressCombo->addItem(card.caption, card.name);
    ownAddressCombo->setCurrentIndex(ownAddressCombo->findData(now.ownCard));
    ownAddressCombo->setEnabled(m_values.mayChooseCard());
    if (!m_values.mayChooseCard())
        ownAddressCombo->setToolTip(tr("The environment variable NIMBCHAT_ADDRESS says it"));
    languageCombo->setCurrentIndex(languageCombo->findData(now.language));
    autostartBox->setChecked(now.startsWithDesktop);
    m_font = now.font;
    showFont();
    avatarButton(now.avatar)->setChecked(true);
    Picture2->setPicture(m_values.avatar());
    if (const auto *const folder = std::get_if<PictureFolder>(&now.polled)) {
        m_folder = folder->path;
        PolledPicturebox->setCurrentIndex(folderPosition);
    }
    showFolder();
}

QRadioButton *frmOptions::avatarButton(AvatarChoice choice) const
{
    switch (choice) {
    case AvatarChoice::none:
        return Option1;
    case AvatarChoice::still:
        return Option2;
    case AvatarChoice::polled:
        return Option3;
    }
    return Option1;
}

OptionControls frmOptions::controls() const
{
    OptionControls now;
    for (const ShownOption &shown : m_options)
        shown.row->setTicked(now.options, shown.box->isChecked());
    now.nickname = nicknameText->text();
    now.keepHistory = static_cast<KeepHistory>(keepHistoryCombo->currentData().toInt());
    now.removedStates = m_removedStates;
    std::ranges::sort(now.removedStates);
    now.UDPPorttxt = UDPPorttxt->text();
    now.ownCard = ownAddressCombo->currentData().toString();
    now.language = languageCombo->currentData().toString();
    now.startsWithDesktop = autostartBox->isChecked();
    now.font = m_font;
    now.loaded = m_loadedPicture;
    for (const AvatarChoice choice : {AvatarChoice::none, AvatarChoice::still, AvatarChoice::polled}) {
        if (avatarButton(choice)->isChecked())
            now.avatar = choice;
    }
    if (PolledPicturebox->currentIndex() == folderPosition)
        now.polled = PictureFolder{m_folder};
    return now;
}

void frmOptions::CmdOK_Click()
{
    if (const std::optional<QString> problem = m_values.CmdOK_Click(controls())) {
        m_prompts.tell(*problem, windowTitle());
        return;
    }
    accept();
}

void frmOptions::removeStateBtn_Click()
{
    m_removedStates.push_back(statesCombo->currentData().toInt());
    statesCombo->removeItem(statesCombo->currentIndex());
    showStates();
}

void frmOptions::showStates()
{
    const bool hasSome = statesCombo->count() > 0;
    statesCombo->setEnabled(hasSome);
    statesCombo->setPlaceholderText(hasSome ? QString() : tr("none"));
    removeStateBtn->setEnabled(hasSome);
}

void frmOptions::font_btn_Click()
{
    const QFont seen = fontOf(m_font);
    const bool isDesktops = m_font == LogFont();
    const LogFont shown
        = isDesktops ? LogFont{seen.family(), static_cast<std::int16_t>(qRound(seen.pointSizeF())), {}} : m_font;
    auto *const dialog = new LogFontDialog(shown, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, shown, isDesktops] {
        if (isDesktops && dialog->chosenFont() == shown)
            return; // it stays the desktop's
        m_font = dialog->chosenFont();
        showFont();
    });
    dialog->open();
}

void frmOptions::showFont()
{
    const QFont shown = fontOf(m_font);
    QString text = tr("%1, %2 points").arg(m_font.face).arg(m_font.size);
    if (m_font == LogFont()) // what is stored before anybody has chosen
        text = tr("the desktop's font: %1, %2 points").arg(shown.family()).arg(shown.pointSizeF());
    m_fontSample->setFont(shown);
    m_fontSample->setText(text);
    m_fontSample->setToolTip(text);
}

void frmOptions::LoadAvatarbtn_Click()
{
    askForFile(*this, tr("Images (*.jpg,*.gif,*.bmp)") + QLatin1String(" (*.jpg *.gif *.bmp)"),
               [this](const QString &path) { takePicture(readPictureFile(path)); });
}

void frmOptions::takePicture(const ReadPicture &read)
{
    if (const auto *const problem = std::get_if<QString>(&read)) {
        m_prompts.tell(*problem, windowTitle());
        return;
    }
    m_loadedPicture = avatarBody(std::get<QImage>(read));
    Picture2->setPicture(m_loadedPicture);
    Option2->setChecked(true);
}

bool frmOptions::takePicture(const QMimeData &given)
{
    // Files first: what a file manager copies comes with a picture of its icon as well.
    if (const QString file = fileOf(given); !file.isEmpty())
        takePicture(readPictureFile(file));
    else if (given.hasImage())
        takePicture(checkPicture(qvariant_cast<QImage>(given.imageData())));
    else
        return false;
    return true;
}

void frmOptions::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasImage() || !fileOf(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void frmOptions::dropEvent(QDropEvent *event)
{
    if (takePicture(*event->mimeData()))
        event->acceptProposedAction();
}

/// The port's box takes texts that are pasted into it for itself.
void frmOptions::keyPressEvent(QKeyEvent *event)
{
    const QMimeData *const pasted
        = event->matches(QKeySequence::Paste) ? QGuiApplication::clipboard()->mimeData() : nullptr;
    if (!pasted || !takePicture(*pasted))
        QDialog::keyPressEvent(event);
}

void frmOptions::PolledPicturebox_Click()
{
    Option3->setChecked(true);
    showFolder();
    if (PolledPicturebox->currentIndex() == folderPosition && m_folder.isEmpty())
        Folderbtn_Click();
}

void frmOptions::Folderbtn_Click()
{
    askForFolder(*this, m_folder, [this](const QString &path) {
        m_folder = path;
        Option3->setChecked(true);
        showFolder();
    });
}

void frmOptions::showFolder()
{
    Folderbtn->setEnabled(PolledPicturebox->currentIndex() == folderPosition);
    PolledPicturebox->setToolTip(Folderbtn->isEnabled() ? QDir::toNativeSeparators(m_folder) : QString());
}

} // namespace nimb
