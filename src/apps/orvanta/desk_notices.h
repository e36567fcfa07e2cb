#pragma once

#include "adapters/bus/application_bridge.h"
#include "core/host/application_info.h"
#include "core/host/message_box.h"

#include <QMessageBox>
#include <QPointer>

#include <functional>
#include <string>

namespace apps {

// What is to be said of the desk, in boxes.
class DeskNotices : public bus::Notices {
public:
    DeskNotices(host::MessageBox& box, const host::ApplicationInfo& application)
        : box_(box), title_(application.title) {}

    void show_silence(std::function<void()> give_up) override {
        silence_ = new QMessageBox(QMessageBox::Warning, QString::fromStdString(title_),
                                   QObject::tr("The contact desk doesn't answer."));
        silence_->setInformativeText(
            QObject::tr("The calendar waits for it. When you stop waiting, what the desk was "
                        "asked for may still open there later."));
        silence_->addButton(QObject::tr("&Stop waiting"), QMessageBox::RejectRole);
        silence_->setAttribute(Qt::WA_DeleteOnClose);
        silence_->setWindowModality(Qt::ApplicationModal);
        QObject::connect(silence_, &QDialog::finished, silence_, std::move(give_up));
        silence_->show();
    }
    void hide_silence() override {
        if (!silence_)
            return;
        silence_->disconnect();
        silence_->close();
    }
    void tell_loss(const std::string& sentence) override {
        box_.show({.text = sentence + " The calendar ends as well; what was stored stays stored.",
                   .title = title_,
                   .icon = host::Icon::exclamation});
    }

private:
    host::MessageBox& box_;
    const std::string title_;
    QPointer<QMessageBox> silence_;
};

} // namespace apps
