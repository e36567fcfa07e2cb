#include "ui/picture/text_blocks.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace picture {

namespace {

constexpr QChar ellipsis(0x2026);

QStringList paragraphs(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text.split(QLatin1Char('\n'));
}

// Lines are put to their side when they are drawn.
QTextOption from_the_left(QTextOption::WrapMode wrap) {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(wrap);
    return option;
}

} // namespace

TextBlock::TextBlock(const QString& text, const QFont& font, const QSize& room)
    : font_(font), width_(room.width()) {
    const QFontMetricsF metrics(font);
    ascent_ = static_cast<int>(std::ceil(metrics.ascent()));
    pitch_ = ascent_ + static_cast<int>(std::ceil(metrics.descent()));
    strike_offset_ = static_cast<int>(std::round(metrics.strikeOutPos()));
    strike_thickness_ = std::max(1, static_cast<int>(std::round(metrics.lineWidth())));

    const int most = std::max(1, room.height() / pitch_);
    for (const QString& paragraph : paragraphs(text)) {
        if (line_count() == most || !add_lines(paragraph, most)) {
            end_with_ellipsis();
            return;
        }
    }
}

// False when a part of the paragraph is left over.
bool TextBlock::add_lines(const QString& paragraph, int most) {
    QTextLayout layout(paragraph, font_);
    layout.setTextOption(from_the_left(QTextOption::WrapAtWordBoundaryOrAnywhere));

    bool complete = true;
    std::vector<QTextLine> added;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        if (line_count() + static_cast<int>(added.size()) == most) {
            complete = false;
            break;
        }
        line.setLineWidth(width_);
        line.setPosition(QPointF(0, ascent_ - line.ascent()));
        added.push_back(line);
    }
    layout.endLayout();
    for (const QTextLine& line : added)
        lines_.push_back({paragraph.mid(line.textStart(), line.textLength()).trimmed(), line.glyphRuns(),
                          line.naturalTextWidth()});
    return complete;
}

void TextBlock::end_with_ellipsis() {
    const QString cut = QFontMetricsF(font_).elidedText(lines_.back().text + ellipsis, Qt::ElideRight, width_);
    lines_.pop_back();
    QTextLayout layout(cut, font_);
    layout.setTextOption(from_the_left(QTextOption::NoWrap));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(width_);
    line.setPosition(QPointF(0, ascent_ - line.ascent()));
    layout.endLayout();
    lines_.push_back({cut, line.glyphRuns(), line.naturalTextWidth()});
}

void TextBlock::draw(QPainter& painter, QPoint top_left, Side side, Stroke stroke) const {
    // Glyphs laid out for the screen mean nothing to a recording or a printer, where text has to stay text.
    const bool on_screen = painter.paintEngine()->type() == QPaintEngine::Raster;
    int top = top_left.y();
    for (const Line& line : lines_) {
        const int room = std::max(0, width_ - static_cast<int>(std::ceil(line.width)));
        const int indent = side == Side::left ? 0 : side == Side::centre ? room / 2 : room;
        const QPoint begin(top_left.x() + indent, top);
        if (on_screen) {
            for (const QGlyphRun& glyphs : line.glyphs)
                painter.drawGlyphRun(begin, glyphs);
        } else {
            painter.setFont(font_);
            painter.drawText(QPoint(begin.x(), top + ascent_), line.text);
        }
        if (stroke == Stroke::struck_through)
            painter.fillRect(QRect(begin.x(), top + ascent_ - strike_offset_,
                                   static_cast<int>(std::ceil(line.width)), strike_thickness_),
                             painter.pen().color());
        top += pitch_;
    }
}

void TextBlocks::set_font(const QFont& font) {
    regular_ = bold_ = font;
    bold_.setBold(true);
    blank_width_ = QFontMetrics(font).horizontalAdvance(QLatin1Char(' '));
    blocks_.clear();
}

const TextBlock& TextBlocks::block(std::string_view text, Weight weight, const QSize& room) {
    const auto raw = QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
    if (const TextBlock* found = blocks_.object({raw, weight, room}))
        return *found;
    const Key key{QByteArray(raw.data(), raw.size()), weight, room};
    blocks_.insert(key, new TextBlock(QString::fromUtf8(raw), weight == Weight::bold ? bold_ : regular_, room));
    return *blocks_.object(key);
}

} // namespace picture
