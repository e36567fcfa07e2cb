#include "ui/dialogs/frm_holidays.h"

#include "core/values/failure.h"
#include "ui/dialogs/frm_descr.h"
#include "ui_frmHolidays.h"
#include "widgets/date_field.h"

namespace ui {

namespace {

std::unique_ptr<Ui::frmHolidays> make_controls(QDialog& form) {
    auto controls = std::make_unique<Ui::frmHolidays>();
    controls->setupUi(&form);
    return controls;
}

QTreeWidgetItem* item_of(const grid::Holiday& holiday) {
    return new QTreeWidgetItem(
        {QString::fromStdString(holiday.date), QString::fromStdString(holiday.description)});
}

} // namespace

frmHolidays::frmHolidays(const host::Platform& here, settings::Settings& settings, grid::HolidayFile& file,
                         const grid::Layout& layout, QWidget* parent)
    : QDialog(parent), here_(here),
      controls_(make_controls(*this)), chkday_{controls_->chkday_1, controls_->chkday_2, controls_->chkday_3,
                                               controls_->chkday_4, controls_->chkday_5, controls_->chkday_6,
                                               controls_->chkday_7},
      procedures_(here, settings, *this, file, layout) {
    controls_->dtpHol->set_locale(here.locale);
    connect_controls();
    procedures_.Form_Load();
}

frmHolidays::~frmHolidays() = default;

void frmHolidays::connect_controls() {
    connect(controls_->cmdOK, &QPushButton::clicked, this, [this] { procedures_.cmdOK_Click(); });
    connect(controls_->cmdCancel, &QPushButton::clicked, this, [this] { procedures_.cmdCancel_Click(); });
    connect(controls_->cmdAdd, &QPushButton::clicked, this, [this] { procedures_.cmdAdd_Click(); });
    connect(controls_->cmdDelete, &QPushButton::clicked, this, [this] { procedures_.cmdDelete_Click(); });
    for (int weekday = 1; QCheckBox * box : chkday_) {
        connect(box, &QCheckBox::toggled, this, [this, weekday] { procedures_.chkday_Click(weekday); });
        ++weekday;
    }
}

void frmHolidays::done(int result) {
    procedures_.Form_Unload();
    QDialog::done(result);
}

void frmHolidays::show_first_tab() { controls_->mstHolidays->setCurrentIndex(0); }

bool frmHolidays::chkday(int weekday) const {
    return chkday_.at(static_cast<std::size_t>(weekday - 1))->isChecked();
}

void frmHolidays::set_chkday(int weekday, bool checked) {
    chkday_.at(static_cast<std::size_t>(weekday - 1))->setChecked(checked);
}

values::DateTime frmHolidays::dtpHol() const {
    const auto date = controls_->dtpHol->date();
    if (!date)
        throw values::Failure(values::FailureNumber::type_mismatch, "Give the date of the holiday.");
    return *date;
}

void frmHolidays::set_dtpHol(values::DateTime date) { controls_->dtpHol->set_date(date); }

void frmHolidays::fill_lvwHol(std::span<const grid::Holiday> holidays) {
    QList<QTreeWidgetItem*> items;
    for (const grid::Holiday& holiday : holidays)
        items << item_of(holiday);
    controls_->lvwHol->addTopLevelItems(items);
    controls_->lvwHol->setCurrentItem(controls_->lvwHol->topLevelItem(0));
}

void frmHolidays::insert_into_lvwHol(std::size_t place, const grid::Holiday& holiday) {
    QTreeWidgetItem* item = item_of(holiday);
    controls_->lvwHol->insertTopLevelItem(static_cast<int>(place), item);
    controls_->lvwHol->scrollToItem(item);
    if (!selected_in_lvwHol())
        controls_->lvwHol->setCurrentItem(item);
}

void frmHolidays::remove_from_lvwHol(std::size_t place) {
    delete controls_->lvwHol->takeTopLevelItem(static_cast<int>(place));
}

std::optional<std::size_t> frmHolidays::selected_in_lvwHol() const {
    const QList<QTreeWidgetItem*> selected = controls_->lvwHol->selectedItems();
    if (selected.isEmpty())
        return std::nullopt;
    return static_cast<std::size_t>(controls_->lvwHol->indexOfTopLevelItem(selected.front()));
}

void frmHolidays::set_cmdOK_enabled(bool enabled) { controls_->cmdOK->setEnabled(enabled); }

void frmHolidays::show_frmDescr(std::string& sDescr) { frmDescr(here_, sDescr, this).exec(); }

void frmHolidays::unload() { done(QDialog::Accepted); }

} // namespace ui
