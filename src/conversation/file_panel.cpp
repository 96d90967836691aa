#include "conversation/file_panel.h"

#include "base/isolated.h"
#include "base/limits.h"
#include "base/link_opener.h"
#include "conversation/small_picture.h"
#include "files/received_files.h"
#include "widgets/band.h"
#include "widgets/elided_label.h"
#include "widgets/file_dialogs.h"
#include "widgets/form_layout.h"
#include "widgets/link_colours.h"
#include "widgets/muted_colour.h"
#include "widgets/pictures.h"
#include "widgets/scratch_folder.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <iterator>

namespace nimb
{
namespace
{

using State = ReceivedFile::State;

constexpr QSizeF largestShownPicture(240, 90);
/// Pixels; rows that need more are scrolled. The first is what two rows of two lines and a picture need at the usual
/// size of letters, the second what they still get where a small screen has large ones.
constexpr int mostHeightOfRows = 242, leastHeightOfRows = 110;

QPushButton *rowButton(QWidget *parent, const char *name, const QString &caption)
{
    auto *const button = named(new QPushButton(caption, parent), name);
    button->setAutoDefault(false);
    return button;
}

/// That of the last time, or where the desktop keeps what comes from elsewhere.
QString folderToSaveIn(const ReceivedFiles &files)
{
    return files.lastFolder().isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)
                                        : files.lastFolder();
}

} // namespace

/// As high as its rows, as far as there is room.
class RowsOfFiles : public QScrollArea
{
public:
    explicit RowsOfFiles(QWidget *parent) : QScrollArea(parent)
    {
        setObjectName(QStringLiteral("rowsOfFiles"));
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus); // the rows have it, and one that gets it is scrolled to
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        setWidgetResizable(true);
        auto *const rows = new QWidget(this);
        m_column = new QVBoxLayout(rows);
        m_column->setContentsMargins(0, 0, 0, 0);
        m_column->setSpacing(form_layout::spacing);
        setWidget(rows);
    }

    QVBoxLayout &column() { return *m_column; }
    /// Once everything has its new size.
    void scrollTo(QWidget &row)
    {
        QTimer::singleShot(0, &row, [this, &row] { ensureWidgetVisible(&row); });
    }

    QSize sizeHint() const override
    {
        const QSize rows = m_column->sizeHint();
        const bool isScrolled = rows.height() > mostHeightOfRows;
        return {rows.width() + (isScrolled ? verticalScrollBar()->sizeHint().width() : 0),
                isScrolled ? mostHeightOfRows : rows.height()};
    }
    QSize minimumSizeHint() const override
    {
        const QSize most = sizeHint();
        const int narrower = m_column->sizeHint().width() - m_column->minimumSize().width();
        return {most.width() - narrower, std::min(most.height(), leastHeightOfRows)};
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }

private:
    QVBoxLayout *m_column;
};

// --- the panel

FilePanel::FilePanel(ReceivedFiles &files, LinkOpener &folders, ScratchFolder &scratch, SmallPictures &pictures,
                     QWidget *parent)
    : QWidget(parent), m_files(files), m_folders(folders), m_scratch(scratch), m_pictures(pictures)
{
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(form_layout::spacing);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    hide();
    connect(&files, &ReceivedFiles::changed, this, [this](int number) {
        for (FileRow *const row : m_rows) {
            if (row->number() == number)
                row->refresh();
        }
        showFurther();
    });
    connect(&files, &ReceivedFiles::discarded, this, [this](int number) {
        remove(number);
        showFurther();
    });
}

void FilePanel::add(int number)
{
    makeRoom();
    FileRow *const row = addRow(number, Place::bottom);
    showFurther();
    m_area->scrollTo(*row);
}

FileRow *FilePanel::addRow(int number, Place place)
{
    if (!m_area) {
        m_area = new RowsOfFiles(this);
        layout()->addWidget(m_area);
    }
    auto *const row = new FileRow(m_files, number, m_folders, m_scratch, m_pictures, m_area->widget());
    connect(row, &FileRow::closed, this, &FilePanel::remove);
    connect(row, &FileRow::grown, this, [this, row] { m_area->scrollTo(*row); });
    m_area->column().insertWidget(place == Place::top ? 0 : -1, row);
    m_rows.insert(place == Place::top ? m_rows.begin() : m_rows.end(), row);
    m_area->show();
    return row;
}

/// What is under way stays longer than what nobody has wanted.
void FilePanel::makeRoom()
{
    if (std::ssize(m_rows) < limits::filesInPanel)
        return;
    const auto isIdle = [this](const FileRow *row) {
        const ReceivedFile *const file = m_files.find(row->number());
        return !file || !file->isUnderWay();
    };
    const auto idle = std::ranges::find_if(m_rows, isIdle);
    const int further = idle == m_rows.end() ? m_rows.front()->number() : (*idle)->number();
    m_further.push_back(further);
    remove(further);
}

