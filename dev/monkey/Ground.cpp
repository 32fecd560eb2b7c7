#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGenericPlugin>
#include <QMainWindow>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace keltavlo {

namespace {

constexpr int side = 64; // of the picture in dev/monkey/ground, in texels
constexpr int step = 1;  // milliseconds
constexpr int strokesBeforeFailure = 100;

QMainWindow* FindMainWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<QMainWindow*>(widget); window && window->isVisible()) return window;
    return nullptr;
}

void Choose(const QMainWindow& window, const QString& text) {
    for (QAction* action : window.findChildren<QAction*>())
        if (action->text().remove('&').section('\t', 0, 0) == text) return action->trigger();
    std::fprintf(stderr, "ground: no item \"%s\"\n", qPrintable(text));
    std::_Exit(1);
}

void Send(QWidget& view, QEvent::Type type, QPoint place, Qt::MouseButtons buttons) {
    QMouseEvent event(type, place, view.mapToGlobal(place), Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
}

} // namespace

// With "edit", paints texel after texel, row by row, and keeps their number in the file "edits"; with "fail",
// also lets an exception escape. With "reopen", opens what was rescued, saves it and closes the program.
class Ground : public QObject {
public:
    explicit Ground(const QString& wantedTask) : task(wantedTask) { StepAgain(); }

private:
    // Before the step, because a dialog runs a loop of its own.
    void StepAgain() {
        QTimer::singleShot(step, this, [this] {
            StepAgain();
            if (QMainWindow* window = FindMainWindow()) task == "reopen" ? Reopen(*window) : Edit(*window);
        });
    }
    void Edit(QMainWindow& window) {
        QWidget* view = window.focusWidget(); // also without a window manager
        if (!view || !window.windowTitle().contains(".tga")) return;
        if (edits == 0) Choose(window, "Texel Brush");
        const QPoint place(edits % side, edits / side);
        Send(*view, QEvent::MouseButtonPress, place, Qt::LeftButton);
        Send(*view, QEvent::MouseButtonRelease, place, Qt::NoButton);
        ++edits;
        std::FILE* file = std::fopen("edits.new", "w");
        std::fprintf(file, "%d", edits);
        std::fclose(file);
        std::rename("edits.new", "edits");
        if (task == "fail" && edits == strokesBeforeFailure) throw std::runtime_error("a fault");
    }
    void Reopen(QMainWindow& window) {
        if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            for (QAbstractButton* button : question->buttons())
                if (button->text() == "&Open") return button->click();
        } else if (!QApplication::activeModalWidget() && window.isWindowModified()) {
            Choose(window, "Save");
            window.close();
        }
    }

    QString task;
    int edits = 0;
};

// Qt loads this into the unchanged program if QT_QPA_GENERIC_PLUGINS is ground:TASK.
class GroundPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "ground.json")

public:
    QObject* create(const QString&, const QString& specification) override {
        return new Ground(specification);
    }
};

} // namespace keltavlo

#include "Ground.moc"
