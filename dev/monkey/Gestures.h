#pragma once

#include <QList>

#include <random>

class QAction;
class QMainWindow;
class QString;
class QWidget;

namespace keltavlo {

// Random gestures of the mouse and keyboard. They reach the widgets like Qt's own events, after which any
// widget may be gone.
class Gestures {
public:
    explicit Gestures(unsigned seed) : random(seed) {}

    int Below(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    template <class Items>
    auto AnyOf(const Items& items) {
        return *std::next(std::begin(items), Below(static_cast<int>(std::size(items))));
    }

    void PressKeyIn(QWidget& widget);
    // A press, a drag and a release in any widget of the window.
    void Click(const QMainWindow& window);
    void TurnWheel(const QMainWindow& window);
    // Chooses any enabled item of the menu bar except the one that ends the program.
    void ChooseFromMenu(const QMainWindow& window);
    static void Drop(QWidget& window, const QString& path);

private:
    QWidget* AnyWidget(const QMainWindow& window);

    std::mt19937 random;
};

} // namespace keltavlo
