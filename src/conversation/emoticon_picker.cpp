#include "conversation/emoticon_picker.h"

#include "log/emoticon_face.h"
#include "log/emoticon_tables.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <array>

namespace nimb
{
namespace
{

struct PickerEntry {
    QLatin1String emoticon;
    QLatin1String image;
};

constexpr std::array<PickerEntry, 9> pickerEntries = {{
    {QLatin1String(":)"), QLatin1String("i1")},
    {QLatin1String(":))"), QLatin1String("i7")},
    {QLatin1String(":D"), QLatin1String("i9")},
    {QLatin1String(";)"), QLatin1String("i5")},
    {QLatin1String(":p"), QLatin1String("i4")},
    {QLatin1String(";p"), QLatin1String("i6")},
    {QLatin1String(":|"), QLatin1String("i3")},
    {QLatin1String(":("), QLatin1String("i2")},
    {QLatin1String(":(("), QLatin1String("i8")},
}};

constexpr int pickedFaceSide = 24; // pixels
/// Narrow enough for all of them in a conference at its smallest.
constexpr QSize cell(40, 46);

/// The one that the logs show for this text.
std::size_t faceFor(QLatin1String emoticon)
{
    const auto &texts = emoticonTables.texts;
    return static_cast<std::size_t>(std::ranges::find(texts, emoticon) - texts.begin()) / 2 + 1;
}

/// Drawn when it is shown: pictures of nine faces at every scale would take more memory than the rest of a window.
class FaceEngine : public QIconEngine
{
public:
    explicit FaceEngine(std::size_t face) : m_face(face) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        paintFace(*painter, QRectF(rect), m_face);
    }

    /// size: device pixels.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, result.rect(), mode, state);
        return result;
    }

    QString key() const override { return QStringLiteral("FaceEngine"); }
    QIconEngine *clone() const override { return new FaceEngine(*this); }

private:
    std::size_t m_face;
};

QIcon iconOf(std::size_t face)
{
    return QIcon(new FaceEngine(face));
}

} // namespace

EmoticonPicker::EmoticonPicker(QWidget *parent) : QListWidget(parent)
{
    setObjectName(QStringLiteral("ListViewEmot"));
    setAccessibleName(tr("Emoticons"));
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setWrapping(false);
    setFlow(QListView::LeftToRight);
    setUniformItemSizes(true);
    setIconSize(QSize(pickedFaceSide, pickedFaceSide));
    setGridSize(cell);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const PickerEntry &entry : pickerEntries) {
        const std::size_t face = faceFor(entry.emoticon);
        auto *const item = new QListWidgetItem(iconOf(face), entry.emoticon, this);
        item->setData(Qt::AccessibleTextRole, faceName(face));
        item->setToolTip(faceName(face));
        item->setData(Qt::UserRole, QString(entry.image));
    }
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) { Q_EMIT picked(item->text()); });
    // The Enter key picks as a click does; where a click activates too it must not pick twice.
    connect(this, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        if (!style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick, nullptr, this))
            Q_EMIT picked(item->text());
    });
}

QSize EmoticonPicker::sizeHint() const
{
    return {count() * cell.width() + 2 * frameWidth() + 4, cell.height() + 2 * frameWidth() + 2};
}

} // namespace nimb
