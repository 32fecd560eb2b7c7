// The least that a windowed program of the toolkit does: what dev/bench/startup compares ours with.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1000, 720);
    window.show();
    return QApplication::exec();
}
