#include "adapters/qt/qt_message_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace qt {

namespace {

QMessageBox::Icon icon_of(host::Icon icon) {
    switch (icon) {
    case host::Icon::critical:
        return QMessageBox::Critical;
    case host::Icon::question:
        return QMessageBox::Question;
    case host::Icon::exclamation:
        return QMessageBox::Warning;
    case host::Icon::information:
        return QMessageBox::Information;
    case host::Icon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

struct Choice {
    const char* caption;
    QMessageBox::ButtonRole role;
    host::Answer answer;
};

// The last one also answers for a box that is closed.
std::vector<Choice> choices_of(host::Buttons buttons) {
    using host::Answer;
    switch (buttons) {
    case host::Buttons::ok_cancel:
        return {{"OK", QMessageBox::AcceptRole, Answer::ok}, {"Cancel", QMessageBox::RejectRole, Answer::cancel}};
    case host::Buttons::yes_no:
        return {{"Yes", QMessageBox::YesRole, Answer::yes}, {"No", QMessageBox::NoRole, Answer::no}};
    case host::Buttons::cancel_try_continue:
        return {{"Cancel", QMessageBox::RejectRole, Answer::cancel},
                {"Try Again", QMessageBox::AcceptRole, Answer::try_again},
                {"Continue", QMessageBox::AcceptRole, Answer::go_on}};
    case host::Buttons::ok:
        break;
    }
    return {{"OK", QMessageBox::AcceptRole, Answer::ok}};
}

class QtMessageBox : public host::MessageBox {
public:
    host::Answer show(const host::Message& message) override {
        QMessageBox box(QApplication::activeWindow());
        box.setWindowTitle(QString::fromStdString(message.title));
        box.setIcon(icon_of(message.icon));
        box.setTextFormat(Qt::PlainText);
        box.setText(QString::fromStdString(message.text).replace(u'\r', u'\n'));

        const std::vector<Choice> choices = choices_of(message.buttons);
        std::vector<QPushButton*> buttons;
        buttons.reserve(choices.size());
        for (const Choice& choice : choices)
            buttons.push_back(box.addButton(QString::fromLatin1(choice.caption), choice.role));
        box.setDefaultButton(message.second_is_default && buttons.size() > 1 ? buttons[1] : buttons[0]);
        box.setEscapeButton(buttons.back());

        box.exec();
        for (std::size_t i = 0; i < choices.size(); ++i)
            if (box.clickedButton() == buttons[i])
                return choices[i].answer;
        return choices.back().answer;
    }
};

} // namespace

std::unique_ptr<host::MessageBox> make_message_box() { return std::make_unique<QtMessageBox>(); }

} // namespace qt
