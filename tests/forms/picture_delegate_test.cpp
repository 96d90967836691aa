#include "widgets/picture_delegate.h"
#include "widgets/pictures.h"

#include <gmock/gmock.h>

#include <QStandardItemModel>
#include <QTreeView>

namespace nimb::test
{
namespace
{

/// A list of one row that names a picture, painted.
class PictureDelegateTest : public testing::Test
{
protected:
    PictureDelegateTest()
    {
        auto *const row = new QStandardItem(QStringLiteral("Ann"));
        row->setData(QStringLiteral("green"), Qt::UserRole + 2);
        rows.appendRow({row, new QStandardItem(QStringLiteral("more"))});
        view.setModel(&rows);
        view.setItemDelegate(new PictureDelegate(&view));
        view.setRootIsDecorated(false);
        view.resize(300, 100);
        view.show();
    }
    /// Whether the pixel in the middle of the picture, right of the row's beginning, has the picture's own colour.
    bool showsPicture(int column)
    {
        const QRect cell = view.visualRect(rows.index(0, column));
        const QImage painted = view.viewport()->grab().toImage();
        const QImage picture = namedPicture(QStringLiteral("green")).pixmap(16, 16).toImage();
        const QColor wanted = picture.pixelColor(2, 8);
        for (int x = cell.left(); x < cell.left() + 24; ++x) {
            if (painted.pixelColor(x, cell.center().y()) == wanted)
                return true;
        }
        return false;
    }

    QStandardItemModel rows;
    QTreeView view;
};

TEST_F(PictureDelegateTest, PaintsThePictureThatARowNamesBeforeItsText)
{
    EXPECT_TRUE(showsPicture(0));
    EXPECT_FALSE(showsPicture(1));
    rows.setData(rows.index(0, 0), QStringLiteral("red"), Qt::UserRole + 2);
    EXPECT_FALSE(showsPicture(0));
}

TEST_F(PictureDelegateTest, KeepsThePicturesColoursInASelectedRow)
{
    view.setCurrentIndex(rows.index(0, 0));
    EXPECT_TRUE(view.selectionModel()->hasSelection());
    EXPECT_TRUE(showsPicture(0));
}

TEST_F(PictureDelegateTest, GivesEveryRowItsHeight)
{
    EXPECT_GE(view.visualRect(rows.index(0, 0)).height(), 24);
}

} // namespace
} // namespace nimb::test
