#include "ui/picture/text_blocks.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <gtest/gtest.h>

namespace {

using picture::Stroke;
using picture::TextBlock;
using picture::TextBlocks;
using picture::Weight;

constexpr int wide = 2000;

int height_of(int lines) {
    const int one = TextBlock("x", QApplication::font(), {wide, 1}).height();
    return lines * one;
}

TextBlock block(const QString& text, int width, int lines) {
    return TextBlock(text, QApplication::font(), {width, height_of(lines)});
}

TEST(TextBlock, BeginsANewLineAtACarriageReturn) {
    const TextBlock made = block("Jane Chan\rPhone", wide, 5);
    ASSERT_EQ(made.line_count(), 2);
    EXPECT_EQ(made.line(0), "Jane Chan");
    EXPECT_EQ(made.line(1), "Phone");
}

TEST(TextBlock, BeginsANewLineAtALineFeed) { EXPECT_EQ(block("one\ntwo\nthree", wide, 5).line_count(), 3); }

TEST(TextBlock, TakesACarriageReturnWithALineFeedAsOne) {
    EXPECT_EQ(block("one\r\ntwo", wide, 5).line_count(), 2);
}

TEST(TextBlock, KeepsAnEmptyLineInside) { EXPECT_EQ(block("one\r\rtwo", wide, 5).line_count(), 3); }

TEST(TextBlock, LeavesOutLineEndsAtTheTextsEnd) { EXPECT_EQ(block("one\r\n\r ", wide, 5).line_count(), 1); }

TEST(TextBlock, WrapsBetweenWords) {
    const int width = QFontMetrics(QApplication::font()).horizontalAdvance("annual maintenance") + 4;
    const TextBlock made = block("annual maintenance contract", width, 5);
    ASSERT_EQ(made.line_count(), 2);
    EXPECT_EQ(made.line(0), "annual maintenance");
    EXPECT_EQ(made.line(1), "contract");
}

TEST(TextBlock, BreaksAWordThatIsWiderThanTheCell) {
    EXPECT_GT(block("incomprehensibilities", 40, 20).line_count(), 2);
}

TEST(TextBlock, EndsInAnEllipsisWhenWordsAreLeft) {
    const TextBlock made = block("one two three four five six seven eight nine ten", 60, 2);
    ASSERT_EQ(made.line_count(), 2);
    EXPECT_FALSE(made.line(0).contains(QChar(0x2026)));
    EXPECT_TRUE(made.line(1).endsWith(QChar(0x2026)));
}

TEST(TextBlock, EndsInAnEllipsisWhenAFurtherLineIsLeft) {
    const TextBlock made = block("one\rtwo\rthree", wide, 2);
    ASSERT_EQ(made.line_count(), 2);
    EXPECT_EQ(made.line(1), QString("two") + QChar(0x2026));
}

TEST(TextBlock, KeepsTheEllipsisInsideTheWidth) {
    const TextBlock made = block("one two three four five six seven eight nine ten", 60, 2);
    EXPECT_LE(QFontMetrics(QApplication::font()).horizontalAdvance(made.line(1)), 61);
}

TEST(TextBlock, HasNoEllipsisWhenAllFits) { EXPECT_EQ(block("one\rtwo", wide, 2).line(1), "two"); }

TEST(TextBlock, LaysOutALineHoweverLowTheCell) {
    EXPECT_EQ(TextBlock("one", QApplication::font(), {100, -3}).line_count(), 1);
}

TEST(TextBlock, ReadsWhatIsNoUtf8) {
    TextBlocks blocks(QApplication::font());
    EXPECT_EQ(blocks.block("caf\xe9", Weight::regular, {wide, 100}).line_count(), 1);
}

TEST(TextBlocks, KeepABoundedNumber) {
    TextBlocks blocks(QApplication::font());
    for (int number = 0; number < TextBlocks::most_kept + 500; ++number)
        blocks.block(std::to_string(number), Weight::regular, {100, 20});
    EXPECT_EQ(blocks.kept(), TextBlocks::most_kept);
}

TEST(TextBlocks, TellTextsApartByWidthHeightAndWeight) {
    TextBlocks blocks(QApplication::font());
    const QString long_text = "one two three four five six seven eight";
    EXPECT_EQ(blocks.block(long_text.toStdString(), Weight::regular, {wide, height_of(9)}).line_count(), 1);
    EXPECT_GT(blocks.block(long_text.toStdString(), Weight::regular, {50, height_of(9)}).line_count(), 3);
    EXPECT_EQ(blocks.block(long_text.toStdString(), Weight::regular, {50, height_of(2)}).line_count(), 2);
    blocks.block(long_text.toStdString(), Weight::bold, {50, height_of(2)});
    EXPECT_EQ(blocks.kept(), 4);
    blocks.block(long_text.toStdString(), Weight::bold, {50, height_of(2)});
    EXPECT_EQ(blocks.kept(), 4);
}

TEST(TextBlocks, StartAfreshWithAnotherFont) {
    TextBlocks blocks(QApplication::font());
    const int before = blocks.block("text", Weight::regular, {100, 20}).height();
    QFont larger = QApplication::font();
    larger.setPointSize(larger.pointSize() * 2);
    blocks.set_font(larger);
    EXPECT_GT(blocks.block("text", Weight::regular, {100, 20}).height(), before);
}

// The first and last column of the image with anything dark in them.
std::pair<int, int> dark_columns(const QImage& image) {
    int first = image.width(), last = -1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
    return {first, last};
}

std::pair<int, int> drawn(TextBlock::Side side) {
    QImage image(200, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(Qt::black);
    block("Word", 200, 1).draw(painter, QPoint(0, 0), side, Stroke::plain);
    return dark_columns(image);
}

TEST(TextBlock, IsDrawnAtTheSideAskedFor) {
    EXPECT_LT(drawn(TextBlock::Side::left).first, 5);
    EXPECT_GT(drawn(TextBlock::Side::right).second, 194);
    const auto [first, last] = drawn(TextBlock::Side::centre);
    EXPECT_NEAR(first, 199 - last, 4);
}

} // namespace
