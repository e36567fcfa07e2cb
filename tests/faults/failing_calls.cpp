#include "faults/failing_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdint>

// The definitions of the program come before those of the libraries, so that the toolkit and the database call
// them.

namespace {

std::string folder, failed;
int counted = 0, failing = 0;
faults::Fault fault = faults::Fault::once;
bool counts = false;

std::string path_of(int file) {
    std::array<char, PATH_MAX> path{};
    const ssize_t length = ::readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path.data(), path.size());
    return length > 0 ? std::string(path.data(), static_cast<std::size_t>(length)) : std::string();
}

// True when the call is to fail.
bool fails(const char* call, const std::string& path, int error) {
    if (!counts || !path.starts_with(folder))
        return false;
    const bool is_reached =
        fault == faults::Fault::once ? ++counted == failing : ++counted >= failing && error == ENOSPC;
    if (!is_reached)
        return false;
    if (failed.empty())
        failed = std::string(call) + " " + path;
    errno = error;
    return true;
}

bool writes(int flags) { return (flags & O_ACCMODE) != O_RDONLY || (flags & O_CREAT) != 0; }

template <typename Function>
Function next(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

int open_by(const char* name, const char* path, int flags, mode_t mode) {
    if (writes(flags) && fails("open", path, ENOSPC))
        return -1;
    return next<int (*)(const char*, int, mode_t)>(name)(path, flags, mode);
}

int open_at_by(const char* name, int base, const char* path, int flags, mode_t mode) {
    if (writes(flags) && fails("open", path, ENOSPC))
        return -1;
    return next<int (*)(int, const char*, int, mode_t)>(name)(base, path, flags, mode);
}

mode_t mode_in(int flags, va_list arguments) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(arguments, mode_t) : 0;
}

} // namespace

namespace faults {

void begin(const std::string& below, Fault kind, int number) {
    folder = below;
    fault = kind;
    failed.clear();
    counted = 0;
    failing = number;
    counts = true;
}

void end() { counts = false; }

std::string failed_call() { return failed; }

} // namespace faults

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = mode_in(flags, arguments);
    va_end(arguments);
    return open_by("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = mode_in(flags, arguments);
    va_end(arguments);
    return open_by("open64", path, flags, mode);
}

int openat(int base, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = mode_in(flags, arguments);
    va_end(arguments);
    return open_at_by("openat", base, path, flags, mode);
}

int openat64(int base, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = mode_in(flags, arguments);
    va_end(arguments);
    return open_at_by("openat64", base, path, flags, mode);
}

int mkstemp(char* pattern) {
    return fails("mkstemp", pattern, ENOSPC) ? -1 : next<int (*)(char*)>("mkstemp")(pattern);
}

int mkstemp64(char* pattern) {
    return fails("mkstemp", pattern, ENOSPC) ? -1 : next<int (*)(char*)>("mkstemp64")(pattern);
}

ssize_t write(int file, const void* bytes, size_t count) {
    if (counts && fails("write", path_of(file), ENOSPC))
        return -1;
    return next<ssize_t (*)(int, const void*, size_t)>("write")(file, bytes, count);
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t place) {
    if (counts && fails("pwrite", path_of(file), ENOSPC))
        return -1;
    return next<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite")(file, bytes, count, place);
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t place) {
    if (counts && fails("pwrite", path_of(file), ENOSPC))
        return -1;
    return next<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64")(file, bytes, count, place);
}

int fsync(int file) {
    return counts && fails("fsync", path_of(file), EIO) ? -1 : next<int (*)(int)>("fsync")(file);
}

int fdatasync(int file) {
    return counts && fails("fdatasync", path_of(file), EIO) ? -1 : next<int (*)(int)>("fdatasync")(file);
}

int ftruncate(int file, off_t size) noexcept {
    return counts && fails("ftruncate", path_of(file), EIO) ? -1
                                                            : next<int (*)(int, off_t)>("ftruncate")(file, size);
}

int ftruncate64(int file, off64_t size) noexcept {
    return counts && fails("ftruncate", path_of(file), EIO)
               ? -1
               : next<int (*)(int, off64_t)>("ftruncate64")(file, size);
}

int rename(const char* from, const char* to) noexcept {
    return fails("rename", to, EIO) ? -1 : next<int (*)(const char*, const char*)>("rename")(from, to);
}

int renameat2(int from_base, const char* from, int to_base, const char* to, unsigned flags) noexcept {
    return fails("rename", to, EIO) ? -1
                                    : next<int (*)(int, const char*, int, const char*, unsigned)>("renameat2")(
                                          from_base, from, to_base, to, flags);
}

int link(const char* from, const char* to) noexcept {
    return fails("link", to, EIO) ? -1 : next<int (*)(const char*, const char*)>("link")(from, to);
}

int linkat(int from_base, const char* from, int to_base, const char* to, int flags) noexcept {
    return fails("link", to, EIO) ? -1
                                  : next<int (*)(int, const char*, int, const char*, int)>("linkat")(
                                        from_base, from, to_base, to, flags);
}
}
