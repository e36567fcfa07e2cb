#include "adapters/desk/application_input_shield.h"

#include <QCoreApplication>
#include <QEvent>

namespace desk {

InputShield::InputShield() { QCoreApplication::instance()->installEventFilter(this); }

InputShield::~InputShield() { QCoreApplication::instance()->removeEventFilter(this); }

bool InputShield::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    case QEvent::Close:
        if (event->spontaneous()) {
            event->ignore();
            return true;
        }
        return false;
    default:
        return false;
    }
}

} // namespace desk
