// The contact list on the screen: a tree view without branches, with room above its rows.
#pragma once

#include <QHeaderView>
#include <QTreeView>

namespace nimb
{

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

/// Rows are those of ContactList. Painted: picture, nickname with an ellipsis where it is long, details muted. Behind a
/// nickname that looks like another one stands the address, where it has no column.
class ContactView : public QTreeView
{
    Q_OBJECT

public:
    explicit ContactView(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    void setRoomAbove(int room);
    /// Widths in pixels of the columns that the details switch sets; 0 hides a column.
    void setDetailColumns(int workstation, int ipAddress, int stateText);
    /// Address of the selected contact, empty when none is selected; of several, the one that was selected last.
    QString selectedAddress() const;
    /// -1 when none is selected.
    int selectedRow() const;
    /// Of all that are selected, in the order of the list.
    QStringList selectedAddresses() const;

Q_SIGNALS:
    /// Two clicks of the left button on the same contact, or the Enter key.
    void contactOpened(const QString &ip);
    /// One click of the left button.
    void contactClicked(const QString &ip);
    /// The button was clicked that stands in a list without contacts.
    void everybodyWanted();
    /// The right button was released, or the menu key pressed.
    void menuWanted(const QPoint &globalPosition);
    /// The pointer moves over a contact, or over none: empty.
    void pointedAt(const QString &ip);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    QString addressAt(const QPoint &position) const;
    void buildInvitation();
    /// What stands in the list while it is empty.
    void placeInvitation();
    /// Hides those rows for which another one stands, and shows the others.
    void hideRows(int first, int last);

    RoomyHeader *m_header;
    QWidget *m_scrollBarRoom;
    QWidget *m_invitation;
    Qt::MouseButton m_pressed = Qt::NoButton;
    QString m_pressedAddress;
};

} // namespace nimb
