#pragma once

#include <QComboBox>

#include <cstdint>
#include <optional>

namespace windows {

// A choice of colours, none and any other one among them. Colours are numbers with blue, green and red from the
// high byte down.
class ColourBox : public QComboBox {
    Q_OBJECT

public:
    explicit ColourBox(QWidget* parent = nullptr);

    void set_colour(std::optional<std::uint32_t> colour);
    std::optional<std::uint32_t> colour() const { return colour_; }

private:
    void take_choice(int index);
    void ask();
    int place_of(std::uint32_t colour); // adds the colour if need be

    std::optional<std::uint32_t> colour_;
};

} // namespace windows
