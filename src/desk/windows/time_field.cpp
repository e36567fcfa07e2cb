#include "desk/windows/time_field.h"

#include "core/values/text_forms.h"
#include "desk/model/refusal.h"
#include "desk/windows/conversions.h"

namespace windows {

TimeField::TimeField(QWidget* parent) : QComboBox(parent), locale_(&values::english_us()) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
}

void TimeField::set_locale(const values::Locale& locale) {
    locale_ = &locale;
    clear();
    for (int half_hour = 0; half_hour < 48; ++half_hour)
        addItem(time_text(values::DateTime::time_of_day(half_hour / 2, half_hour % 2 * 30), locale));
}

void TimeField::set_time(values::DateTime time) {
    given_ = time.time();
    const QString text = time_text(given_, *locale_);
    setCurrentIndex(findText(text));
    setEditText(text);
}

values::DateTime TimeField::time() const {
    const QString text = currentText().trimmed();
    if (text == time_text(given_, *locale_))
        return given_;
    const auto moment = values::parse_date(stored(text), *locale_);
    if (!moment || moment->date() != values::DateTime())
        model::refuse("\"" + stored(text) + "\" is no time of day.");
    return moment->time();
}

} // namespace windows