std::vector<int> FilePanel::offered() const
{
    std::vector<int> numbers = m_further;
    std::ranges::transform(m_rows, std::back_inserter(numbers), &FileRow::number);
    std::erase_if(numbers, [this](int number) {
        const ReceivedFile *const file = m_files.find(number);
        return !file || file->state != State::offered;
    });
    return numbers;
}

void FilePanel::showFurther()
{
    std::erase_if(m_further, [this](int number) { return !m_files.find(number); });
    const bool hasSeveral = offered().size() > 1;
    if (!m_furtherLine && (hasSeveral || !m_further.empty()))
        makeFurtherLine();
    setVisible(!m_rows.empty() || !m_further.empty());
    if (!m_furtherLine)
        return;
    const QString sentence = tr("Further files: %1.").arg(m_further.size());
    m_furtherCount->setText(sentence + u' '
                            + bandAnswers({bandAnswer(QStringLiteral("here"), tr("Show here")),
                                           bandAnswer(QStringLiteral("all"), tr("Show all")),
                                           bandAnswer(QStringLiteral("hide"), tr("Hide"))}));
    m_furtherCount->setAccessibleName(sentence);
    m_furtherCount->setVisible(!m_further.empty());
    m_saveAll->setVisible(hasSeveral);
    m_furtherLine->setVisible(hasSeveral || !m_further.empty());
}

void FilePanel::makeFurtherLine()
{
    m_furtherLine = named(new QWidget(this), "furtherFiles");
    m_furtherCount = named(new QLabel(m_furtherLine), "furtherCount");
    m_furtherCount->setTextFormat(Qt::RichText);
    keepLinkColours(*m_furtherCount);
    m_furtherCount->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    m_saveAll = rowButton(m_furtherLine, "saveAllBtn", tr("Save all..."));
    m_saveAll->setToolTip(tr("Saves all that is offered here, in one folder"));
    auto *const line = new QHBoxLayout(m_furtherLine);
    line->setContentsMargins(form_layout::margin, 0, form_layout::spacing, 0);
    line->addWidget(m_furtherCount);
    line->addStretch(1);
    line->addWidget(m_saveAll);
    static_cast<QVBoxLayout *>(layout())->insertWidget(0, m_furtherLine);
    connect(m_furtherCount, &QLabel::linkActivated, this, [this](const QString &what) {
        if (what == QLatin1String("all"))
            return Q_EMIT allWanted();
        if (what == QLatin1String("here"))
            return showFurtherHere();
        m_further.clear();
        showFurther();
    });
    connect(m_saveAll, &QPushButton::clicked, this, &FilePanel::saveAll);
}

/// The newest that are not too many, above the rows that are there.
void FilePanel::showFurtherHere()
{
    std::ranges::sort(m_further);
    const auto left = std::max<std::ptrdiff_t>(std::ssize(m_further) - limits::furtherFilesInPanel, 0);
    const std::vector<int> shown(m_further.begin() + left, m_further.end());
    m_further.resize(static_cast<std::size_t>(left));
    for (auto number = shown.rbegin(); number != shown.rend(); ++number)
        addRow(*number, Place::top);
    showFurther();
}

void FilePanel::saveAll()
{
    askForSaveFolder(*window(), folderToSaveIn(m_files), [panel = QPointer(this)](const QString &path) {
        if (!panel)
            return;
        for (const int number : panel->offered())
            panel->m_files.save(number, path);
    });
}

void FilePanel::remove(int number)
{
    const auto which = std::ranges::find(m_rows, number, &FileRow::number);
    if (which == m_rows.end())
        return;
    (*which)->hide();
    (*which)->deleteLater();
    m_rows.erase(which);
    m_area->setVisible(!m_rows.empty());
    showFurther();
}

// --- a row

