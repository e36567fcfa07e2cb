#pragma once

#include <unistd.h>

#include <exception>
#include <stdexcept>

namespace support {

// While it lives, a test that runs as root has the file rights of nobody, so that read-only files are.
class Unprivileged {
public:
    Unprivileged() : was_root_(::geteuid() == 0) {
        constexpr uid_t nobody = 65534;
        if (was_root_ && ::seteuid(nobody) != 0)
            throw std::runtime_error("The test can't give up the rights of root.");
    }
    ~Unprivileged() {
        if (was_root_ && ::seteuid(0) != 0)
            std::terminate();
    }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;

private:
    bool was_root_;
};

} // namespace support
