#include "desk/store/sqlite_store.h"

#include "core/act/edit_conflict.h"
#include "core/values/failure.h"
#include "core/values/ids.h"
#include "desk/store/contact_fields.h"
#include "desk/store/schema.h"
#include "desk/store/sql.h"

#include <algorithm>
#include <utility>

namespace store {

namespace {

// Ids of our own making: a letter for the kind of record and 11 digits. The letter stands nowhere else, so in ids
// joined to one text no id can be found across the border of two others.
constexpr std::size_t digits_in_id = values::id_length - 1;

std::string make_id(char letter, std::int64_t number) {
    const std::string digits = std::to_string(number);
    return letter + std::string(digits_in_id - digits.size(), '0') + digits;
}

// The number of an id of our own making, 0 for any other.
std::int64_t number_of(const std::string& id, char letter) {
    if (id.front() != letter ||
        !std::all_of(id.begin() + 1, id.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return 0;
    return std::stoll(id.substr(1));
}

void require_valid_id(const std::string& id) {
    const bool plain = std::all_of(id.begin(), id.end(), [](char c) { return c >= ' ' && c <= '~'; });
    if (id.size() != values::id_length || !plain || id.find_first_not_of(' ') == id.npos)
        throw values::Failure(values::FailureNumber::automation, "The id \"" + id + "\" hasn't 12 characters.");
}

} // namespace

std::unique_ptr<Store> Store::create(const std::string& path, Clock clock) {
    return std::make_unique<SqliteStore>(create_database(path), std::move(clock));
}

std::unique_ptr<Store> Store::open(const std::string& path, Clock clock) {
    return std::make_unique<SqliteStore>(open_database(path), std::move(clock));
}

SqliteStore::SqliteStore(std::unique_ptr<Connection> connection, Clock clock)
    : connection_(std::move(connection)), clock_(std::move(clock)), reading_(make_activity_reading(*connection_)),
      toolbar_commands_(make_toolbar_commands(*connection_, *this)) {}

SqliteStore::~SqliteStore() = default;

const std::string& SqliteStore::path() const { return connection_->path(); }

bool SqliteStore::is_read_only() const { return connection_->is_read_only(); }

std::int64_t SqliteStore::revision() {
    if (const auto used = counters_.find("revision"); used != counters_.end())
        return used->second;
    Rows version = connection_->query(sql::data_version);
    version.step();
    if (!known_revision_ || version.number(0) != known_data_version_) {
        known_data_version_ = version.number(0);
        Rows row = connection_->query(sql::counter, "revision");
        row.step();
        known_revision_ = row.number(0);
    }
    return *known_revision_;
}

std::int64_t& SqliteStore::counter(const std::string& name) {
    // A full disk makes the engine roll everything back by itself; what came after would stand alone.
    if (!connection_->in_transaction())
        throw values::Failure(values::FailureNumber::automation,
                              "The database \"" + path() + "\" gave the changes up that belong together.");
    const auto [place, is_new] = counters_.try_emplace(name, 0);
    if (is_new) {
        Rows row = connection_->query(sql::counter, name);
        row.step();
        place->second = row.number(0);
    }
    return place->second;
}

std::string SqliteStore::id_for(const std::string& own, const std::string& counter_name, char letter) {
    if (own.empty())
        return make_id(letter, ++counter(counter_name));
    const std::string id = values::whole_id(own);
    require_valid_id(id);
    std::int64_t& last = counter(counter_name);
    last = std::max(last, number_of(id, letter));
    return id;
}

void SqliteStore::begin_reading() {
    if (connection_->in_transaction())
        return;
    connection_->run(sql::begin_reading);
    is_reading_ = true;
}

void SqliteStore::end_reading() {
    if (std::exchange(is_reading_, false))
        connection_->run(sql::commit);
}

void SqliteStore::begin() {
    end_reading();
    connection_->run(open_blocks_ == 0 ? sql::begin : sql::begin_inner);
    ++open_blocks_;
}

void SqliteStore::commit() {
    try {
        if (open_blocks_ > 1) {
            connection_->run(sql::commit_inner);
        } else {
            for (const auto& [name, value] : counters_)
                connection_->run(sql::set_counter, value, name);
            connection_->run(sql::commit);
        }
    } catch (...) {
        roll_back();
        throw;
    }
    if (--open_blocks_ > 0)
        return;
    if (const auto used = counters_.find("revision"); used != counters_.end())
        known_revision_ = used->second;
    counters_.clear();
}

void SqliteStore::roll_back() {
    --open_blocks_;
    if (open_blocks_ == 0)
        counters_.clear();
    if (!connection_->in_transaction())
        return;
    if (open_blocks_ == 0) {
        connection_->run(sql::roll_back);
    } else {
        connection_->run(sql::roll_back_inner);
        connection_->run(sql::commit_inner);
    }
}

std::vector<User> SqliteStore::users() {
    std::vector<User> result;
    Rows rows = connection_->query(sql::users);
    while (rows.step())
        result.push_back(
            {.id = rows.text(0), .name = rows.text(1), .security = rows.text(2), .access = rows.text(3)});
    return result;
}

std::string SqliteStore::add(const User& user) {
    std::string id;
    together([&] {
        id = id_for(user.id, "users", 'U');
        connection_->run(sql::add_user, id, next_revision(), user.name, user.security, user.access);
    });
    return id;
}

std::vector<Note> SqliteStore::notes(const std::string& contact) {
    std::vector<Note> result;
    Rows rows = connection_->query(sql::notes, values::whole_id(contact));
    while (rows.step())
        result.push_back({.id = rows.text(0),
                          .contact = rows.text(1),
                          .written = DateTime::from_seconds(rows.number(2)),
                          .text = rows.text(3)});
    return result;
}

std::string SqliteStore::add(const Note& note) {
    std::string id;
    together([&] {
        id = id_for(note.id, "notes", 'N');
        connection_->run(sql::add_note, id, next_revision(), values::whole_id(note.contact),
                         note.written.seconds(), note.text);
    });
    return id;
}

void SqliteStore::fail_as_changed(std::string_view kind, bool still_exists) const {
    throw act::EditConflict(still_exists ? act::EditConflict::Cause::changed : act::EditConflict::Cause::deleted,
                            "The " + std::string(kind) + " was " + (still_exists ? "changed" : "deleted") +
                                " by somebody else in the meantime. Your change wasn't stored.");
}

} // namespace store
