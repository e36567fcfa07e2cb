#include "ui/main_window/jump_list.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QWheelEvent>

namespace ui {

namespace {

constexpr int enter = 13;

} // namespace

JumpList::JumpList(QWidget* parent) : QComboBox(parent) {
    connect(this, &QComboBox::activated, this, [this] {
        if (!is_moved_by_key_ && chosen)
            chosen();
    });
}

void JumpList::showPopup() {
    view()->setMinimumWidth(view()->sizeHintForColumn(0));
    QComboBox::showPopup();
}

void JumpList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (key_pressed)
            key_pressed(enter);
        return;
    }
    is_moved_by_key_ = true;
    QComboBox::keyPressEvent(event);
    is_moved_by_key_ = false;
}

void JumpList::wheelEvent(QWheelEvent* event) { event->ignore(); }

} // namespace ui
