#include "desk/windows/clear_dialog.h"

#include "core/act/edit_conflict.h"
#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "desk/windows/rows.h"
#include "ui_clear_dialog.h"

namespace windows {
namespace {

QStringList results_of(store::ActivityType type) {
    switch (type) {
    case store::ActivityType::call:
        return {QObject::tr("Completed"), QObject::tr("Attempted"), QObject::tr("Received"),
                QObject::tr("Left message")};
    case store::ActivityType::meeting:
        return {QObject::tr("Held"), QObject::tr("Not held")};
    case store::ActivityType::to_do:
        return {QObject::tr("Done"), QObject::tr("Not done")};
    }
    return {};
}

QString summary_of(const store::Activity& activity, const OpenDatabase& database) {
    QStringList names;
    for (const std::string& contact : activity.contacts)
        names << shown(database.directory().contact_name(contact));
    QString summary = type_name(activity.type);
    if (activity.start)
        summary +=
            QObject::tr(" on %1, %2")
                .arg(date_text(*activity.start, database.locale()), time_text(*activity.start, database.locale()));
    return names.isEmpty() ? summary : QObject::tr("%1 with %2").arg(summary, names.join("; "));
}

} // namespace

ClearDialog::ClearDialog(OpenDatabase& database, store::Activity activity, QWidget* parent)
    : QDialog(parent), database_(database), activity_(std::move(activity)),
      ui_(std::make_unique<Ui::ClearDialog>()) {
    ui_->setupUi(this);
    setTabOrder(ui_->buttons->button(QDialogButtonBox::Cancel), ui_->erase_button);
    connect(ui_->erase_button, &QPushButton::clicked, this, &ClearDialog::erase);
    connect(ui_->cleared_box, &QCheckBox::toggled, ui_->result_box, &QWidget::setEnabled);
    connect(ui_->cleared_box, &QCheckBox::toggled, ui_->result_label, &QWidget::setEnabled);
    show_activity();
    ui_->result_box->setFocus();
}

ClearDialog::~ClearDialog() = default;

void ClearDialog::show_activity() {
    ui_->summary_label->setText(summary_of(activity_, database_));
    ui_->series_label->setVisible(is_series());
    ui_->result_box->addItems(results_of(activity_.type));
    const QString result = shown(activity_.result);
    if (!result.isEmpty() && ui_->result_box->findText(result) < 0)
        ui_->result_box->insertItem(0, result);
    ui_->result_box->setCurrentIndex(result.isEmpty() ? (activity_.cleared ? -1 : 0)
                                                      : ui_->result_box->findText(result));
    ui_->regarding_edit->setText(shown(activity_.regarding));
    ui_->details_edit->setPlainText(shown(activity_.details));
}

store::Activity ClearDialog::typed() const {
    store::Activity result = activity_;
    result.cleared = ui_->cleared_box->isChecked();
    result.result = result.cleared ? stored(ui_->result_box->currentText()) : std::string();
    if (ui_->regarding_edit->isModified())
        result.regarding = stored(ui_->regarding_edit->text());
    if (ui_->details_edit->document()->isModified())
        result.details = stored(ui_->details_edit->toPlainText());
    return result;
}

void ClearDialog::store_typed() {
    if (const store::Activity activity = typed(); activity != activity_)
        database_.store().update(activity);
}

bool ClearDialog::may_clear() {
    if (result() == Accepted)
        return false; // the second click of a double one
    const bool is_series_ended = is_series() && !activity_.cleared && ui_->cleared_box->isChecked();
    return !is_series_ended || confirm(this, tr("Clear Activity"),
                                       tr("Clear the whole series \"%1\"?").arg(shown(activity_.regarding)));
}

void ClearDialog::accept() {
    if (may_clear() && attempt(this, [this] { store_typed(); }))
        QDialog::accept();
}

void ClearDialog::erase() {
    if (result() == Accepted)
        return;
    const QString question = is_series() ? tr("Erase the whole series \"%1\"? It can't be brought back.")
                                         : tr("Erase the activity \"%1\"? It can't be brought back.");
    if (!confirm(this, tr("Erase Activity"), question.arg(shown(activity_.regarding))))
        return;
    const bool is_erased = attempt(this, [this] {
        store::Store& store = database_.store();
        store.together([&] {
            const auto present = store.activity(activity_.id);
            if (present && present->revision != activity_.revision)
                throw act::EditConflict(
                    act::EditConflict::Cause::changed,
                    "Somebody else has changed the activity meanwhile. It hasn't been erased.");
            store.remove_activity(activity_.id);
        });
    });
    if (is_erased)
        QDialog::accept();
}

} // namespace windows
