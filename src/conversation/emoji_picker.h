// The emoji to choose from.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListView;
class QModelIndex;

namespace nimb
{

class EmojiModel;
class EmojiStock;

/// A search over a list. Typing searches, wherever the focus is among the two; the Down key goes to the list, arrows
/// choose, Enter picks and stays. The Escape key is left to the window. To be made when the user asks for it: it reads
/// all names.
class EmojiPicker : public QWidget
{
    Q_OBJECT

public:
    /// emoji: outlives the picker.
    EmojiPicker(EmojiStock &emoji, QWidget *parent);

    /// The controls that the Tab key visits, in its order.
    QLineEdit &search() const { return *m_search; }
    QListView &list() const { return *m_list; }

    /// As many lines of emoji as are wanted at least, with the headings among them, and the fewest. To be said each
    /// time before it is shown.
    static constexpr int mostRows = 5, fewestRows = 1;
    void setLeastRows(int rows);
    /// The number of lines that it takes with so many pixels more than it needs now; within those bounds.
    int rowsWith(int room) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void picked(const QString &emoji);
    /// It was picked with the mouse: what comes next is typed into the message.
    void inputWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildControls();
    void buildList();
    QHBoxLayout *makeGroups();
    /// What was typed, or all there is.
    void showRows();
    void showGroup(int group);
    void showName();
    bool pick(const QModelIndex &index);
    void pickCurrent();
    /// By one, over headings and the ends of lines.
    void step(int by);
    void chooseFirst();
    bool isInFirstLine() const;
    /// false: the list shall take the key in its own way.
    bool takesInList(const QKeyEvent &event);
    bool takesInSearch(const QKeyEvent &event);

    int heightOf(int rows) const;

    EmojiStock &m_emoji;
    int m_leastRows = fewestRows;
    int m_headings = 1; ///< among the first lines
    EmojiModel *m_rows = nullptr;
    QLineEdit *m_search = nullptr;
    QLabel *m_name = nullptr;
    QListView *m_list = nullptr;
};

} // namespace nimb
