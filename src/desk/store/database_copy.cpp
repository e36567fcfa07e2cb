#include "desk/store/database_copy.h"

#include "core/values/failure.h"
#include "desk/store/sql.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>

namespace store {

namespace {

namespace fs = std::filesystem;

values::Failure failure(const std::string& sentence) {
    return values::Failure(values::FailureNumber::automation, sentence);
}

// Open for writing from its beginning, for its owner alone, with the name that is given back in its pattern.
class NewFile {
public:
    explicit NewFile(const std::string& beside) : path_(beside + ".XXXXXX"), descriptor_(::mkstemp(path_.data())) {
        if (descriptor_ < 0)
            throw failure("The copy \"" + beside +
                          "\" can't be made. Its folder may be missing or closed to you.");
    }
    ~NewFile() {
        ::close(descriptor_);
        std::error_code gone; // it has its own name by then
        fs::remove(path_, gone);
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    const std::string& path() const { return path_; }
    bool sync() const { return ::fsync(descriptor_) == 0; }

private:
    std::string path_;
    int descriptor_;
};

// The log of a database that is gone would be taken for that of the copy.
void move_into_place(const NewFile& file, const std::string& path) {
    std::error_code error;
    for (const char* ending : {"-wal", "-shm", "-journal"})
        if (fs::remove(path + ending, error); error)
            throw failure("The copy \"" + path + "\" can't be made: " + error.message() + ".");
    if (fs::rename(file.path(), path, error); error)
        throw failure("The copy \"" + path + "\" can't be made: " + error.message() + ".");
}

} // namespace

bool copy_database(SqliteConnection& source, const std::string& path, const SqliteConnection::Progress& progress) {
    std::error_code unknown;
    if (!source.has_moved() && fs::equivalent(source.path(), path, unknown))
        throw failure("\"" + path + "\" is the database itself. A copy needs another name.");
    const NewFile file(path);
    {
        SqliteConnection target(file.path(), SqliteConnection::Mode::read_write);
        target.run(sql::without_journal);
        if (!source.copy_to(target, progress))
            return false;
    }
    if (!file.sync())
        throw failure("The copy \"" + path + "\" can't be written to the disk.");
    move_into_place(file, path);
    return true;
}

} // namespace store
