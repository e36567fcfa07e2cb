#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <random>
#include <string>

namespace walk {

// The mouse and the keyboard of a user who does anything at all: real events, which the windows get the way the
// platform delivers them. The same seed before the same windows does the same.
class RandomHand {
public:
    explicit RandomHand(unsigned seed) : random_(seed) {}

    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); } // 0 to count - 1
    bool in_so_many_of_100(int chance) { return pick(100) < chance; }
    QPoint place_in(const QRect& rect);
    Qt::KeyboardModifiers some_modifiers();

    // Places are those of the widget.
    void press(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers held = {});
    void release(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers held = {});
    void let_go(); // of every button that is still down, where the mouse was last
    void move(QWidget& widget, QPoint place);
    void click(QWidget& widget, QPoint place);
    void double_click(QWidget& widget, QPoint place);
    void wheel(QWidget& widget, QPoint place);
    // To whatever has the keyboard.
    void key(Qt::Key key, Qt::KeyboardModifiers held = {});
    void some_key();
    void some_text();

    // One act in the window: on any part of it, or with the keys.
    void act_in(QWidget& window);
    // One click on the widget or a part of it.
    void click_some_part(QWidget& widget);
    // One act on a dialog, a box, an open menu or list. The longer it has been open, the likelier one closes it.
    void act_in_dialog(QWidget& dialog);

    long events() const { return events_; } // that were sent so far
    std::function<void(const std::string& act)> tell = [](const std::string&) {};

private:
    void type(const QString& text);
    void click_some_button(QWidget& window);
    void act_in_file_dialog(QWidget& dialog);

    std::mt19937 random_;
    QPointer<QWidget> pressed_; // on which a button is down
    QPoint place_;
    Qt::MouseButton down_ = Qt::NoButton;
    long events_ = 0;
};

// The menu, list or dialog that takes the input now; none when the plain window does.
QWidget* open_dialog();

} // namespace walk
