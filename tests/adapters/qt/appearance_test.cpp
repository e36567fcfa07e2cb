#include "adapters/qt/appearance.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <gtest/gtest.h>

namespace {

TEST(Dress, GivesALightLookWhateverTheDesktopHas) {
    QApplication::setPalette(QPalette(Qt::white, Qt::black, Qt::gray, Qt::darkGray, Qt::gray, Qt::white, Qt::white,
                                      Qt::black, Qt::black));
    qt::dress(*qApp);
    const QPalette palette = QApplication::palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_GT(palette.color(group, QPalette::Window).lightness(), 200);
        EXPECT_GT(palette.color(group, QPalette::Base).lightness(), 200);
        EXPECT_GT(palette.color(group, QPalette::Button).lightness(), 200);
        EXPECT_LT(palette.color(group, QPalette::WindowText).lightness(), 160);
        EXPECT_LT(palette.color(group, QPalette::Text).lightness(), 160);
    }
    EXPECT_NE(palette.color(QPalette::Disabled, QPalette::Text), palette.color(QPalette::Active, QPalette::Text));
}

TEST(Dress, PutsNoPicturesOnTheButtonsOfBoxes) {
    qt::dress(*qApp);
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
}

} // namespace
