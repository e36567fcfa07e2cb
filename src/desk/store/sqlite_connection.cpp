#include "desk/store/sqlite_connection.h"

#include "core/values/failure.h"

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <thread>

namespace store {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 4s;

// SQLite's own waiting sleeps longer and longer and so lets a busy writer starve the others; this one asks again
// every few milliseconds.
struct Waiting {
    std::chrono::steady_clock::time_point since;

    static int wait(void* self, int attempt) {
        auto& waiting = *static_cast<Waiting*>(self);
        const auto now = std::chrono::steady_clock::now();
        if (attempt == 0)
            waiting.since = now;
        if (now - waiting.since >= patience)
            return 0;
        std::this_thread::sleep_for(attempt < 20 ? 500us : 3ms);
        return 1;
    }
};

// A path as a URI, with which alone SQLite can be told that nobody writes the file.
std::string snapshot_uri(const std::string& path) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string uri = "file:";
    for (const char byte : path) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '%' || byte == '?' || byte == '#')
            (uri += '%').append({digits[code >> 4], digits[code & 15]});
        else
            uri += byte;
    }
    return uri + "?immutable=1";
}

std::string sentence_for(int result_code, const std::string& path, const char* message) {
    const std::string database = "The database \"" + path + "\" ";
    switch (result_code) {
    case SQLITE_CONSTRAINT_FOREIGNKEY:
        return "The record names a contact, a user or a group that isn't in the database.";
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_UNIQUE:
        return "A record with this id is in the database already.";
    }
    switch (result_code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return database + "is locked by another program. Please try again.";
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return database + "can't be written: it is open for reading only.";
    case SQLITE_CORRUPT:
        return database + "is damaged.";
    case SQLITE_NOTADB:
        return database + "isn't a contact database.";
    case SQLITE_CANTOPEN:
        return database + "can't be opened. You may lack the permission.";
    case SQLITE_FULL:
        return database + "can't be written: the disk is full.";
    case SQLITE_ERROR: // the statements are right, so the tables aren't
        return database + "is damaged: " + message + ".";
    default:
        return database + "can't be used: " + message + ".";
    }
}

} // namespace

Prepared::~Prepared() { sqlite3_finalize(statement); }

Rows::Use::~Use() {
    sqlite3_reset(prepared->statement);
    sqlite3_clear_bindings(prepared->statement);
    prepared->in_use = false;
}

bool Rows::step() {
    const int result = sqlite3_step(use_.prepared->statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        connection_.fail(result);
    return result == SQLITE_ROW;
}

bool Rows::is_null(int column) const {
    return sqlite3_column_type(use_.prepared->statement, column) == SQLITE_NULL;
}

std::int64_t Rows::number(int column) const { return sqlite3_column_int64(use_.prepared->statement, column); }

int Rows::small_number(int column) const {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(number(column), Limits::min(), Limits::max()));
}

std::string_view Rows::view(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(use_.prepared->statement, column));
    const auto length = static_cast<std::size_t>(sqlite3_column_bytes(use_.prepared->statement, column));
    return text ? std::string_view(text, length) : std::string_view();
}

void Rows::bind_number(std::int64_t value) {
    if (const int result = sqlite3_bind_int64(use_.prepared->statement, next_parameter_++, value))
        connection_.fail(result);
}

void Rows::bind(std::string_view value) {
    const char* text = value.data() ? value.data() : "";
    if (const int result = sqlite3_bind_text64(use_.prepared->statement, next_parameter_++, text, value.size(),
                                               SQLITE_TRANSIENT, SQLITE_UTF8))
        connection_.fail(result);
}

void Rows::bind(std::nullptr_t) {
    if (const int result = sqlite3_bind_null(use_.prepared->statement, next_parameter_++))
        connection_.fail(result);
}

struct SqliteConnection::Wait : Waiting {};

SqliteConnection::SqliteConnection(const std::string& path, Mode mode)
    : path_(path), wait_(std::make_unique<Wait>()) {
    const std::string name = mode == Mode::read_write ? path : snapshot_uri(path);
    const int flags = mode == Mode::read_write ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(name.c_str(), &opened, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    database_.reset(opened);
    if (result != SQLITE_OK)
        fail(result);
    sqlite3_extended_result_codes(opened, 1);
    sqlite3_busy_handler(opened, Waiting::wait, static_cast<Waiting*>(wait_.get()));
    // The file may come from anywhere: nothing in it may run code or change the tables unseen.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
}

SqliteConnection::~SqliteConnection() = default;

void SqliteConnection::Closer::operator()(sqlite3* database) const { sqlite3_close_v2(database); }

bool SqliteConnection::is_read_only() const { return sqlite3_db_readonly(database_.get(), "main") == 1; }

bool SqliteConnection::in_transaction() const { return sqlite3_get_autocommit(database_.get()) == 0; }

bool SqliteConnection::has_moved() const {
    int moved = 0;
    sqlite3_file_control(database_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

bool SqliteConnection::copy_to(SqliteConnection& target, const Progress& progress) {
    constexpr int pages_at_once = 1024;
    const auto finish = [](sqlite3_backup* backup) { sqlite3_backup_finish(backup); };
    const std::unique_ptr<sqlite3_backup, decltype(finish)> backup(
        sqlite3_backup_init(target.database_.get(), "main", database_.get(), "main"), finish);
    if (!backup)
        target.fail(sqlite3_errcode(target.database_.get()));
    while (true) {
        const int result = sqlite3_backup_step(backup.get(), pages_at_once);
        if (result != SQLITE_OK && result != SQLITE_DONE)
            target.fail(result);
        const int pages = sqlite3_backup_pagecount(backup.get());
        if (!progress(pages - sqlite3_backup_remaining(backup.get()), pages))
            return false;
        if (result == SQLITE_DONE)
            return true;
    }
}

std::int64_t SqliteConnection::changed_rows() const { return sqlite3_changes64(database_.get()); }

void SqliteConnection::execute(const std::string& script) {
    if (const int result = sqlite3_exec(database_.get(), script.c_str(), nullptr, nullptr, nullptr))
        fail(result);
}

std::shared_ptr<Prepared> SqliteConnection::prepared(std::string_view sql) {
    std::shared_ptr<Prepared>& kept = statements_[std::string(sql)];
    if (kept && !kept->in_use) {
        kept->in_use = true;
        return kept;
    }
    auto fresh = std::make_shared<Prepared>();
    if (const int result = sqlite3_prepare_v3(database_.get(), sql.data(), static_cast<int>(sql.size()),
                                              SQLITE_PREPARE_PERSISTENT, &fresh->statement, nullptr))
        fail(result);
    fresh->in_use = true;
    if (!kept)
        kept = fresh;
    return fresh;
}

void SqliteConnection::fail(int result_code) const {
    const char* message = database_ ? sqlite3_errmsg(database_.get()) : sqlite3_errstr(result_code);
    throw values::Failure(values::FailureNumber::automation, sentence_for(result_code, path_, message));
}

} // namespace store
