#pragma once

#include "support/fake_act.h"

// The running application in memory, beside the data of fake_act.h.
namespace support {

class FakeActivityList : public act::ActivityList {
public:
    act::ListFilter GetFilter() override { return filter; }
    void SetFilter(const act::ListFilter& to) override { filter = to; }
    int GetRowCount() override { return static_cast<int>(rows.size()); }
    std::string GetField(int field, int row) override { return rows.at(static_cast<std::size_t>(row))[field]; }
    void SelectRow(int row, bool on) override { selected[row] = on; }

    act::ListFilter filter;
    std::vector<std::map<int, std::string>> rows; // fields by number
    std::map<int, bool> selected;
};

// The state of the running application that outlives its objects.
struct FakeApplicationState {
    std::string open_database = "/data/Office.desk";
    std::vector<act::CommandNumber> commands;
    std::string active_tab, lookup, shown_contact;
    FakeActivityList activities;
};

class FakeContactView : public act::ContactView {
public:
    FakeContactView(FakeActData& data, FakeApplicationState& state) : data_(data), state_(state) {}
    act::ActivityList& Activities() override { return state_.activities; }
    std::string GetActiveTab() override { return state_.active_tab; }
    void SetActiveTab(const std::string& tab) override { state_.active_tab = tab; }
    void CreateLookup(const std::string& ids) override {
        data_.call("ContactView.CreateLookup"), state_.lookup = ids;
    }
    int GetCount() override { return static_cast<int>(state_.lookup.size() / 12); }
    std::string Goto(const std::string& id) override { return state_.shown_contact = id; }

private:
    FakeActData& data_;
    FakeApplicationState& state_;
};

class FakeViews : public act::Views {
public:
    FakeViews(FakeActData& data, FakeApplicationState& state) : data_(data), state_(state) {}
    std::unique_ptr<act::ContactView> Create(const std::string& kind, int mode) override {
        data_.call("Views.Create(" + kind + ", " + std::to_string(mode) + ")");
        return std::make_unique<FakeContactView>(data_, state_);
    }

private:
    FakeActData& data_;
    FakeApplicationState& state_;
};

class FakeApplication : public act::Application {
public:
    FakeApplication(FakeActData& data, FakeApplicationState& state)
        : data_(data), state_(state), views_(data, state) {}
    ~FakeApplication() override { data_.calls.emplace_back("Application released"); }
    void OpenFile(const std::string& path) override { data_.call("Application.OpenFile(" + path + ")"); }
    act::Views& Views() override { return data_.call("Application.Views"), views_; }
    std::string GetOpenDBName() override { return data_.call("Application.GetOpenDBName"), state_.open_database; }
    void Command(act::CommandNumber number) override {
        data_.call("Application.Command");
        state_.commands.push_back(number);
    }

private:
    FakeActData& data_;
    FakeApplicationState& state_;
    FakeViews views_;
};

class FakeServer : public act::Server {
public:
    FakeServer(FakeActData& data, FakeApplicationState& state) : data_(data), state_(state) {}
    std::unique_ptr<act::Application> create_application() override {
        data_.call("create application");
        return std::make_unique<FakeApplication>(data_, state_);
    }
    std::unique_ptr<act::Database> create_database() override {
        data_.call("create database");
        return std::make_unique<FakeDatabase>(data_);
    }
    std::unique_ptr<act::AuxCommands> create_aux_commands() override {
        throw values::Failure(values::FailureNumber::cannot_create_object);
    }

private:
    FakeActData& data_;
    FakeApplicationState& state_;
};

class FakeEventControl : public act::EventControl {
public:
    int Open_Databases(int) override { return open_databases; }
    bool Communication_Failed() override { return communication_failed; }
    void Disconnect() override { ++disconnects; }

    int open_databases = 1;
    bool communication_failed = false;
    int disconnects = 0;
};

} // namespace support
