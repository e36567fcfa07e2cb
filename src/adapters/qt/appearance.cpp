#include "adapters/qt/appearance.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>

namespace qt {

namespace {

// Buttons of boxes show their captions alone, no icons.
class PlainButtons : public QProxyStyle {
public:
    PlainButtons() : QProxyStyle("Fusion") {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0
                                                           : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

} // namespace

void dress(QApplication& application) {
    application.setStyle(new PlainButtons);
    const QColor ink(0x1f, 0x29, 0x33), faded(0x8a, 0x93, 0x9c), ground(0xf3, 0xf5, 0xf7);
    QPalette palette(ink, ground, Qt::white, QColor(0xc9, 0xd0, 0xd7), QColor(0xa5, 0xae, 0xb8), ink, Qt::white,
                     Qt::white, ground);
    palette.setColor(QPalette::AlternateBase, QColor(0xf2, 0xf6, 0xfb));
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, faded);
    palette.setColor(QPalette::Highlight, QColor(0x2b, 0x63, 0xa8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faded);
    application.setPalette(palette);
}

} // namespace qt
