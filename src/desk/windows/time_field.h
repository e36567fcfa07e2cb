#pragma once

#include "core/values/date_time.h"
#include "core/values/locale.h"

#include <QComboBox>

namespace windows {

// A time of day, typed in any common form or chosen from the half hours.
class TimeField : public QComboBox {
    Q_OBJECT

public:
    explicit TimeField(QWidget* parent = nullptr);

    void set_locale(const values::Locale& locale); // which outlives the field
    void set_time(values::DateTime time);          // its date doesn't count
    // On the empty date, with the seconds it was given unless another time was typed. Fails with 440 when what the
    // field holds is no time.
    values::DateTime time() const;

private:
    const values::Locale* locale_;
    values::DateTime given_;
};

} // namespace windows
