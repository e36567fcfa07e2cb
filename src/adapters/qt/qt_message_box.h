#pragma once

#include "core/host/message_box.h"

#include <memory>

namespace qt {

// Boxes over the window that is active when they open. Texts are shown as they are, never as markup.
std::unique_ptr<host::MessageBox> make_message_box();

} // namespace qt
