#include "ui/picture/picture_cache.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString pictures = PICTURES;

TEST(PictureCache, KnowsEveryShippedPictureByItsGif) {
    picture::PictureCache cache;
    for (const char* name : {"call", "wdcall", "rcall", "rwdcall", "meeting", "wdmeeting", "rmeeting",
                             "rwdmeeting", "todo", "wdtodo", "rtodo", "rwdtodo", "plus"}) {
        const QPixmap& pixmap = cache.pixmap((pictures + name + ".gif").toStdString(), 1);
        EXPECT_EQ(pixmap.size(), QSize(16, 16)) << name;
    }
}

TEST(PictureCache, DrawsTheThirteenPicturesApart) {
    picture::PictureCache cache;
    QList<QImage> seen;
    for (const QString& file : QDir(pictures).entryList({"*.gif"})) {
        const QImage image = cache.pixmap((pictures + file).toStdString(), 1).toImage();
        EXPECT_FALSE(seen.contains(image)) << file.toStdString();
        seen.append(image);
    }
    EXPECT_EQ(seen.size(), 13);
}

TEST(PictureCache, DrawsTheVectorFormOfAShippedPicture) {
    picture::PictureCache cache;
    const QPixmap pixmap = cache.pixmap((pictures + "call.gif").toStdString(), 2);
    EXPECT_EQ(pixmap.size(), QSize(32, 32));
    EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(16, 16));
    const QImage gif = QImage(pictures + "call.gif").scaled(32, 32).convertToFormat(QImage::Format_ARGB32);
    EXPECT_NE(pixmap.toImage().convertToFormat(QImage::Format_ARGB32), gif);
}

TEST(PictureCache, PrefersTheUsersOwnPictureToTheShippedDrawing) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::copy(pictures + "call.svg", folder.filePath("call.svg")));
    ASSERT_TRUE(QFile::copy(pictures + "plus.gif", folder.filePath("call.gif")));
    picture::PictureCache cache;
    const QImage drawn = cache.pixmap(folder.filePath("call.gif").toStdString(), 1).toImage();
    EXPECT_EQ(drawn.convertToFormat(QImage::Format_ARGB32),
              QImage(pictures + "plus.gif").convertToFormat(QImage::Format_ARGB32));
}

TEST(PictureCache, DrawsNothingForAMissingFile) {
    picture::PictureCache cache;
    EXPECT_TRUE(cache.pixmap("/nowhere/call.gif", 1).isNull());
    EXPECT_TRUE(cache.pixmap("", 1).isNull());
}

TEST(PictureCache, DrawsNothingForAFileThatIsNoPicture) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("call.gif"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a picture");
    file.close();
    picture::PictureCache cache;
    EXPECT_TRUE(cache.pixmap(file.fileName().toStdString(), 1).isNull());
}

TEST(PictureCache, MakesAHugePictureFitACell) {
    const QTemporaryDir folder;
    QImage huge(640, 320, QImage::Format_RGB32);
    huge.fill(Qt::red);
    ASSERT_TRUE(huge.save(folder.filePath("call.png")));
    picture::PictureCache cache;
    EXPECT_EQ(cache.pixmap(folder.filePath("call.png").toStdString(), 1).size(), QSize(32, 16));
}

TEST(PictureCache, ReadsAFileOnceARun) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("call.gif");
    ASSERT_TRUE(QFile::copy(pictures + "call.gif", path));
    picture::PictureCache cache;
    cache.pixmap(path.toStdString(), 1);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_FALSE(cache.pixmap(path.toStdString(), 1).isNull());
}

} // namespace
