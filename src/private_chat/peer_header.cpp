#include "private_chat/peer_header.h"

#include "base/isolated.h"
#include "base/own_presence.h"
#include "base/remote_text.h"
#include "widgets/avatar_image.h"
#include "widgets/band.h"
#include "widgets/elided_label.h"
#include "widgets/form_layout.h"
#include "widgets/muted_text.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

using form_layout::margin;
using form_layout::spacing;

constexpr int faceSide = 36;
constexpr qsizetype longestNameOnButton = 20; ///< characters

/// Painted anew for every size and scale.
class Face : public QWidget
{
public:
    Face(const PeerPicture &picture, QWidget *parent) : QWidget(parent), m_picture(picture)
    {
        setFixedSize(faceSide + 2, faceSide + 2);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paintPeerPicture(painter, {0, 0, faceSide, faceSide}, m_picture, palette());
    }

private:
    const PeerPicture &m_picture;
};

QString presenceText(Presence presence)
{
    switch (presence) {
    case Presence::online:
        return PeerHeader::tr("Online");
    case Presence::busy:
        return PeerHeader::tr("Busy");
    case Presence::away:
        return PeerHeader::tr("Away");
    case Presence::offline:
        return PeerHeader::tr("Offline");
    case Presence::unknown:
        break;
    }
    return PeerHeader::tr("Not known to be there");
}

/// "Busy - In a meeting": as in a sentence, whatever the letters in which the peer has sent it.
QString stateText(const PeerShown &peer)
{
    const QString words = ownWordsOf(peer.state);
    if (words.isEmpty() || !isPresent(peer.presence))
        return presenceText(peer.presence);
    return words == peer.state ? isolated(words) : withOwnWords(presenceText(peer.presence), isolated(words));
}

QString detailsOf(const PeerShown &peer)
{
    QStringList details{stateText(peer)};
    if (peer.delivery == Delivery::toNoContact)
        details = {PeerHeader::tr("No contact any more")};
    if (!peer.workstation.isEmpty())
        details.append(isolated(paintedName(peer.workstation)));
    details.append(paintedName(peer.address));
    return details.join(QStringLiteral(" · "));
}

QString withWaiting(const PeerShown &peer, const QString &sentence)
{
    if (peer.waiting == 0)
        return sentence;
    const QString waiting = peer.sendsLater ? PeerHeader::tr("waiting: %1").arg(peer.waiting)
                                            : PeerHeader::tr("waiting to be sent: %1").arg(peer.waiting);
    return PeerHeader::tr("%1; %2", "two parts of a sentence").arg(sentence, waiting);
}

/// Where all that was written meanwhile waits, it need not be said that it has not arrived.
QString absenceOf(const PeerShown &peer, const QString &state, const QString &consequence)
{
    return withWaiting(peer, peer.canWait || peer.waiting == 0 ? consequence : state);
}

/// Empty while all arrives.
QString warningOf(const PeerShown &peer)
{
    const QString name = isolated(paintedName(peer.name));
    switch (peer.delivery) {
    case Delivery::arrives:
        return {};
    case Delivery::doubtful:
        if (peer.sendsLater)
            return withWaiting(
                peer, PeerHeader::tr("%1 is not known to be there: what you write is sent when %1 is back").arg(name));
        return absenceOf(peer, PeerHeader::tr("%1 is not known to be there").arg(name),
                         PeerHeader::tr("%1 is not known to be there: what you write may not arrive").arg(name));
    case Delivery::lost:
        if (peer.sendsLater)
            return withWaiting(peer, PeerHeader::tr("%1 is offline: what you write is sent when %1 is back").arg(name));
        return absenceOf(peer, PeerHeader::tr("%1 is offline").arg(name),
                         PeerHeader::tr("%1 is offline: what you write does not arrive").arg(name));
    case Delivery::toNoContact:
        return PeerHeader::tr("%1 is no contact any more: what comes from there is not shown").arg(name);
    }
    return {};
}

} // namespace

PeerHeader::PeerHeader(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("peerHeader"));
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeHead());
    m_gap = new QSpacerItem(0, 0);
    column->addItem(m_gap); // takes it over
    column->addWidget(makeBandRow());
}

QWidget *PeerHeader::makeBandRow()
{
    auto *const strip = new BandStrip(this);
    m_bandRow = strip;
    m_bandRow->hide();
    peerBand = named(makeBandText(*strip), "peerBand");
    peerBand->setTextFormat(Qt::PlainText);
    sendLaterBtn = named(new QPushButton(m_bandRow), "sendLaterBtn");
    connect(sendLaterBtn, &QPushButton::clicked, this, &PeerHeader::sendLaterPressed);
    auto *const row = new QHBoxLayout(m_bandRow);
    row->setContentsMargins(0, 0, margin, 0);
    row->addWidget(peerBand, 1);
    row->addWidget(sendLaterBtn);
    return m_bandRow;
}

QWidget *PeerHeader::makeHead()
{
    auto *const head = new QWidget(this);
    m_face = new Face(m_picture, head);
    peerName = new ElidedLabel(head);
    peerName->setObjectName(QStringLiteral("peerName"));
    QFont bold = peerName->font();
    bold.setBold(true);
    peerName->setFont(bold);
    peerDetails = new ElidedLabel(head);
    peerDetails->setObjectName(QStringLiteral("peerDetails"));
    keepMuted(*peerDetails);
    auto *const lines = new QVBoxLayout;
    lines->setSpacing(0);
    lines->addWidget(peerName);
    lines->addWidget(peerDetails);
    auto *const row = new QHBoxLayout(head);
    row->setContentsMargins(margin, margin, margin, 0);
    row->setSpacing(margin);
    row->addWidget(m_face);
    row->addLayout(lines, 1);
    return head;
}

void PeerHeader::setPeer(const PeerShown &peer)
{
    m_picture.name = peer.name;
    m_picture.presence = peer.delivery == Delivery::toNoContact ? std::nullopt : std::optional(peer.presence);
    m_face->update();
    peerName->setText(paintedName(peer.name));
    peerDetails->setText(detailsOf(peer));
    setAccessibleName(isolated(peerName->text()) + QStringLiteral(", ") + peerDetails->text());
    const QString warning = warningOf(peer);
    peerBand->setText(warning);
    peerBand->setVisible(!warning.isEmpty());
    // An ampersand would underline what follows it.
    const QString name = isolated(paintedName(peer.name, longestNameOnButton).replace(u'&', QLatin1String("&&")));
    sendLaterBtn->setText(peer.sendsLater ? tr("Do not send later") : tr("Send when %1 is back").arg(name));
    sendLaterBtn->setToolTip(
        peer.sendsLater
            ? tr("What waits in this conversation is not sent, and what you write now does not wait")
            : tr("What you have written and did not arrive is kept, and sent again then; so is what you write now"));
    sendLaterBtn->setVisible(peer.canWait || peer.sendsLater);
    m_bandRow->setVisible(!warning.isEmpty());
    // Without a band it is the log that keeps its distance.
    m_gap->changeSize(0, warning.isEmpty() ? 0 : spacing);
    layout()->invalidate();
}

void PeerHeader::setAvatar(const std::optional<QByteArray> &picture)
{
    m_picture.avatar = picture ? avatarImage(*picture) : QImage();
    m_face->update();
}

} // namespace nimb
