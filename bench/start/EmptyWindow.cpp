// The least that a Qt program with a window does: what the program's own start is compared with.
#include <QApplication>
#include <QWidget>

int main(int count, char** arguments) {
    QApplication application(count, arguments);
    QWidget window;
    window.resize(480, 270); // as large as the splash
    window.show();
    return QApplication::exec();
}
