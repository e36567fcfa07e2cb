#include "adapters/records/desk_database.h"

#include "adapters/records/activity_table.h"
#include "adapters/records/shared_store.h"
#include "adapters/records/tables.h"
#include "core/values/failure.h"
#include "desk/store/temporary_instances.h"

#include <optional>

namespace records {

namespace {

using values::Failure;
using values::FailureNumber;

class DeskDatabase final : public act::Database {
public:
    DeskDatabase(std::function<std::string()> open_database_path, const values::Locale& locale)
        : open_database_path_(std::move(open_database_path)), locale_(locale) {}
    ~DeskDatabase() override { Close(); }

    void OpenEx(const std::string& given) override {
        const std::string path = given.empty() ? open_database_path_() : given;
        if (path.empty())
            throw Failure(FailureNumber::automation, "No database is open in the contact manager.");
        auto store = store::Store::open(path);
        std::vector<store::User> users = store->users();
        Close();
        auto session = std::make_shared<SharedStore>(std::move(store), locale_);
        open_.emplace(session, std::move(users));
    }

    void Close() override {
        if (open_)
            open_->session->close();
        open_.reset();
    }

    act::Contact& Contact() override { return open().contact; }
    std::unique_ptr<act::Activity> Activity() override { return std::make_unique<ActivityTable>(open().session); }
    act::Users& Users() override { return open().users; }
    act::Group& Group() override { return open().group; }

    std::shared_ptr<void> One_Look() override {
        if (!open_)
            return nullptr;
        const auto session = open_->session;
        session->begin_look();
        return {nullptr, [session](void*) { session->end_look(); }};
    }

    std::int64_t Moment() override { return open().session->moment(); }

    void Instance_Is_Made(const std::string& instance) override { instances().settle(instance); }
    void Forget_Instance(const std::string& instance) override { instances().forget(instance); }
    std::vector<LeftInstance> Take_Back_Instances() override {
        std::vector<LeftInstance> left;
        for (const store::TemporaryInstance& one : instances().take_back_abandoned()) {
            const auto activity = open().session->store().activity(one.instance);
            left.push_back({.regarding = activity ? activity->regarding : std::string(), .day = one.day});
        }
        return left;
    }

private:
    struct Open {
        Open(const std::shared_ptr<SharedStore>& shared, std::vector<store::User> all_users)
            : session(shared), contact(shared), group(shared), users(std::move(all_users)) {}

        std::shared_ptr<SharedStore> session;
        ContactTable contact;
        GroupTable group;
        UserTable users;
    };

    store::TemporaryInstances& instances() { return open().session->store().temporary_instances(); }

    Open& open() {
        if (!open_)
            throw Failure(FailureNumber::automation, "No database is open.");
        return *open_;
    }

    std::function<std::string()> open_database_path_;
    const values::Locale& locale_;
    std::optional<Open> open_;
};

} // namespace

std::unique_ptr<act::Database> make_database(std::function<std::string()> open_database_path,
                                             const values::Locale& locale) {
    return std::make_unique<DeskDatabase>(std::move(open_database_path), locale);
}

} // namespace records
