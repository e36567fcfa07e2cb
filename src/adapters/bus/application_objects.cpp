#include "adapters/bus/application_link.h"
#include "contract/names.h"

namespace bus {
namespace {

using contract::from_wire;
using contract::on_wire;
using values::Failure;
using values::FailureNumber;

void need_running_desk(const Link& link) {
    if (!link.desk_runs())
        throw Failure(FailureNumber::cannot_create_object, "The contact desk isn't running.");
}

class ActivityList : public act::ActivityList {
public:
    explicit ActivityList(ContactViewProxy& desk) : desk_(desk) {}

    act::ListFilter GetFilter() override {
        const auto filter = answered(desk_.GetFilter());
        return {filter.argumentAt<0>(), from_wire(filter.argumentAt<1>()), from_wire(filter.argumentAt<2>())};
    }
    void SetFilter(const act::ListFilter& filter) override {
        answered(desk_.SetFilter(filter.mask, on_wire(filter.dates), on_wire(filter.users)));
    }
    int GetRowCount() override { return answered(desk_.GetRowCount()); }
    std::string GetField(int field, int row) override { return from_wire(answered(desk_.GetField(field, row))); }
    void SelectRow(int row, bool selected) override { answered(desk_.SelectRow(row, selected)); }

private:
    ContactViewProxy& desk_;
};

class ContactView : public act::ContactView {
public:
    explicit ContactView(std::shared_ptr<Link> link) : link_(std::move(link)) {}

    act::ActivityList& Activities() override { return activities_; }
    std::string GetActiveTab() override { return from_wire(answered(desk_.GetActiveTab())); }
    void SetActiveTab(const std::string& tab) override { answered(desk_.SetActiveTab(on_wire(tab))); }
    void CreateLookup(const std::string& contact_ids) override {
        answered(desk_.CreateLookup(on_wire(contact_ids)));
    }
    int GetCount() override { return answered(desk_.GetCount()); }
    std::string Goto(const std::string& contact_id) override {
        return from_wire(answered(desk_.Goto(on_wire(contact_id))));
    }

private:
    std::shared_ptr<Link> link_;
    ContactViewProxy& desk_ = link_->contact_view();
    ActivityList activities_{desk_};
};

class Views : public act::Views {
public:
    explicit Views(std::shared_ptr<Link> link) : link_(std::move(link)) {}

    std::unique_ptr<act::ContactView> Create(const std::string& kind, int) override {
        if (kind != "CV")
            throw Failure(FailureNumber::automation, "The contact desk has no view of the kind \"" + kind + "\".");
        return std::make_unique<ContactView>(link_);
    }

private:
    std::shared_ptr<Link> link_;
};

class Application : public act::Application {
public:
    explicit Application(std::shared_ptr<Link> link) : link_(std::move(link)) {}

    void OpenFile(const std::string& path) override { answered(link_->application().OpenFile(on_wire(path))); }
    act::Views& Views() override { return views_; }
    std::string GetOpenDBName() override { return from_wire(answered(link_->application().GetOpenDBName())); }
    void Command(act::CommandNumber number) override { link_->run(number); }

private:
    std::shared_ptr<Link> link_;
    class Views views_ {
        link_
    };
};

class AuxCommands : public act::AuxCommands {
public:
    explicit AuxCommands(std::shared_ptr<Link> link) : link_(std::move(link)) {}

    bool AuxCommandExists(const std::string& name) override {
        return answered(desk_.AuxCommandExists(on_wire(name)));
    }
    int AddAuxCommand(const Definition& command) override {
        return answered(desk_.AddAuxCommand(
            on_wire(command.name), on_wire(command.program), on_wire(command.folder), on_wire(command.title),
            on_wire(command.caption), on_wire(command.icon), on_wire(command.large_icon), command.flag));
    }
    bool AuxCommandExistsInToolbar(int view, const std::string& name) override {
        return answered(desk_.AuxCommandExistsInToolbar(view, on_wire(name)));
    }
    bool AuxCommandExistsInToolsMenu(int view, const std::string& name) override {
        return answered(desk_.AuxCommandExistsInToolsMenu(view, on_wire(name)));
    }
    int AddAuxCommandToToolbar(int view, const std::string& name) override {
        return answered(desk_.AddAuxCommandToToolbar(view, on_wire(name)));
    }
    int AddAuxCommandToToolsMenu(int view, const std::string& name) override {
        return answered(desk_.AddAuxCommandToToolsMenu(view, on_wire(name)));
    }
    int RemoveAuxCommandFromToolbar(int view, const std::string& name) override {
        return answered(desk_.RemoveAuxCommandFromToolbar(view, on_wire(name)));
    }
    int RemoveAuxCommandFromToolsMenu(int view, const std::string& name) override {
        return answered(desk_.RemoveAuxCommandFromToolsMenu(view, on_wire(name)));
    }

private:
    std::shared_ptr<Link> link_;
    AuxCommandsProxy& desk_ = link_->aux_commands();
};

} // namespace

std::unique_ptr<act::Application> make_application(std::shared_ptr<Link> link) {
    need_running_desk(*link);
    return std::make_unique<Application>(std::move(link));
}

std::unique_ptr<act::AuxCommands> make_aux_commands(std::shared_ptr<Link> link) {
    need_running_desk(*link);
    return std::make_unique<AuxCommands>(std::move(link));
}

} // namespace bus
