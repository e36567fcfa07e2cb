#include "ui/picture/picture_cache.h"

#include "ui/picture/style.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QSvgRenderer>

namespace picture {

namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QSize bounded(QSize size) {
    const QSize most(style::largest_picture, style::largest_picture);
    return size.width() > most.width() || size.height() > most.height() ? size.scaled(most, Qt::KeepAspectRatio)
                                                                        : size;
}

QPixmap read(const QString& path, qreal ratio) {
    const QByteArray picture = contents(path);
    if (picture.isEmpty())
        return {};
    const QFileInfo file(path);
    const QByteArray drawing = contents(file.path() + '/' + file.completeBaseName() + ".svg");
    const QByteArray digest = QCryptographicHash::hash(picture, QCryptographicHash::Sha1).toHex();
    if (drawing.contains("gif " + digest))
        if (QPixmap drawn = drawn_pixmap(drawing, ratio); !drawn.isNull())
            return drawn;
    QPixmap pixmap;
    if (!pixmap.loadFromData(picture))
        return {};
    pixmap = pixmap.scaled((QSizeF(bounded(pixmap.size())) * ratio).toSize(), Qt::IgnoreAspectRatio,
                           Qt::SmoothTransformation);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

QPixmap drawn_pixmap(const QByteArray& svg, qreal device_pixel_ratio) {
    QSvgRenderer renderer(svg);
    const QSize size = bounded(renderer.defaultSize());
    if (!renderer.isValid() || size.isEmpty())
        return {};
    QPixmap pixmap((QSizeF(size) * device_pixel_ratio).toSize());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(device_pixel_ratio);
    return pixmap;
}

const QPixmap& PictureCache::pixmap(const std::string& path, qreal device_pixel_ratio) {
    if (ratio_ != device_pixel_ratio) {
        pixmaps_.clear();
        ratio_ = device_pixel_ratio;
    }
    if (const auto found = pixmaps_.find(std::string_view(path)); found != pixmaps_.end())
        return found->second;
    return pixmaps_.emplace(path, read(QString::fromStdString(path), device_pixel_ratio)).first->second;
}

} // namespace picture