FileRow::FileRow(ReceivedFiles &files, int number, LinkOpener &folders, ScratchFolder &scratch, SmallPictures &pictures,
                 QWidget *parent)
    : QWidget(parent), m_files(files), m_number(number), m_folders(folders), m_scratch(scratch), m_pictures(pictures)
{
    setObjectName(QStringLiteral("fileRow"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(form_layout::margin, form_layout::spacing, form_layout::spacing, form_layout::spacing);
    column->setSpacing(2);
    column->addWidget(makeFirstLine());
    m_stateLine = makeSecondLine();
    column->addWidget(m_stateLine);
    m_picture = named(new QLabel(this), "shownPicture");
    m_picture->hide();
    column->addWidget(m_picture);
    connectControls();
    refresh();
}

FileRow::~FileRow() = default;

QWidget *FileRow::makeFirstLine()
{
    auto *const line = new QWidget(this);
    auto *const symbol = new QLabel(line);
    symbol->setPixmap(namedPicture(QStringLiteral("file")).pixmap(16, 16));
    m_name = named(new ElidedLabel(line), "fileName");
    m_look = rowButton(line, "lookBtn", tr("Show"));
    m_look->setToolTip(tr("Fetches the picture and shows it here, without saving it"));
    m_save = rowButton(line, "saveBtn", tr("Save..."));
    m_pause = rowButton(line, "pauseBtn", tr("Pause"));
    m_resume = rowButton(line, "resumeBtn", tr("Resume"));
    m_open = rowButton(line, "openFolderBtn", tr("Open folder"));
    m_close = named(new QToolButton(line), "closeRowBtn");
    m_close->setIcon(namedPicture(QStringLiteral("close")));
    m_close->setAutoRaise(true);
    m_close->setFocusPolicy(Qt::TabFocus);
    m_close->setToolTip(tr("Hide this row; Tools > Transfers... still has it"));
    m_close->setAccessibleName(tr("Hide"));
    auto *const row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(form_layout::spacing);
    row->addWidget(symbol);
    row->addWidget(m_name, 1);
    for (QWidget *const button : {m_look, m_save, m_pause, m_resume, m_open})
        row->addWidget(button);
    row->addWidget(m_close);
    return line;
}

QWidget *FileRow::makeSecondLine()
{
    auto *const line = new QWidget(this);
    m_bar = named(new QProgressBar(line), "fileProgress");
    m_bar->setRange(0, 100);
    m_bar->setTextVisible(false);
    m_bar->setFixedWidth(120);
    m_bar->setMaximumHeight(fontMetrics().height());
    m_bar->setAccessibleName(tr("Progress"));
    m_state = named(new ElidedLabel(line), "fileState");
    auto *const row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(form_layout::spacing);
    row->addWidget(m_bar);
    row->addWidget(m_state, 1);
    return line;
}

void FileRow::connectControls()
{
    connect(m_look, &QPushButton::clicked, this, [this] {
        if (const QString folder = m_scratch.path(); !folder.isEmpty())
            m_files.look(m_number, folder);
    });
    connect(m_save, &QPushButton::clicked, this, &FileRow::save);
    connect(m_pause, &QPushButton::clicked, this, [this] { m_files.pause(m_number); });
    connect(m_resume, &QPushButton::clicked, this, [this] { m_files.resume(m_number); });
    connect(m_open, &QPushButton::clicked, this, &FileRow::openFolder);
    connect(m_close, &QToolButton::clicked, this, [this] { Q_EMIT closed(m_number); });
}

void FileRow::refresh()
{
    const ReceivedFile *const file = m_files.find(m_number);
    if (!file)
        return;
    const QString name = tr("%1 (%2)").arg(isolated(file->link.name), file->link.sizeText);
    const bool isOffered = file->state == State::offered;
    m_name->setText(isOffered ? tr("%1 from %2").arg(name, isolated(file->sender)) : name);
    m_name->setToolTip(file->link.name);
    const bool grows = m_stateLine->isHidden() && !isOffered;
    m_stateLine->setVisible(!isOffered);
    m_state->setText(ReceivedFiles::progressOf(*file));
    m_bar->setVisible(file->state == State::running || file->state == State::paused || file->state == State::summing);
    m_bar->setValue(file->percent());
    m_look->setVisible(isOffered && file->isPicture() && file->picture.isEmpty());
    m_save->setVisible(isOffered || (file->isLookedAt && !file->isUnderWay()) || file->state == State::failed);
    m_pause->setVisible(file->isUnderWay());
    // What may not be shown is not shown the second time either.
    m_resume->setVisible(file->state == State::paused || (file->state == State::failed && !file->isLookedAt));
    m_open->setVisible(file->state == State::done);
    m_save->setAccessibleName(tr("Save %1").arg(name));
    readPicture(file->picture);
    if (grows)
        Q_EMIT grown();
}

void FileRow::save()
{
    askForSaveFolder(*window(), folderToSaveIn(m_files),
                     [&files = m_files, number = m_number](const QString &path) { files.save(number, path); });
}

void FileRow::openFolder()
{
    const ReceivedFile *const file = m_files.find(m_number);
    if (!file)
        return;
    const QString folder = QFileInfo(file->path).absolutePath();
    const auto failed = [row = QPointer(this), folder] {
        if (row)
            row->m_state->setText(tr("Nothing on this computer opens %1.").arg(folder));
    };
    if (!m_folders.open(QUrl::fromLocalFile(folder), failed))
        failed();
}

/// Elsewhere: a large one takes long, and comes from somebody else.
void FileRow::readPicture(const QString &path)
{
    if (path == m_shownPicture)
        return;
    m_shownPicture = path;
    const qreal scale = devicePixelRatioF();
    m_reading = m_pictures.read(path, (largestShownPicture * scale).toSize(), [this, scale](SmallPicture read) {
        read.picture.setDevicePixelRatio(scale);
        showPicture(read);
    });
}

void FileRow::showPicture(const SmallPicture &read)
{
    constexpr qint64 mega = 1'000'000;
    if (read.isTooLarge)
        m_picture->setText(tr("This picture is too large to be shown: it has more than %1 megapixels. Save it.")
                               .arg(limits::shownPicturePixels / mega));
    else if (read.picture.isNull())
        m_picture->setText(tr("This is no picture that NIMB-Chat can read."));
    else
        m_picture->setPixmap(QPixmap::fromImage(read.picture));
    m_picture->setAccessibleName(tr("Picture %1").arg(m_name->text()));
    m_picture->show();
    Q_EMIT grown();
}

} // namespace nimb
