#pragma once

#include <QDialog>
#include <QTimer>

#include <functional>

// Answers the next modal dialog by what the test does to it. A dialog that nobody answers within five seconds
// is closed and the test fails.
class DialogAnswer {
public:
    explicit DialogAnswer(std::function<void(QDialog&)> whatToDo);
    ~DialogAnswer();

    bool WasAsked() const { return asked; }

private:
    void Look();

    std::function<void(QDialog&)> answer;
    bool asked = false;
    int ticks = 0;
    QTimer timer;
};

// Presses the message box's button of that QDialogButtonBox::StandardButton.
std::function<void(QDialog&)> Press(int button);
