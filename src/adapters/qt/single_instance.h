#pragma once

#include <QLockFile>
#include <QString>

namespace qt {

// One instance of a program for each user and display. The mark is a lock file in the user's runtime folder; the
// mark of a process that has died doesn't count.
class SingleInstance {
public:
    explicit SingleInstance(const QString& program);
    SingleInstance(const QString& program, const QString& folder, const QString& display);

    // True when another process holds the mark. Otherwise this one holds it from now until its end. A folder
    // that can't be written means false.
    bool already_running();

private:
    QLockFile lock_;
    bool held_ = false;
};

} // namespace qt
