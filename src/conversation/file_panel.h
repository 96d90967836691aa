// What the other side offers, between the log and the input box.
#pragma once

#include <QWidget>

#include <list>
#include <memory>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace nimb
{

class ElidedLabel;
class FileRow;
class LinkOpener;
class ReceivedFiles;
class PictureReading;
class RowsOfFiles;
class ScratchFolder;
class SmallPictures;
struct SmallPicture;

/// The newest files, one row each, and above them how many more there are; hidden while there are none. Rows that would
/// take too much of the conversation's room are scrolled. Nothing is fetched by itself.
class FilePanel : public QWidget
{
    Q_OBJECT

public:
    /// folders: opens a folder of this machine.
    FilePanel(ReceivedFiles &files, LinkOpener &folders, ScratchFolder &scratch, SmallPictures &pictures,
              QWidget *parent);

    void add(int number);

Q_SIGNALS:
    /// The user wants to see those that have no row here.
    void allWanted();

private:
    enum class Place { top, bottom };

    FileRow *addRow(int number, Place place);
    void remove(int number);
    void makeRoom();
    void showFurtherHere();
    void showFurther();
    void makeFurtherLine();
    void saveAll();
    /// Those of this conversation with which nothing has been done yet.
    std::vector<int> offered() const;

    ReceivedFiles &m_files;
    LinkOpener &m_folders;
    ScratchFolder &m_scratch;
    SmallPictures &m_pictures;
    RowsOfFiles *m_area = nullptr; ///< once there was a row
    std::list<FileRow *> m_rows;
    std::vector<int> m_further; ///< numbers of those that had to make room
    QWidget *m_furtherLine = nullptr;
    QLabel *m_furtherCount = nullptr;
    QPushButton *m_saveAll = nullptr;
};

/// One file, and what can be done with it now.
class FileRow : public QWidget
{
    Q_OBJECT

public:
    FileRow(ReceivedFiles &files, int number, LinkOpener &folders, ScratchFolder &scratch, SmallPictures &pictures,
            QWidget *parent);
    ~FileRow() override;

    int number() const { return m_number; }
    /// As the file is now; one that has gone stays as it was.
    void refresh();

Q_SIGNALS:
    void closed(int number);
    /// It has its picture now.
    void grown();

private:
    QWidget *makeFirstLine();
    QWidget *makeSecondLine();
    void connectControls();
    void save();
    void openFolder();
    void readPicture(const QString &path);
    void showPicture(const SmallPicture &read);

    ReceivedFiles &m_files;
    const int m_number;
    LinkOpener &m_folders;
    ScratchFolder &m_scratch;
    SmallPictures &m_pictures;
    ElidedLabel *m_name = nullptr;
    QWidget *m_stateLine = nullptr; ///< while there is more to say than that it is offered
    ElidedLabel *m_state = nullptr;
    QProgressBar *m_bar = nullptr;
    QLabel *m_picture = nullptr;
    QString m_shownPicture; ///< or one that is being read
    std::unique_ptr<PictureReading> m_reading;
    QPushButton *m_look = nullptr;
    QPushButton *m_save = nullptr;
    QPushButton *m_pause = nullptr;
    QPushButton *m_resume = nullptr;
    QPushButton *m_open = nullptr;
    QToolButton *m_close = nullptr;
};

} // namespace nimb
