#pragma once

#include "core/forms/days_off.h"
#include "core/shell/shell_world.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace support {

// The form's controls as plain values. `description` is what the user types into frmDescr; without one they cancel
// it.
class FakeHolidaysForm : public forms::HolidaysForm {
public:
    void show_first_tab() override { first_tab = true; }
    bool chkday(int weekday) const override { return checked[weekday]; }
    void set_chkday(int weekday, bool to) override {
        if (checked[weekday] != to && chkday_Click)
            chkday_Click(weekday);
        checked[weekday] = to;
    }
    values::DateTime dtpHol() const override { return date; }
    void set_dtpHol(values::DateTime to) override { date = to; }
    void fill_lvwHol(std::span<const grid::Holiday> holidays) override {
        for (const grid::Holiday& holiday : holidays)
            insert_into_lvwHol(rows.size(), holiday);
    }
    void insert_into_lvwHol(std::size_t place, const grid::Holiday& holiday) override {
        rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(place), holiday.date + "=" + holiday.description);
    }
    void remove_from_lvwHol(std::size_t place) override {
        rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(place));
    }
    std::optional<std::size_t> selected_in_lvwHol() const override { return selected; }
    void set_cmdOK_enabled(bool enabled) override { can_be_confirmed = enabled; }
    void show_frmDescr(std::string& sDescr) override {
        ++descriptions_asked;
        if (description)
            sDescr = *description;
    }
    void unload() override {
        is_open = false;
        Form_Unload();
    }

    bool checked[8] = {};
    values::DateTime date;
    std::vector<std::string> rows;
    std::optional<std::size_t> selected;
    std::optional<std::string> description;
    int descriptions_asked = 0;
    bool first_tab = false, can_be_confirmed = false, is_open = true;
    std::function<void()> Form_Unload;
    std::function<void(int)> chkday_Click;
};

// One opening of the dialog.
struct Opened {
    explicit Opened(ShellWorld& world, const values::Locale& locale = values::english_us())
        : here{{.application = world.application,
                .locale = locale,
                .clock = world.clock,
                .box = world.box,
                .shell = world.shell,
                .files = world.files,
                .folders = world.folders,
                .user_store = world.user_store},
               world.window},
          procedures(here, world.calendar.settings, form, world.calendar.grid.background.holidays,
                     world.calendar.grid.layout) {
        form.Form_Unload = [this] { procedures.Form_Unload(); };
        form.chkday_Click = [this](int weekday) { procedures.chkday_Click(weekday); };
        procedures.Form_Load();
    }
    void pick(int month, int day) { form.date = values::DateTime::of(2024, month, day); }
    void add(int month, int day, const std::string& description) {
        pick(month, day);
        form.description = description;
        procedures.cmdAdd_Click();
    }
    void remove(std::size_t place) {
        form.selected = place;
        procedures.cmdDelete_Click();
    }
    void ok() { procedures.cmdOK_Click(); }

    FakeHolidaysForm form;
    host::Platform here;
    forms::DaysOff procedures;
};

class DaysOffTest : public ::testing::Test, protected ShellWorld {
protected:
    static constexpr const char* path = "/program/holidays.dat";
    static constexpr const char* restart_message =
        "You will need to restart the program for the changes to take effect.";
    static constexpr const char* delete_question = "Do you really want to delete this item?";

    void have_holidays(const std::string& lines) { files.content[path] = "[Holidays]\r\n" + lines; }
    std::string holidays_file() { return files.content[path]; }
    std::string settings_file() { return files.content["/program/Orvanta.ini"]; }
    std::string value_of(const char* weekday) {
        return calendar.settings.ini.GetKeyValue("DaysOff", weekday, "absent");
    }
};

} // namespace support
