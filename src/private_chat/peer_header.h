// The head of a private window: who is talked to, and whether what is written arrives.
#pragma once

#include "private_chat/private_chat_view.h"
#include "widgets/peer_picture.h"

#include <QWidget>

class QLabel;
class QPushButton;

class QSpacerItem;

namespace nimb
{

class ElidedLabel;

/// Names that are shown are plain text.
class PeerHeader : public QWidget
{
    Q_OBJECT

public:
    explicit PeerHeader(QWidget *parent);

    void setPeer(const PeerShown &peer);
    void setAvatar(const std::optional<QByteArray> &picture);
    const PeerPicture &picture() const { return m_picture; }

Q_SIGNALS:
    /// What was written is to wait until the peer is back.
    void sendLaterPressed();

private:
    QWidget *makeHead();
    QWidget *makeBandRow();
    PeerPicture m_picture{.name = {}, .ground = QPalette::Window};
    QWidget *m_face = nullptr;
    ElidedLabel *peerName = nullptr;
    ElidedLabel *peerDetails = nullptr;
    QLabel *peerBand = nullptr;
    QPushButton *sendLaterBtn = nullptr;
    QWidget *m_bandRow = nullptr;
    QSpacerItem *m_gap = nullptr; ///< above the band
};

} // namespace nimb
