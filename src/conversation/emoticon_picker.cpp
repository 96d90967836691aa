#include "conversation/emoticon_picker.h"

#include "log/emoticon_tables.h"
#include "log/log_pictures.h"
#include "log/metafile.h"

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

constexpr int enlargement = 2;
constexpr int pictureSide = 12 * enlargement;
/// Narrow enough for all of them in a conference at its smallest.
constexpr QSize cell(40, 46);

/// The picture that the logs show for this text, larger.
QIcon iconOf(QLatin1String emoticon)
{
    const auto &texts = emoticonTables.texts;
    const auto entry = static_cast<std::size_t>(std::ranges::find(texts, emoticon) - texts.begin());
    const std::optional<IndexedBitmap> bitmap = decodePictureFragment(emoticonFragment(entry / 2 + 1));
    if (!bitmap)
        return {};
    QIcon icon;
    // Whole factors for every screen, so that no pixel is smoothed.
    for (const int ratio : {1, 2, 3, 4}) {
        QPixmap pixmap = QPixmap::fromImage(enlarged(imageOf(*bitmap), enlargement * ratio));
        pixmap.setDevicePixelRatio(ratio);
        icon.addPixmap(pixmap);
    }
    return icon;
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
    setIconSize(QSize(pictureSide, pictureSide));
    setGridSize(cell);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const PickerEntry &entry : pickerEntries) {
        auto *const item = new QListWidgetItem(iconOf(entry.emoticon), entry.emoticon, this);
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
