#include "support/ui/DialogAnswer.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <chrono>
#include <gtest/gtest.h>

namespace {

constexpr std::chrono::milliseconds tick{10};
constexpr int patience = 500; // ticks

} // namespace

DialogAnswer::DialogAnswer(std::function<void(QDialog&)> whatToDo) : answer(std::move(whatToDo)) {
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Look(); });
    timer.start(tick);
}

DialogAnswer::~DialogAnswer() {
    EXPECT_TRUE(asked) << "no dialog came";
}

void DialogAnswer::Look() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog && !asked) {
        asked = true;
        answer(*dialog);
    } else if (++ticks > patience && dialog) {
        ADD_FAILURE() << "a dialog was left open: " << dialog->windowTitle().toStdString();
        dialog->reject();
    }
}

std::function<void(QDialog&)> Press(int button) {
    return [button](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_TRUE(box) << "no message box";
        box->button(static_cast<QMessageBox::StandardButton>(button))->click();
    };
}
