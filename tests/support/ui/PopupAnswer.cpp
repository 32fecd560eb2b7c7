#include "support/ui/PopupAnswer.h"

#include <QApplication>

#include <chrono>
#include <gtest/gtest.h>

namespace {

constexpr std::chrono::milliseconds tick{5};

} // namespace

PopupAnswer::PopupAnswer(std::function<void(QMenu&)> whatToDo) : answer(std::move(whatToDo)) {
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Look(); });
    timer.start(tick);
}

PopupAnswer::~PopupAnswer() {
    EXPECT_TRUE(asked) << "no menu came";
}

void PopupAnswer::Look() {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    asked = true;
    timer.stop();
    answer(*menu);
    menu->close();
}

QStringList ItemTexts(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) texts += action->text().remove('&');
    return texts;
}

QAction* FindItemText(const QMenu& menu, const QString& text) {
    for (QAction* action : menu.actions())
        if (action->text().remove('&') == text) return action;
    return nullptr;
}
