#pragma once

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <type_traits>

// Answers the next window of a kind by what the test does to it. A window that never comes is a failure of
// the test, and so is one that is left open for five seconds.
template <class Window, QWidget* (*activeWindow)()>
class WindowAnswer {
public:
    explicit WindowAnswer(std::function<void(Window&)> whatToDo) : answer(std::move(whatToDo)) {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Look(); });
        timer.start(std::chrono::milliseconds(10));
    }
    ~WindowAnswer() { EXPECT_TRUE(asked) << "no dialog or menu came"; }

private:
    void Look() {
        auto* window = qobject_cast<Window*>(activeWindow());
        if (window && !asked) {
            asked = true;
            answer(*window);
            if constexpr (std::is_same_v<Window, QMenu>) window->close();
        } else if (++ticks > 500 && window) {
            ADD_FAILURE() << "left open: " << window->windowTitle().toStdString();
            window->close();
        }
    }

    std::function<void(Window&)> answer;
    bool asked = false;
    int ticks = 0;
    QTimer timer;
};

using DialogAnswer = WindowAnswer<QDialog, &QApplication::activeModalWidget>;
// Closes the menu after the answer.
using PopupAnswer = WindowAnswer<QMenu, &QApplication::activePopupWidget>;

// Presses the message box's button of that QDialogButtonBox::StandardButton.
inline std::function<void(QDialog&)> Press(int button) {
    return [button](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_TRUE(box) << "no message box";
        box->button(static_cast<QMessageBox::StandardButton>(button))->click();
    };
}

// The texts of the menu's items, without the marks of their mnemonics; a separator is empty.
inline QStringList ItemTexts(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) texts += action->text().remove('&');
    return texts;
}
