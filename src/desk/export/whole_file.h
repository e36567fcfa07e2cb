#pragma once

#include <string>
#include <string_view>

namespace exporting {

// Writes a file by way of another beside it, so that there is the old file, or none, until the new one lies whole
// on the disk. Fails with 440 and a sentence for the user; then all is as it was.
void write_whole_file(const std::string& path, std::string_view bytes);

} // namespace exporting
