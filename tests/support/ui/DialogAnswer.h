#pragma once

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <type_traits>

namespace keltavlo {

// Calls one answer with each of the next windows of a kind. The test fails if a window never comes, or stays
// open for five seconds.
template <class Window, QWidget* (*activeWindow)()>
class WindowAnswer {
public:
    template <class... Answers>
    explicit WindowAnswer(Answers... inTurn) : answers{std::move(inTurn)...} {
        LookLater();
    }
    ~WindowAnswer() { EXPECT_EQ(asked, answers.size()) << "dialogs or menus"; }

private:
    // Every look has its own timer, because an answer may open the next window and return after that.
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

// Counts the events that reach a widget, and collects the region that it repaints.
struct EventSpy : QObject {
    explicit EventSpy(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        ++counts[event->type()];
        if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    std::map<QEvent::Type, int> counts;
    QRegion region;
};

// Returns whether all pixels are equal.
inline bool IsPlain(const QImage& picture) {
    QImage plain = picture;
    plain.fill(picture.pixelColor(0, 0));
    return picture == plain;
}

// Waits for the condition, also on a busy machine, and returns whether it holds.
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
// Returns this as an answer.
inline auto Press(QDialogButtonBox::StandardButton button) {
    return [button](const QDialog& dialog) { Press(dialog, button); };
}
// Returns an answer that expects the words in a message box and presses the button.
inline auto Confirm(const char* words, QDialogButtonBox::StandardButton button) {
    return [=](const QDialog& dialog) {
        const auto& box = dynamic_cast<const QMessageBox&>(dialog);
        EXPECT_TRUE(box.text().contains(words)) << words;
        EXPECT_EQ(box.textFormat(), Qt::PlainText) << "names of files may look like markup";
        Press(dialog, button);
    };
}
// Enters a file's name and presses the button.
inline void EnterName(const QDialog& dialog, const QString& name, QDialogButtonBox::StandardButton button) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
    Press(dialog, button);
}

// Returns the button with that text or, without a text, with that name.
inline QAbstractButton& FindButton(const QWidget& window, const QString& name) {
    for (auto* button : window.findChildren<QAbstractButton*>())
        if (button->text() == name || button->accessibleName() == name) return *button;
    throw std::runtime_error("no such button");
}

// Returns the texts of the menu's items without the marks of their mnemonics; a separator is empty.
inline QStringList ItemTexts(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) texts += action->text().remove('&');
    return texts;
}

} // namespace keltavlo
