#include <QApplication>
#include <QLabel>
#include <QTimer>

namespace {
/// Ends the program once it has been drawn.
class Window : public QLabel
{
protected:
    void paintEvent(QPaintEvent *event) override
    {
        QLabel::paintEvent(event);
        QTimer::singleShot(0, qApp, &QApplication::quit);
    }
};
} // namespace

// The reference for the start of the terminal: a Qt program that shows a window of the same size and ends. It shows one
// word, because reading the system's fonts, which no window with a text can do without, costs as much as all the rest.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Window window;
    window.setText("Morvelane");
    window.resize(520, 400);
    window.show();
    return QApplication::exec();
}
