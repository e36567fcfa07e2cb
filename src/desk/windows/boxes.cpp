#include "desk/windows/boxes.h"

#include "core/values/failure.h"

#include <QMessageBox>

#include <exception>

namespace windows {
namespace {

QMessageBox::StandardButton show(QMessageBox::Icon icon, const QString& title, const QString& text,
                                 QMessageBox::StandardButtons buttons, QWidget* window) {
    QMessageBox box(icon, title, text, buttons, window);
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

bool attempt(QWidget* window, const std::function<void()>& work) {
    QString sentence;
    try {
        work();
        return true;
    } catch (const values::Failure& failure) {
        sentence = QString::fromStdString(failure.description());
    } catch (const std::exception& problem) {
        sentence = QStringLiteral("Something unexpected went wrong: %1.").arg(QString::fromUtf8(problem.what()));
    }
    show(QMessageBox::Warning, QObject::tr("Contact Desk"), sentence, QMessageBox::Ok, window);
    return false;
}

void tell(QWidget* window, const QString& title, const QString& text) {
    show(QMessageBox::Information, title, text, QMessageBox::Ok, window);
}

bool confirm(QWidget* window, const QString& title, const QString& question) {
    return show(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No, window) ==
           QMessageBox::Yes;
}

} // namespace windows
