#include "desk/store/transactions.h"

#include "core/values/failure.h"
#include "core/values/ids.h"
#include "desk/store/sql.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace store {

namespace {

// Ids of our own making: a letter for the kind of record and 11 digits. The letter stands nowhere else, so that
// ids joined to one text can be told apart.
constexpr std::size_t digits_in_id = values::id_length - 1;

constexpr std::int64_t last_number = 99'999'999'999;

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

constexpr const char* revisions = "revision";

values::Failure failure(const std::string& sentence) {
    return values::Failure(values::FailureNumber::automation, sentence);
}

void require_valid_id(const std::string& id) {
    const bool plain = std::all_of(id.begin(), id.end(), [](char c) { return c >= ' ' && c <= '~'; });
    if (id.size() != values::id_length || !plain || id.find_first_not_of(' ') == id.npos)
        throw failure("The id \"" + id + "\" hasn't 12 characters.");
}

} // namespace

void Transactions::together(const std::function<void()>& block) {
    begin();
    try {
        block();
    } catch (...) {
        roll_back();
        throw;
    }
    commit();
}

void Transactions::begin() {
    end_reading();
    connection_.run(open_blocks_ == 0 ? sql::begin : sql::begin_inner);
    ++open_blocks_;
    if (!connection_.has_moved())
        return;
    roll_back();
    throw failure("The database \"" + connection_.path() +
                  "\" was moved, deleted or replaced while it was open, so nothing was stored. In the contact "
                  "manager, File > Save a Copy keeps what is open.");
}

void Transactions::commit() {
    try {
        if (open_blocks_ > 1) {
            connection_.run(sql::commit_inner);
        } else {
            for (const auto& [name, value] : counters_)
                connection_.run(sql::set_counter, value, name);
            connection_.run(sql::commit);
        }
    } catch (...) {
        roll_back();
        throw;
    }
    if (--open_blocks_ > 0)
        return;
    if (const auto used = counters_.find(revisions); used != counters_.end())
        known_revision_ = used->second;
    counters_.clear();
}

void Transactions::roll_back() {
    --open_blocks_;
    if (open_blocks_ == 0)
        counters_.clear();
    if (!connection_.in_transaction())
        return;
    if (open_blocks_ == 0) {
        connection_.run(sql::roll_back);
    } else {
        connection_.run(sql::roll_back_inner);
        connection_.run(sql::commit_inner);
    }
}

void Transactions::begin_reading() {
    if (connection_.in_transaction())
        return;
    connection_.run(sql::begin_reading);
    is_reading_ = true;
}

void Transactions::end_reading() {
    if (std::exchange(is_reading_, false))
        connection_.run(sql::commit);
}

std::int64_t Transactions::revision() {
    if (const auto used = counters_.find(revisions); used != counters_.end())
        return used->second;
    Rows version = connection_.query(sql::data_version);
    version.step();
    if (!known_revision_ || version.number(0) != known_data_version_) {
        known_data_version_ = version.number(0);
        Rows row = connection_.query(sql::counter, revisions);
        row.step();
        known_revision_ = row.number(0);
    }
    return *known_revision_;
}

std::int64_t& Transactions::counter(const std::string& name) {
    // A full disk makes the engine roll everything back by itself; what came after would stand alone.
    if (!connection_.in_transaction())
        throw failure("The database \"" + connection_.path() + "\" gave the changes up that belong together.");
    const auto [place, is_new] = counters_.try_emplace(name, 0);
    if (is_new) {
        Rows row = connection_.query(sql::counter, name);
        row.step();
        place->second = row.number(0);
    }
    return place->second;
}

std::int64_t Transactions::next(const std::string& counter_name, std::int64_t last) {
    std::int64_t& number = counter(counter_name);
    if (number < 0 || number >= last)
        throw failure("The database \"" + connection_.path() + "\" can't take any more: its counter of " +
                      counter_name + " stands at " + std::to_string(number) + ".");
    return ++number;
}

std::int64_t Transactions::next_revision() { return next(revisions, std::numeric_limits<std::int64_t>::max()); }

std::string Transactions::id_for(const std::string& own, const std::string& counter_name, char letter) {
    if (own.empty())
        return make_id(letter, next(counter_name, last_number));
    const std::string id = values::whole_id(own);
    require_valid_id(id);
    std::int64_t& last = counter(counter_name);
    last = std::max(last, number_of(id, letter));
    return id;
}

} // namespace store
