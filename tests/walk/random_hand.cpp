#include "walk/random_hand.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace walk {

namespace {

constexpr int patience = 25;      // acts in one dialog before the hand wants to leave it
constexpr int last_patience = 80; // and before it is closed by its frame

constexpr auto acts_property = "walk_acts";

QWindow* window_of(const QWidget& widget) { return widget.window()->windowHandle(); }

QPoint in_window(const QWidget& widget, QPoint place) { return widget.mapTo(widget.window(), place); }

// What the keyboard's events go to.
QWindow* keyboard_window() {
    if (const QWidget* popup = QApplication::activePopupWidget())
        return popup->windowHandle();
    if (const QWidget* window = QApplication::activeWindow())
        return window->windowHandle();
    return nullptr;
}

std::string name_of(const QWidget& widget) {
    return std::string(widget.metaObject()->className()) + " " + widget.objectName().toStdString();
}

std::string text_of(QPoint place) { return std::to_string(place.x()) + "," + std::to_string(place.y()); }

template <typename Part>
QList<Part*> shown_parts(const QWidget& window) {
    QList<Part*> parts;
    for (Part* part : window.findChildren<Part*>())
        if (part->isVisible() && part->isEnabled() && part->window() == window.window())
            parts << part;
    return parts;
}

} // namespace

QWidget* open_dialog() {
    QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup : QApplication::activeModalWidget();
}

QPoint RandomHand::place_in(const QRect& rect) {
    return {rect.left() + pick(std::max(rect.width(), 1)), rect.top() + pick(std::max(rect.height(), 1))};
}

Qt::KeyboardModifiers RandomHand::some_modifiers() {
    static constexpr Qt::KeyboardModifiers choices[] = {
        Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
        Qt::ShiftModifier, Qt::ControlModifier, Qt::ControlModifier | Qt::ShiftModifier};
    return choices[pick(static_cast<int>(std::size(choices)))];
}

void RandomHand::press(QWidget& widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers held) {
    let_go();
    tell("press " + std::to_string(button) + " " + name_of(widget) + " " + text_of(place));
    ++events_;
    QWindow* window = window_of(widget);
    if (!window)
        return;
    pressed_ = &widget;
    place_ = place;
    down_ = button;
    QTest::mousePress(window, button, held, in_window(widget, place));
}

void RandomHand::release(QWidget& widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers held) {
    if (down_ != button)
        return; // let go meanwhile
    tell("release " + std::to_string(button) + " " + text_of(place));
    ++events_;
    down_ = Qt::NoButton;
    if (QWindow* window = window_of(widget))
        QTest::mouseRelease(window, button, held, in_window(widget, place));
}

void RandomHand::let_go() {
    if (down_ == Qt::NoButton)
        return;
    if (pressed_)
        release(*pressed_, place_, down_);
    down_ = Qt::NoButton;
}

void RandomHand::move(QWidget& widget, QPoint place) {
    ++events_;
    if (QWindow* window = window_of(widget))
        QTest::mouseMove(window, in_window(widget, place));
}

void RandomHand::click(QWidget& widget, QPoint place) {
    const QPointer<QWidget> clicked(&widget);
    press(widget, place);
    if (clicked)
        release(widget, place);
}

void RandomHand::double_click(QWidget& widget, QPoint place) {
    let_go();
    tell("double click " + name_of(widget) + " " + text_of(place));
    events_ += 4;
    if (QWindow* window = window_of(widget))
        QTest::mouseDClick(window, Qt::LeftButton, {}, in_window(widget, place));
}

