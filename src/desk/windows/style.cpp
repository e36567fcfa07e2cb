#include "windows/style.h"

#include <QPalette>
#include <QProxyStyle>

namespace windows {
namespace {

// Words say what a button does; the pictures that Fusion puts before them look strange on most desktops.
class PlainButtons : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0
                                                           : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

} // namespace

void dress(QApplication& application) {
    application.setStyle(new PlainButtons("Fusion"));
    QPalette palette;
    const QColor ink(0x1f, 0x29, 0x33);
    const QColor faded(0x8a, 0x93, 0x9c);
    palette.setColor(QPalette::Window, QColor(0xf3, 0xf5, 0xf7));
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf2, 0xf6, 0xfb));
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::Button, QColor(0xf3, 0xf5, 0xf7));
    palette.setColor(QPalette::ButtonText, ink);
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, faded);
    palette.setColor(QPalette::Highlight, QColor(0x2b, 0x63, 0xa8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faded);
    application.setPalette(palette);
}

} // namespace windows
