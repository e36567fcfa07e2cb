#pragma once

#include <string>
#include <vector>

struct sqlite3;

namespace walk {

// What holds of a contact database whenever nobody is at work on it, looked at in the file itself.
class StoreRules {
public:
    explicit StoreRules(const std::string& database);
    ~StoreRules();
    StoreRules(const StoreRules&) = delete;
    StoreRules& operator=(const StoreRules&) = delete;

    // The rules that are broken, each a sentence with the ids that break it; none when all hold. The records are
    // looked at only when another connection has written since the last time.
    std::vector<std::string> broken();
    // The same for what is kept until the end: nobody still reads an old state of the file.
    std::vector<std::string> broken_at_end();

    long activities() const;

private:
    std::string first_column(const std::string& sql) const; // the values, a blank between them
    bool is_being_written() const;

    sqlite3* database_ = nullptr;
    std::string seen_; // the state of the file when the records were looked at
};

} // namespace walk
