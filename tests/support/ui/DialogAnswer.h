#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include <functional>
#include <gtest/gtest.h>
#include <type_traits>

namespace keltavlo {

// Answers the next windows of a kind by what the test does to each in turn. A window that never comes is a
// failure of the test, and so is one that is left open for five seconds.
template <class Window, QWidget* (*activeWindow)()>
class WindowAnswer {
public:
    template <class... Answers>
    explicit WindowAnswer(Answers... inTurn) : answers{std::move(inTurn)...} {
        LookLater();
    }
    ~WindowAnswer() { EXPECT_EQ(asked, answers.size()) << "dialogs or menus"; }

private:
    // By a timer for each look: an answer may open the next window, and runs as long as that.
    void LookLater() {
        QTimer::singleShot(10, &watcher, [this] { Look(); });
    }
    void Look() {
        LookLater();
        auto* window = qobject_cast<Window*>(activeWindow());
        if (window && window != last && asked < answers.size()) {
            last = window;
            answers[asked++](*window);
            if constexpr (std::is_same_v<Window, QMenu>) window->close();
        } else if (++ticks > 500 && window) {
            ADD_FAILURE() << "left open: " << window->windowTitle().toStdString();
            window->close();
        }
    }

    std::vector<std::function<void(Window&)>> answers;
    std::size_t asked = 0;
    QPointer<Window> last;
    int ticks = 0;
    QObject watcher;
};

using DialogAnswer = WindowAnswer<QDialog, &QApplication::activeModalWidget>;
// Closes the menu after the answer.
using PopupAnswer = WindowAnswer<QMenu, &QApplication::activePopupWidget>;

// Whether the condition comes to hold, on a machine with much else to do, too.
template <class Condition>
bool WaitFor(Condition holds) {
    return QTest::qWaitFor(holds, 30000);
}

// Presses the button of a message box or another dialog.
inline void Press(const QDialog& dialog, QDialogButtonBox::StandardButton button) {
    const auto* box = dialog.findChild<QDialogButtonBox*>();
    ASSERT_TRUE(box && box->button(button)) << dialog.windowTitle().toStdString();
    box->button(button)->click();
}
// As an answer.
inline auto Press(QDialogButtonBox::StandardButton button) {
    return [button](const QDialog& dialog) { Press(dialog, button); };
}
// Enters a file's name and presses the button.
inline void EnterName(const QDialog& dialog, const QString& name, QDialogButtonBox::StandardButton button) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
    Press(dialog, button);
}

// The button with that text or, without a text, with that name.
inline QAbstractButton& FindButton(const QWidget& window, const QString& name) {
    for (auto* button : window.findChildren<QAbstractButton*>())
        if (button->text() == name || button->accessibleName() == name) return *button;
    throw std::runtime_error("no such button");
}

// The texts of the menu's items, without the marks of their mnemonics; a separator is empty.
inline QStringList ItemTexts(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) texts += action->text().remove('&');
    return texts;
}

} // namespace keltavlo
