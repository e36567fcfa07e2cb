#include "desk/windows/colour_box.h"

#include <QColorDialog>
#include <QPixmap>

namespace windows {
namespace {

struct NamedColour {
    const char* name;
    std::uint32_t colour;
};

constexpr NamedColour named_colours[] = {
    {"Black", 0x000000}, {"Red", 0x0000ff},  {"Orange", 0x0080ff}, {"Brown", 0x204080},  {"Green", 0x008000},
    {"Teal", 0x808000},  {"Blue", 0xff0000}, {"Navy", 0x800000},   {"Purple", 0x800080}, {"Grey", 0x808080},
};

QColor colour_of(std::uint32_t number) {
    return QColor(static_cast<int>(number & 0xff), static_cast<int>(number >> 8 & 0xff),
                  static_cast<int>(number >> 16 & 0xff));
}

std::uint32_t number_of(const QColor& colour) {
    return static_cast<std::uint32_t>(colour.blue()) << 16 | static_cast<std::uint32_t>(colour.green()) << 8 |
           static_cast<std::uint32_t>(colour.red());
}

QIcon swatch(std::uint32_t colour) {
    QPixmap picture(32, 32);
    picture.fill(colour_of(colour));
    return QIcon(picture);
}

} // namespace

ColourBox::ColourBox(QWidget* parent) : QComboBox(parent) {
    addItem(tr("None"));
    for (const NamedColour& one : named_colours)
        addItem(swatch(one.colour), tr(one.name), one.colour);
    addItem(tr("Other..."));
    connect(this, &QComboBox::activated, this, &ColourBox::take_choice);
}

void ColourBox::set_colour(std::optional<std::uint32_t> colour) {
    colour_ = colour;
    setCurrentIndex(colour ? place_of(*colour) : 0);
}

void ColourBox::take_choice(int index) {
    if (index == count() - 1)
        ask();
    else
        set_colour(index == 0 ? std::nullopt : std::optional(itemData(index).toUInt()));
}

void ColourBox::ask() {
    const QColor picked = QColorDialog::getColor(colour_ ? colour_of(*colour_) : QColor(Qt::white), this,
                                                 tr("Colour of the Activity"));
    set_colour(picked.isValid() ? std::optional(number_of(picked)) : colour_);
}

int ColourBox::place_of(std::uint32_t colour) {
    if (const int place = findData(colour); place >= 0)
        return place;
    insertItem(count() - 1, swatch(colour), colour_of(colour).name(), colour);
    return count() - 2;
}

} // namespace windows
