#pragma once

#include "desk/windows/open_database.h"

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace Ui {
class NotesTab;
}

namespace windows {

// The notes on a contact, and a line to write another one.
class NotesTab : public QWidget {
    Q_OBJECT

public:
    explicit NotesTab(OpenDatabase& database, QWidget* parent = nullptr);
    ~NotesTab() override;

    void show_contact(const std::string& contact); // empty for none
    // Stores the note that is being written, if any. Failures are the store's; the text then stays.
    void save_draft();
    bool has_draft() const;

private:
    void reload();
    void show_note(const std::string& id);

    OpenDatabase& database_;
    std::unique_ptr<Ui::NotesTab> ui_;
    std::string contact_;
    std::vector<store::Note> notes_;
};

} // namespace windows
