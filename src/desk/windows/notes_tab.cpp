#include "desk/windows/notes_tab.h"

#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "desk/windows/rows.h"
#include "ui_notes_tab.h"

namespace windows {

NotesTab::NotesTab(OpenDatabase& database, QWidget* parent)
    : QWidget(parent), database_(database), ui_(std::make_unique<Ui::NotesTab>()) {
    ui_->setupUi(this);
    ui_->note_table->set_columns(note_columns());
    ui_->splitter->setSizes({3, 2});
    connect(ui_->note_table, &RecordTable::chosen, this, &NotesTab::show_note);
    connect(ui_->draft_edit, &QPlainTextEdit::textChanged, this,
            [this] { ui_->add_note_button->setEnabled(has_draft()); });
    connect(ui_->add_note_button, &QPushButton::clicked, this,
            [this] { attempt(window(), [this] { save_draft(); }); });
    show_contact({});
}

NotesTab::~NotesTab() = default;

void NotesTab::show_contact(const std::string& contact) {
    if (contact != contact_)
        ui_->draft_edit->clear();
    contact_ = contact;
    ui_->draft_edit->setEnabled(!contact.empty() && !database_.store().is_read_only());
    ui_->add_note_button->setEnabled(has_draft());
    reload();
}

void NotesTab::save_draft() {
    if (!has_draft())
        return;
    database_.store().add(store::Note{
        .contact = contact_, .written = database_.now(), .text = stored(ui_->draft_edit->toPlainText())});
    ui_->draft_edit->clear();
    reload();
}

bool NotesTab::has_draft() const {
    return !contact_.empty() && !ui_->draft_edit->toPlainText().trimmed().isEmpty();
}

void NotesTab::reload() {
    notes_ = contact_.empty() ? std::vector<store::Note>() : database_.store().notes(contact_);
    ui_->note_table->show_rows(note_rows(notes_, database_.locale()));
    show_note(ui_->note_table->current_id());
}

void NotesTab::show_note(const std::string& id) {
    QString text;
    for (const store::Note& note : notes_)
        if (note.id == id)
            text = shown(note.text);
    ui_->note_view->setPlainText(text);
}

} // namespace windows
