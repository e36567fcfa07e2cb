#pragma once

#include <QByteArray>
#include <QPixmap>

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace picture {

// A drawing in SVG at its own size; null when it is none.
QPixmap drawn_pixmap(const QByteArray& svg, qreal device_pixel_ratio);

// The pictures of cells, each read once a run for each scale of the screen. A cell names a .gif; where the .svg of
// the same base name beside it says that it was made into that very .gif, the .svg is drawn, sharp at any scale.
// A file that isn't there or is no picture gives a null pixmap.
class PictureCache {
public:
    const QPixmap& pixmap(const std::string& path, qreal device_pixel_ratio);

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    using Pixmaps = std::unordered_map<std::string, QPixmap, Hash, std::equal_to<>>;

    qreal ratio_ = 0; // of the pixmaps held
    Pixmaps pixmaps_;
};

} // namespace picture
