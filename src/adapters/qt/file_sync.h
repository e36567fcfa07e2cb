#pragma once

class QFile;

namespace qt {

// Has the disk take what was written to the open file. False when it refuses. Each platform has its own source
// file for this.
bool sync_to_disk(const QFile& file);

} // namespace qt
