#include "adapters/bus/application_input_shield.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWindow>

namespace bus {
namespace {

// Menus, tool tips and the like are closed by the program.
bool is_closed_by_user(QObject* receiver) {
    const auto* window = qobject_cast<QWindow*>(receiver);
    return window && (window->type() == Qt::Window || window->type() == Qt::Dialog);
}

} // namespace

InputShield::InputShield() { QCoreApplication::instance()->installEventFilter(this); }

InputShield::~InputShield() { QCoreApplication::instance()->removeEventFilter(this); }

bool InputShield::eventFilter(QObject* receiver, QEvent* event) {
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
        if (!is_closed_by_user(receiver))
            return false;
        event->ignore();
        return true;
    default:
        return false;
    }
}

} // namespace bus
