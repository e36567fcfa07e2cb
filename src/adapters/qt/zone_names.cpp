#include "adapters/qt/zone_names.h"

#include <QTimeZone>

namespace qt {

std::string zone_name_from_windows(const std::string& name) {
    return QTimeZone::windowsIdToDefaultIanaId(QByteArray::fromStdString(name)).toStdString();
}

} // namespace qt