void RandomHand::wheel(QWidget& widget, QPoint place) {
    ++events_;
    QWindow* window = window_of(widget);
    if (!window)
        return;
    const QPoint at = in_window(widget, place);
    const int turn = in_so_many_of_100(50) ? 120 : -120;
    const QPoint angle = in_so_many_of_100(80) ? QPoint(0, turn) : QPoint(turn, 0);
    QWheelEvent event(at, window->mapToGlobal(at), {}, angle, Qt::NoButton, some_modifiers(), Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(window, &event);
}

void RandomHand::key(Qt::Key key, Qt::KeyboardModifiers held) {
    tell("key " + QKeySequence(static_cast<int>(key) | static_cast<int>(held)).toString().toStdString());
    ++events_;
    if (QWindow* window = keyboard_window())
        QTest::keyClick(window, key, held);
}

void RandomHand::some_key() {
    static constexpr Qt::Key keys[] = {
        Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Up,   Qt::Key_Down,   Qt::Key_Home,  Qt::Key_End,
        Qt::Key_PageUp, Qt::Key_Tab,       Qt::Key_Tab,  Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape,
        Qt::Key_Space,  Qt::Key_PageDown,  Qt::Key_Menu, Qt::Key_Delete, Qt::Key_F2,    Qt::Key_F4,
        Qt::Key_F10,    Qt::Key_Backspace, Qt::Key_A,    Qt::Key_Z,      Qt::Key_F,     Qt::Key_O,
        Qt::Key_H,      Qt::Key_1,         Qt::Key_Plus};
    const Qt::Key chosen = keys[pick(static_cast<int>(std::size(keys)))];
    const bool with_alt = in_so_many_of_100(4);
    key(chosen, with_alt && chosen != Qt::Key_F4 ? Qt::AltModifier : some_modifiers());
}

void RandomHand::some_text() {
    static const QString texts[] = {"",
                                    "Lunch",
                                    "0",
                                    "7",
                                    "-1",
                                    "15",
                                    "99999999",
                                    "1/1/24",
                                    "12/31/99",
                                    "2/30",
                                    "9:30 AM",
                                    "25:61",
                                    "'; --",
                                    "[x]=\"%",
                                    "=1+1",
                                    "<b>a&",
                                    "\\..\\",
                                    "   ",
                                    QString::fromUtf8("\u00fcber \u6f22 \U0001F600"),
                                    QString(300, 'x')};
    if (in_so_many_of_100(40))
        key(Qt::Key_A, Qt::ControlModifier);
    type(texts[pick(static_cast<int>(std::size(texts)))]);
}

// Letters beyond the keyboard come as an input method gives them.
void RandomHand::type(const QString& text) {
    tell("type " + text.left(20).toStdString());
    const auto is_plain = [](QChar letter) { return letter.unicode() < 128; };
    if (std::all_of(text.begin(), text.end(), is_plain) && text.size() < 20) {
        for (const QChar letter : text) {
            ++events_;
            if (QWindow* window = keyboard_window())
                QTest::keyClick(window, letter.toLatin1());
        }
    } else if (QObject* receiver = QGuiApplication::focusObject()) {
        ++events_;
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(receiver, &event);
    }
}

void RandomHand::click_some_part(QWidget& widget) {
    const QList<QWidget*> parts = shown_parts<QWidget>(widget);
    QWidget& part = parts.isEmpty() ? widget : *parts[pick(static_cast<int>(parts.size()))];
    const QRect seen = part.visibleRegion().boundingRect();
    if (seen.isEmpty())
        return;
    if (in_so_many_of_100(90))
        click(part, place_in(seen));
    else
        double_click(part, place_in(seen));
}

void RandomHand::click_some_button(QWidget& window) {
    const auto buttons = shown_parts<QAbstractButton>(window);
    if (!buttons.isEmpty()) {
        QAbstractButton& button = *buttons[pick(static_cast<int>(buttons.size()))];
        click(button, button.rect().center());
    }
}

void RandomHand::act_in(QWidget& window) {
    const int act = pick(100);
    if (act < 55)
        click_some_part(window);
    else if (act < 70)
        some_text();
    else if (act < 90)
        some_key();
    else
        wheel(window, place_in(window.rect()));
}

// Away from the list of files, which can rename and delete.
void RandomHand::act_in_file_dialog(QWidget& dialog) {
    const auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    const int act = pick(3);
    if (act == 0 && name && QApplication::focusWidget() == name) {
        key(Qt::Key_A, Qt::ControlModifier);
        type("file" + QString::number(pick(1000)));
    } else if (act == 1) {
        key(Qt::Key_Return);
    } else {
        key(Qt::Key_Escape);
    }
}

void RandomHand::act_in_dialog(QWidget& dialog) {
    let_go();
    const int acts = dialog.property(acts_property).toInt() + 1;
    dialog.setProperty(acts_property, acts);
    if (acts > last_patience) {
        tell("close " + name_of(dialog));
        dialog.setProperty(acts_property, 0); // a menu is opened again
        dialog.close();
    } else if (qobject_cast<QFileDialog*>(&dialog)) {
        act_in_file_dialog(dialog);
    } else if (pick(patience) >= acts) {
        act_in(dialog);
    } else if (in_so_many_of_100(70)) {
        click_some_button(dialog);
    } else {
        key(in_so_many_of_100(50) ? Qt::Key_Escape : Qt::Key_Return);
    }
}

} // namespace walk
