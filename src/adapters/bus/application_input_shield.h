#pragma once

#include <QObject>

namespace bus {

// Throws away what the user does to the program's windows, as long as it lives. Merely leaving the input in the
// queue would carry it out afterwards: a click on a calendar that seemed dead would then open the next dialog.
class InputShield : public QObject {
    Q_OBJECT

public:
    InputShield();
    ~InputShield() override;

    bool eventFilter(QObject* receiver, QEvent* event) override;
};

} // namespace bus
