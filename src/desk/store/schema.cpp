#include "desk/store/schema.h"

#include "core/values/failure.h"
#include "desk/store/sql.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace store {

namespace {

values::Failure failure(const std::string& sentence) {
    return values::Failure(values::FailureNumber::automation, sentence);
}

int header_number(SqliteConnection& connection, std::string_view sql) {
    Rows rows = connection.query(sql);
    return rows.step() ? rows.small_number(0) : 0;
}

void make_empty_file(const std::string& path) {
    // The engine gives the files that it lays beside it the same rights.
    const int file = ::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    if (file < 0 && errno == EEXIST)
        throw failure("There is a file \"" + path + "\" already.");
    if (file < 0)
        throw failure("The database \"" + path + "\" can't be made. Its folder may be missing or closed to you.");
    ::close(file);
}

std::unique_ptr<SqliteConnection> connect(const std::string& path, SqliteConnection::Mode mode) {
    auto connection = std::make_unique<SqliteConnection>(path, mode);
    connection->execute(std::string(sql::set_up));
    return connection;
}

// A database whose folder can't be written is refused by the engine, which wants to lay its log beside it. With
// no log there, nobody has the file open, and it can be read as it is.
std::unique_ptr<SqliteConnection> connect_for_reading_too(const std::string& path) {
    try {
        auto connection = connect(path, SqliteConnection::Mode::read_write);
        header_number(*connection, sql::schema_version);
        return connection;
    } catch (const values::Failure&) {
        std::error_code unknown;
        const bool can_be_read = ::access(path.c_str(), R_OK) == 0;
        const bool has_log = std::filesystem::exists(path + "-wal", unknown);
        const std::string folder = std::filesystem::path(path).parent_path().string();
        const bool can_hold_log = ::access(folder.empty() ? "." : folder.c_str(), W_OK) == 0;
        if (!can_be_read || has_log || can_hold_log)
            throw;
    }
    return connect(path, SqliteConnection::Mode::read_only_snapshot);
}

void require_file(const std::string& path) {
    std::error_code error;
    const auto kind = std::filesystem::status(path, error).type();
    if (kind == std::filesystem::file_type::not_found)
        throw failure("There is no database \"" + path + "\".");
    if (kind == std::filesystem::file_type::directory)
        throw failure("\"" + path + "\" is a folder, not a database.");
    if (kind != std::filesystem::file_type::regular)
        throw failure("The database \"" + path + "\" can't be opened.");
}

} // namespace

const std::vector<Migration>& migrations() {
    static const std::vector<Migration> all = {{1, sql::create_tables()},
                                               {2, sql::change_to_version_2()},
                                               {3, sql::change_to_version_3()},
                                               {4, sql::change_to_version_4()}};
    return all;
}

void migrate(SqliteConnection& connection, const std::vector<Migration>& migrations) {
    if (header_number(connection, sql::schema_version) == migrations.back().to)
        return;
    connection.execute(std::string(sql::begin));
    try {
        // Only now, as another process may have done it meanwhile.
        const int version = header_number(connection, sql::schema_version);
        for (const Migration& migration : migrations) {
            if (migration.to <= version)
                continue;
            connection.execute(std::string(migration.script));
            connection.execute(sql::set_schema_version(migration.to));
        }
        connection.execute(sql::set_application_id(application_id));
        connection.execute(std::string(sql::commit));
    } catch (...) {
        if (connection.in_transaction())
            connection.execute(std::string(sql::roll_back));
        throw;
    }
}

std::unique_ptr<SqliteConnection> create_database(const std::string& path) {
    make_empty_file(path);
    try {
        auto connection = connect(path, SqliteConnection::Mode::read_write);
        connection->run(sql::write_ahead);
        migrate(*connection, migrations());
        return connection;
    } catch (...) {
        std::error_code ignored;
        for (const char* ending : {"", "-wal", "-shm", "-journal"})
            std::filesystem::remove(path + ending, ignored);
        throw;
    }
}

std::unique_ptr<SqliteConnection> open_database(const std::string& path) {
    require_file(path);
    auto connection = connect_for_reading_too(path);
    if (header_number(*connection, sql::application_id) != application_id)
        throw failure("The database \"" + path + "\" isn't a contact database.");
    if (header_number(*connection, sql::schema_version) > migrations().back().to)
        throw failure("The database \"" + path + "\" comes from a newer version of the program.");
    migrate(*connection, migrations());
    for (const std::string_view table : sql::tables())
        connection->run(sql::probe(table));
    if (!connection->is_read_only())
        connection->run(sql::write_ahead);
    return connection;
}

} // namespace store
