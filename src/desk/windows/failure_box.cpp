#include "windows/failure_box.h"

#include "values/failure.h"

#include <QMessageBox>

#include <exception>

namespace windows {

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
    QMessageBox box(QMessageBox::Warning, QObject::tr("Contact Desk"), sentence, QMessageBox::Ok, window);
    box.setObjectName(QStringLiteral("failure_box"));
    box.exec();
    return false;
}

} // namespace windows
