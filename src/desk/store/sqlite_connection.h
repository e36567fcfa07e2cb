#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

namespace store {

// A prepared statement; the connection keeps those that nobody uses for the next use.
struct Prepared {
    sqlite3_stmt* statement = nullptr;
    bool in_use = false;
    ~Prepared();
};

class SqliteConnection;

// The rows of one run of a statement. Columns count from 0.
class Rows {
public:
    // The arguments are the statement's parameters in their order; absent optionals and nullptr are NULL.
    template <typename... Arguments>
    Rows(SqliteConnection& connection, std::shared_ptr<Prepared> prepared, const Arguments&... arguments)
        : connection_(connection), use_{std::move(prepared)} {
        bind_all(arguments...);
    }
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;

    template <typename... Arguments>
    void bind_all(const Arguments&... further) { // the next parameters
        (bind(further), ...);
    }
    bool step(); // to the next row; false after the last
    bool is_null(int column) const;
    std::int64_t number(int column) const; // 0 for NULL
    int small_number(int column) const;    // the nearest int
    bool flag(int column) const { return number(column) != 0; }
    std::string_view view(int column) const; // valid until the next step
    std::string text(int column) const { return std::string(view(column)); }

private:
    void bind_number(std::int64_t value);
    template <std::integral T>
    void bind(T value) {
        bind_number(static_cast<std::int64_t>(value));
    }
    void bind(std::string_view value);
    void bind(std::nullptr_t);
    template <typename T>
    void bind(const std::optional<T>& value) {
        value ? bind(*value) : bind(nullptr);
    }

    struct Use {
        std::shared_ptr<Prepared> prepared;
        ~Use();
    };

    SqliteConnection& connection_;
    Use use_;
    int next_parameter_ = 1;
};

// A connection to a database file. Everything that goes wrong is a values::Failure with 440 and a sentence that
// names the file.
class SqliteConnection {
public:
    enum class Mode { read_write, read_only_snapshot };

    // The file must exist. A snapshot is for a file that nobody writes and beside which nothing can be written.
    SqliteConnection(const std::string& path, Mode mode);
    ~SqliteConnection();
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;

    const std::string& path() const { return path_; }
    bool is_read_only() const;
    bool in_transaction() const;
    // Whether the file that is open no longer is the one at the path: it was moved, deleted or replaced.
    bool has_moved() const;

    void execute(const std::string& script); // statements without parameters and results
    template <typename... Arguments>
    void run(std::string_view sql, const Arguments&... arguments) {
        query(sql, arguments...).step();
    }
    template <typename... Arguments>
    Rows query(std::string_view sql, const Arguments&... arguments) {
        return Rows(*this, prepared(sql), arguments...);
    }
    std::int64_t changed_rows() const; // by the last write
    [[noreturn]] void fail(int result_code) const;
    // Makes the database that this one holds the content of another, which is empty. After each piece of the work
    // it tells how much of it is done, in any unit; false ends it there. True when all of it was copied.
    using Progress = std::function<bool(int done, int all)>;
    bool copy_to(SqliteConnection& target, const Progress& progress);

private:
    std::shared_ptr<Prepared> prepared(std::string_view sql);

    std::string path_;
    struct Wait;
    std::unique_ptr<Wait> wait_;
    struct Closer {
        void operator()(sqlite3* database) const;
    };
    std::unique_ptr<sqlite3, Closer> database_;
    std::unordered_map<std::string, std::shared_ptr<Prepared>> statements_;
};

} // namespace store
