#pragma once

#include <QByteArray>
#include <QCache>
#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPainter>
#include <QSize>
#include <QString>

#include <string_view>
#include <vector>

namespace picture {

enum class Weight { regular, bold };
enum class Stroke { plain, struck_through };

// A text broken into the lines of a cell, ready to be drawn any number of times.
class TextBlock {
public:
    enum class Side { left, centre, right };

    // Lays out as many lines as the room is high for, at least one. What doesn't fit is cut, the last line then
    // ending in an ellipsis. A carriage return or a line feed begins a new line, both together only one.
    TextBlock(const QString& text, const QFont& font, const QSize& room);

    int height() const { return pitch_ * static_cast<int>(lines_.size()); }
    int line_count() const { return static_cast<int>(lines_.size()); }
    const QString& line(int index) const { return lines_[static_cast<std::size_t>(index)].text; }
    // Draws with the painter's pen, at a side of the width that it was laid out for.
    void draw(QPainter& painter, QPoint top_left, Side side, Stroke stroke) const;

private:
    struct Line {
        QString text;
        QList<QGlyphRun> glyphs; // on a baseline at `ascent_`
        qreal width = 0;
    };
    bool add_lines(const QString& paragraph, int most);
    void end_with_ellipsis();

    QFont font_;
    int width_;
    int ascent_ = 0, pitch_ = 0, strike_offset_ = 0, strike_thickness_ = 1; // pixels
    std::vector<Line> lines_;
};

// The blocks that were drawn last, bounded in number.
class TextBlocks {
public:
    explicit TextBlocks(const QFont& font) { set_font(font); }
    void set_font(const QFont& font);

    // The block of a text in UTF-8. It stays good until the next call.
    const TextBlock& block(std::string_view text, Weight weight, const QSize& room);
    qsizetype kept() const { return blocks_.size(); }
    int blank_width() const { return blank_width_; } // pixels

    static constexpr int most_kept = 2048;

private:
    struct Key {
        QByteArray text;
        Weight weight;
        QSize room;
        bool operator==(const Key&) const = default;
        friend std::size_t qHash(const Key& key, std::size_t seed = 0) {
            return qHashMulti(seed, key.text, key.weight == Weight::bold, key.room.width(), key.room.height());
        }
    };

    QFont regular_, bold_;
    int blank_width_ = 0;
    QCache<Key, TextBlock> blocks_{most_kept};
};

} // namespace picture
