#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

// Runs the work and, when it opens a dialog, the answer to it; one answer for each dialog in turn. Fails when
// there is none for a dialog, which is closed then, or a dialog for none.
inline void with_dialogs(std::vector<std::function<void(QWidget&)>> answers, const std::function<void()>& work) {
    std::size_t answered = 0;
    bool is_answering = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || (is_answering && answered == answers.size()))
            return;
        if (answered == answers.size()) {
            ADD_FAILURE() << "An unexpected dialog: " << dialog->windowTitle().toStdString();
            dialog->close();
            return;
        }
        is_answering = true;
        answers[answered++](*dialog);
        is_answering = false;
    });
    watch.start(5);
    work();
    EXPECT_EQ(answered, answers.size()) << "A dialog that was expected didn't open.";
}
