#pragma once

#include <QMenu>
#include <QTimer>

#include <functional>

// Answers the next popup menu by what the test does to it, then closes it. A popup that never comes is a
// failure of the test.
class PopupAnswer {
public:
    explicit PopupAnswer(std::function<void(QMenu&)> whatToDo);
    ~PopupAnswer();

private:
    void Look();

    std::function<void(QMenu&)> answer;
    bool asked = false;
    QTimer timer;
};

// The texts of the menu's items, without the marks of their mnemonics; a separator is empty.
QStringList ItemTexts(const QMenu& menu);
// The first item of that text, without such marks; null when there is none.
QAction* FindItemText(const QMenu& menu, const QString& text);
