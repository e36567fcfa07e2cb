#pragma once

class QFileDevice;

namespace qt {

// Has the disk take what was written to the open file. False when it refuses. Each platform has its own source
// file for this.
bool sync_to_disk(const QFileDevice& file);

} // namespace qt
