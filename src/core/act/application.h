#pragma once

#include "core/act/list_filter.h"

#include <functional>
#include <memory>
#include <string>

// The running contact manager. Every member that reaches it fails with 440 when it can't be reached or doesn't
// answer, within a few seconds; only Command waits as long as the user's dialog is open.
namespace act {

// Command numbers of the application's menus.
enum class CommandNumber {
    close_application = 150,
    show_contact_view = 701,
    schedule_activity = 1321,
    clear_activity = 1323,
    edit_activity = 1337,
    send_activity = 1343,
    activity_details = 20251,
};

// The activity list of a contact view. Rows count from 0.
class ActivityList {
public:
    virtual ~ActivityList() = default;
    virtual ListFilter GetFilter() = 0;
    virtual void SetFilter(const ListFilter& filter) = 0;
    virtual int GetRowCount() = 0;
    virtual std::string GetField(int field, int row) = 0; // activity field numbers
    virtual void SelectRow(int row, bool selected) = 0;
};

class ContactView {
public:
    virtual ~ContactView() = default;
    virtual ActivityList& Activities() = 0;
    virtual std::string GetActiveTab() = 0;
    virtual void SetActiveTab(const std::string& tab) = 0;
    virtual void CreateLookup(const std::string& contact_ids) = 0; // ids joined; unknown ones are left out
    virtual int GetCount() = 0;
    virtual std::string Goto(const std::string& contact_id) = 0; // the id of the contact then shown
};

class Views {
public:
    virtual ~Views() = default;
    virtual std::unique_ptr<ContactView> Create(const std::string& kind, int mode) = 0; // "CV", 2
};

class Application {
public:
    virtual ~Application() = default;
    virtual void OpenFile(const std::string& path) = 0; // "" attaches to the open database
    virtual class Views& Views() = 0;
    virtual std::string GetOpenDBName() = 0;
    virtual void Command(CommandNumber number) = 0; // returns when the command's dialog has closed
};

// Toolbar buttons and Tools menu entries of other programs. Views count from 1 to 6; 0 means success.
class AuxCommands {
public:
    virtual ~AuxCommands() = default;
    struct Definition {
        std::string name, program, folder, title, caption, icon, large_icon;
        int flag = 1;
    };
    virtual bool AuxCommandExists(const std::string& name) = 0;
    virtual int AddAuxCommand(const Definition& definition) = 0;
    virtual bool AuxCommandExistsInToolbar(int view, const std::string& name) = 0;
    virtual bool AuxCommandExistsInToolsMenu(int view, const std::string& name) = 0;
    virtual int AddAuxCommandToToolbar(int view, const std::string& name) = 0;
    virtual int AddAuxCommandToToolsMenu(int view, const std::string& name) = 0;
    virtual int RemoveAuxCommandFromToolbar(int view, const std::string& name) = 0;
    virtual int RemoveAuxCommandFromToolsMenu(int view, const std::string& name) = 0;
};

// The event control. The two call-backs arrive between the program's own messages, and never after Disconnect.
class EventControl {
public:
    virtual ~EventControl() = default;
    virtual int Open_Databases(int argument) = 0; // 0 also when the application can't be reached
    virtual bool Communication_Failed() = 0;      // meaningful after Open_Databases gave 0
    virtual void Disconnect() = 0;
    std::function<void()> OnDatabaseClose;
    std::function<void()> OnActUserWantsToClose;
};

} // namespace act
