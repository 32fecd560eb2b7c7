// The smallest Qt program with a window, for comparison in dev/bench/startup.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1000, 720);
    window.show();
    return QApplication::exec();
}
