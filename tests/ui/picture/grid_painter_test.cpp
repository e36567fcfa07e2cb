#include "ui/picture/grid_painter.h"

#include "ui/grid_widget/sample_grid.h"
#include "ui/picture/style.h"

#include <QPicture>
#include <gtest/gtest.h>

#include <functional>

namespace {

constexpr table::Colour orange = 0xc0e0ff; // blue, green, red
const std::string call = PICTURES "call.gif";

struct Page {
    table::GridModel model = sample_model();

    table::GridModel& at(int row, int col) {
        model.Row(row);
        model.Col(col);
        return model;
    }
    // 640 by 400 pixels, the current cell beyond them.
    QImage drawn(qreal ratio = 1) const {
        table::GridModel unmarked = model;
        unmarked.Row(model.Rows() - 1);
        unmarked.Col(model.Cols() - 1);
        return drawn(unmarked, picture::Marks::without_focus, ratio);
    }
    QImage marked(picture::Marks marks) const { return drawn(model, marks, 1); }

private:
    static QImage drawn(const table::GridModel& model, picture::Marks marks, qreal ratio) {
        QImage image(QSize(640, 400) * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        QPainter painter(&image);
        picture::GridPainter grid_painter(QApplication::font());
        grid_painter.paint(painter, QRect(0, 0, 640, 400), model, picture::View(model, {640, 400}), marks);
        return image;
    }
};

// Where cell 1,2 lies, without its lines.
const QRect cell(200, 20, 99, 39);
QRgb pixel_in_cell(const QImage& image, int x, int y) { return image.pixel(cell.left() + x, cell.top() + y); }

int dark_pixels(const QImage& image, const QRect& area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += qGray(image.pixel(x, y)) < 140 ? 1 : 0;
    return count;
}

// The colour of the darkest pixel of an area.
QRgb ink(const QImage& image, const QRect& area) {
    QRgb darkest = qRgb(255, 255, 255);
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (qGray(image.pixel(x, y)) < qGray(darkest))
                darkest = image.pixel(x, y);
    return darkest;
}

// The first and last row of an area with anything dark in them.
std::pair<int, int> dark_rows(const QImage& image, const QRect& area) {
    int first = area.bottom() + 1, last = -1;
    for (int y = area.top(); y <= area.bottom(); ++y)
        if (dark_pixels(image, QRect(area.left(), y, area.width(), 1)) > 0) {
            first = std::min(first, y);
            last = y;
        }
    return {first, last};
}

TEST(GridPainter, TurnsBlueGreenRedIntoTheScreensOrder) {
    Page page;
    page.at(1, 2).CellBackColor(orange);
    EXPECT_EQ(pixel_in_cell(page.drawn(), 50, 20), qRgb(0xff, 0xe0, 0xc0));
}

TEST(GridPainter, PaintsCellsWhiteAndTitlesGreyOfThemselves) {
    Page page;
    const QImage image = page.drawn();
    EXPECT_EQ(pixel_in_cell(image, 50, 20), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(250, 10), picture::style::title.rgb());
    EXPECT_EQ(image.pixel(50, 40), picture::style::title.rgb());
}

TEST(GridPainter, PaintsATitleInItsOwnColour) {
    Page page;
    page.at(1, 0).CellBackColor(orange);
    EXPECT_EQ(page.drawn().pixel(50, 40), qRgb(0xff, 0xe0, 0xc0));
}

TEST(GridPainter, DrawsTextInTheCellsColour) {
    Page page;
    page.at(1, 2).Text("Text");
    page.model.CellForeColor(0x0000c0);
    const QRgb colour = ink(page.drawn(), cell);
    EXPECT_GT(qRed(colour), 0x90);
    EXPECT_LT(qBlue(colour), 0x40);
}

TEST(GridPainter, DrawsTextInTheGridsColourWhereTheCellHasNone) {
    Page page;
    page.at(1, 2).Text("Text");
    page.model.ForeColor(0xc00000);
    const QRgb colour = ink(page.drawn(), cell);
    EXPECT_GT(qBlue(colour), 0x90);
    EXPECT_LT(qRed(colour), 0x40);
}

TEST(GridPainter, DrawsBoldTextHeavier) {
    Page page;
    page.at(1, 2).Text("Title");
    const int regular = dark_pixels(page.drawn(), cell);
    page.model.CellFontBold(true);
    EXPECT_GT(dark_pixels(page.drawn(), cell), regular);
}

TEST(GridPainter, StrikesTextThrough) {
    Page page;
    page.at(1, 2).Text("i i i i i i i");
    const QImage plain = page.drawn();
    page.model.CellFontStrikeThrough(true);
    const QImage struck = page.drawn();
    const int width = QFontMetrics(QApplication::font()).horizontalAdvance("i i i i i i i");
    int fullest = 0, fullest_plain = 0;
    for (int y = cell.top(); y <= cell.bottom(); ++y) {
        fullest = std::max(fullest, dark_pixels(struck, QRect(cell.left(), y, cell.width(), 1)));
        fullest_plain = std::max(fullest_plain, dark_pixels(plain, QRect(cell.left(), y, cell.width(), 1)));
    }
    EXPECT_GE(fullest, width - 4);
    EXPECT_LT(fullest_plain, width / 2);
}

TEST(GridPainter, StrikesEveryLineThrough) {
    Page page;
    page.model.RowHeight(1, 900);
    page.at(1, 2).Text("iiiiiiii\riiiiiiii");
    const QRect area(200, 20, 99, 59);
    const int plain = dark_pixels(page.drawn(), area);
    page.model.CellFontStrikeThrough(true);
    const int width = QFontMetrics(QApplication::font()).horizontalAdvance("iiiiiiii");
    EXPECT_GT(dark_pixels(page.drawn(), area), plain + width / 2);
}

TEST(GridPainter, NeverLaysTextUnderThePicture) {
    Page page;
    page.model.RowHeight(1, 900);
    const QRect under(200, 20, picture::style::padding_x + 16 + 2, 59);
    page.at(1, 2).CellPicture(call);
    const QImage alone = page.drawn().copy(under);
    for (const char* text : {"       Text of a good many words that wrap", "Text without blanks that wraps",
                             "       one\rtwo\rthree"}) {
        page.model.Text(text);
        const QImage image = page.drawn();
        EXPECT_EQ(image.copy(under), alone) << text;
        const QRect beside(under.right() + 1, 20, 298 - under.right(), 59);
        EXPECT_GT(dark_pixels(image, beside), 20) << text;
    }
}

TEST(GridPainter, StartsAllLinesBesideThePictureAtTheSamePlace) {
    Page page;
    page.model.RowHeight(1, 900);
    page.at(1, 2).CellPicture(call);
    page.model.Text("       lll\rlll");
    const QImage image = page.drawn();
    const int line = QFontMetrics(QApplication::font()).height();
    const auto first_dark = [&](int top) {
        for (int x = 220; x < 299; ++x)
            if (dark_pixels(image, QRect(x, top, 1, line - 4)) > 2)
                return x;
        return -1;
    };
    const int first = first_dark(20 + picture::style::padding_y);
    EXPECT_GE(first, 220);
    EXPECT_EQ(first_dark(20 + picture::style::padding_y + line), first);
}

TEST(GridPainter, KeepsLeadingBlanksWithoutAPicture) {
    Page page;
    page.at(1, 2).Text("       lll");
    const QImage image = page.drawn();
    EXPECT_EQ(dark_pixels(image, QRect(200, 20, 15, 39)), 0);
    EXPECT_GT(dark_pixels(image, cell), 0);
}

TEST(GridPainter, SetsAllLinesInByLeadingBlanksAsFarAsAPictureWouldAndNoFarther) {
    Page page;
    page.model.RowHeight(1, 900);
    const QRect beside(200 + picture::style::padding_x + picture::style::picture_room, 20, 69, 59);
    page.at(1, 2).CellPicture(call);
    page.model.Text("       Theo Sterling\rWheel Lane");
    const QImage beside_a_picture = page.drawn().copy(beside);
    page.model.CellPicture({});
    for (const int blanks : {7, 14, 200}) {
        page.model.Text(std::string(static_cast<std::size_t>(blanks), ' ') + "Theo Sterling\rWheel Lane");
        const QImage image = page.drawn();
        EXPECT_EQ(image.copy(beside), beside_a_picture) << blanks;
        EXPECT_EQ(dark_pixels(image, QRect(200, 20, beside.left() - 200, 59)), 0) << blanks;
    }
}

TEST(GridPainter, StrikesNoBlanksThrough) {
    Page page;
    page.at(1, 2).Text("       lll");
    page.model.CellFontStrikeThrough(true);
    EXPECT_EQ(dark_pixels(page.drawn(), QRect(200, 20, 15, 39)), 0);
}

TEST(GridPainter, DrawsNothingForAMissingPicture) {
    Page page;
    const QImage before = page.drawn();
    page.at(1, 2).CellPicture("/nowhere/call.gif");
    EXPECT_EQ(page.drawn(), before);
}

TEST(GridPainter, DrawsPicturesSharpOnAFineScreen) {
    Page page;
    page.at(1, 2).CellPicture(call);
    const QImage fine = page.drawn(2);
    const QImage coarse_made_larger = page.drawn().scaled(fine.size());
    const QRect picture(400, 40, 60, 60);
    EXPECT_NE(fine.copy(picture).convertToFormat(QImage::Format_RGB32), coarse_made_larger.copy(picture));
}

TEST(GridPainter, StandsTextWhereItsAlignmentSays) {
    const auto rows_of = [](table::Alignment alignment) {
        Page page;
        page.model.RowHeight(1, 1500); // 100 pixels
        page.at(1, 2).Text("Hxg");
        page.model.CellAlignment(alignment);
        return dark_rows(page.drawn(), QRect(200, 20, 99, 99));
    };
    EXPECT_LT(rows_of(table::Alignment::left_top).first, 20 + 15);
    EXPECT_GT(rows_of(table::Alignment::left_bottom).second, 119 - 15);
    const auto [first, last] = rows_of(table::Alignment::centre);
    EXPECT_NEAR(first - 20, 119 - last, 6);
}

TEST(GridPainter, CentresTheTitleRowVertically) {
    Page page;
    page.model.RowHeight(0, 900); // 60 pixels
    page.at(0, 2).Text("Hxg");
    const auto [first, last] = dark_rows(page.drawn(), QRect(202, 2, 90, 54));
    EXPECT_NEAR(first, 59 - last, 6);
}

TEST(GridPainter, KeepsTextInsideALowCell) {
    Page page;
    page.model.RowHeight(1, 120); // 8 pixels
    const QRect below(200, 28, 99, 39);
    const QImage before = page.drawn().copy(below);
    page.at(1, 2).Text("Hxg");
    EXPECT_EQ(page.drawn().copy(below), before);
}

TEST(GridPainter, LeavesHiddenCellsOut) {
    Page page;
    page.at(1, 2).Text("Text");
    page.model.ColWidth(2, 0);
    EXPECT_EQ(dark_pixels(page.drawn(), cell), 0);
}

TEST(GridPainter, MarksTheCurrentCell) {
    Page page;
    page.at(1, 2);
    EXPECT_EQ(page.marked(picture::Marks::with_focus).pixel(200, 30), picture::style::accent.rgb());
    EXPECT_EQ(page.marked(picture::Marks::without_focus).pixel(200, 30),
              picture::style::frame_without_focus.rgb());
    EXPECT_EQ(page.drawn().pixel(200, 30), qRgb(255, 255, 255));
}

TEST(GridPainter, MarksTheSelectionWhicheverEndIsCurrent) {
    Page page;
    page.at(3, 4);
    page.model.RowSel(1);
    page.model.ColSel(3);
    const QImage image = page.marked(picture::Marks::with_focus);
    const auto is_marked = [&image](int row, int col) {
        return image.pixel(col * 100 + 50, 20 + (row - 1) * 40 + 20) != qRgb(255, 255, 255);
    };
    EXPECT_TRUE(is_marked(1, 3));
    EXPECT_TRUE(is_marked(3, 4));
    EXPECT_TRUE(is_marked(2, 3));
    EXPECT_FALSE(is_marked(1, 2));
    EXPECT_FALSE(is_marked(4, 3));
}

TEST(GridPainter, LeavesASingleCurrentCellItsGround) {
    Page page;
    page.at(1, 2);
    EXPECT_EQ(pixel_in_cell(page.marked(picture::Marks::with_focus), 50, 20), qRgb(255, 255, 255));
}

TEST(GridPainter, FillsTheRoomBehindTheLastCell) {
    Page page;
    page.model.Cols(3);
    page.model.Rows(3);
    const QImage image = page.drawn();
    EXPECT_EQ(image.pixel(500, 50), picture::style::beyond.rgb());
    EXPECT_EQ(image.pixel(50, 300), picture::style::beyond.rgb());
}

TEST(GridPainter, RecordsTextAsText) {
    Page page;
    page.at(1, 2).Text("Recorded");
    QPicture recording;
    QPainter painter(&recording);
    picture::GridPainter(QApplication::font())
        .paint(painter, QRect(0, 0, 640, 400), page.model, picture::View(page.model, {640, 400}),
               picture::Marks::without_focus);
    painter.end();
    const QByteArray raw(recording.data(), static_cast<qsizetype>(recording.size()));
    QByteArray wanted;
    for (const char letter : QByteArray("Recorded"))
        wanted.append('\0').append(letter); // a recording holds UTF-16, high byte first, or plain bytes
    EXPECT_TRUE(raw.contains(wanted) || raw.contains("Recorded"));
}

} // namespace
