// The smallest Qt program with a window, for comparison in dev/bench/startup. With an argument, the window
// has the parts of KelTavlo's main window, made by the toolkit alone.
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

void AddParts(QMainWindow& window) {
    for (const char* title : {"&File", "&View", "&Tools", "&Help"}) window.menuBar()->addMenu(title);
    window.statusBar()->showMessage("Ready");
    window.setCentralWidget(new QMdiArea);
    window.addToolBar("Standard")->addAction("Open");
    auto* bar = new QDockWidget("Palette");
    bar->setWidget(new QComboBox);
    window.addDockWidget(Qt::RightDockWidgetArea, bar);
}

void ShowQuestion(QMainWindow& window) {
    QApplication::processEvents(); // paints the window first
    auto* question = new QDialog(&window);
    auto* column = new QVBoxLayout(question);
    column->addWidget(new QListWidget);
    column->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
    question->open();
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QMainWindow window;
    const bool hasParts = argc > 1;
    if (hasParts) AddParts(window);
    window.resize(1000, 720);
    window.show();
    if (hasParts) ShowQuestion(window);
    return QApplication::exec();
}
