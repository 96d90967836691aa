// The contact list on the screen: a tree view without branches, with room above its rows.
#pragma once

#include <QHeaderView>
#include <QTreeView>

class QLabel;
class QPushButton;

namespace nimb
{

class AvatarStore;
class ContactDelegate;
class ContactFilter;
class WallClock;

/// A header that keeps room above its captions for controls that lie over it. Without captions it is only that room.
class RoomyHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit RoomyHeader(QWidget *parent);
    /// room: pixels above the captions.
    void setRoom(int room);
    void setCaptionsShown(bool shown);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_room = 0;
    bool m_captionsShown = false;
};

/// Rows are those of ContactList. What is typed into it, or into the box that Ctrl+K brings, hides everybody else; the
/// box comes between what lies above the rows and the rows.
class ContactView : public QTreeView
{
    Q_OBJECT

public:
    explicit ContactView(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    void setRoomAbove(int room);
    void setAvatars(const AvatarStore &avatars);
    /// For messages that are not of today.
    void setClock(const WallClock &clock);
    /// Widths in pixels of the columns that the details switch sets; 0 hides a column.
    void setDetailColumns(int workstation, int ipAddress, int stateText);
    /// Address of the selected contact, empty when none is selected; of several, the one that was selected last.
    QString selectedAddress() const;
    /// -1 when none is selected.
    int selectedRow() const;
    /// Of all that are selected, in the order of the list.
    QStringList selectedAddresses() const;

    /// The box for what is looked for; hidden as long as nothing is.
    QWidget &filterBox() const;
    /// Shows the box, which gets the focus.
    void find();
    /// Shows everybody again, without the box.
    void endSearch();

    /// Of the rows that are shown: how many, which one, and which number it has; from 0.
    int shownCount() const;
    QModelIndex shownAt(int number) const;
    int numberOf(const QModelIndex &contact) const;
    /// What lies over the rows, shown or not.
    QList<QWidget *> partsOverRows() const;
    /// While the view itself says of what it tells: it counts all columns of all rows, the captions first.
    bool countsCells() const { return m_countsCells; }

Q_SIGNALS:
    /// Two clicks of the left button on the same contact, or the Enter key, also in the box that finds contacts.
    void contactOpened(const QString &ip);
    /// The Delete key.
    void removalWanted();
    /// One click of the left button.
    void contactClicked(const QString &ip);
    /// The button was clicked that stands in a list without contacts.
    void everybodyWanted();
    /// The right button was released, or the menu key pressed.
    void menuWanted(const QPoint &globalPosition);
    /// The pointer moves over a contact, or over none: empty.
    void pointedAt(const QString &ip);
    /// Of the model.
    void rowsAboutToGo(int first, int last);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    QString addressAt(const QPoint &position) const;
    void buildInvitation();
    /// What stands in the list while it is empty.
    void placeInvitation();
    /// Hides those rows for which another one stands and those that are not looked for, and shows the others.
    void hideRows(int first, int last);
    void rowsGo(int first, int last);

    void buildFilter();
    void showFilter();
    void placeFilter();
    bool isLookedFor(const QModelIndex &contact) const;
    void search();
    QModelIndex firstFound() const;
    void goToFirstFound();
    void openFirstFound();
    void open(const QString &ip);
    /// Whether the key is for the box.
    bool isTyped(const QKeyEvent &event) const;
    void type(QKeyEvent &event);
    /// What stands in the list while nobody is found.
    void placeNobody();

    ContactDelegate *m_delegate;
    RoomyHeader *m_header;
    QWidget *m_scrollBarRoom;
    QWidget *m_invitation;
    QPushButton *m_everybody = nullptr;
    ContactFilter *m_filter; ///< beside the view: inside it the scroll bar would cover it
    QWidget *m_nobodyPart;
    QLabel *m_nobody;
    int m_room = 0;                 ///< for what lies above the rows, in pixels
    int m_hidden = 0;               ///< rows
    QStringList m_words;            ///< that are looked for
    QPersistentModelIndex m_before; ///< who was chosen when the search began
    bool m_countsCells = false;
    Qt::MouseButton m_pressed = Qt::NoButton;
    QString m_pressedAddress;
};

} // namespace nimb
