#include <QApplication>
#include <QTimer>
#include <QWidget>

// The reference for the start of the terminal: a Qt program that shows an empty window of the same size and ends.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(520, 400);
    window.show();
    QTimer::singleShot(0, &application, &QApplication::quit);
    return QApplication::exec();
}
