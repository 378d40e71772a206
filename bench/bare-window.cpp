#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {
/// Ends the program once it has been drawn.
class Window : public QWidget
{
public:
    Window()
    {
        auto *card = new QGroupBox;
        auto *inCard = new QVBoxLayout(card);
        inCard->addWidget(new QLabel("Morvelane"));
        for (const char *door : {"Cadastro de Clientes", "Cadastro de Produtos", "Venda de Produtos"})
            inCard->addWidget(new QPushButton(door));
        inCard->addWidget(new QLineEdit);
        inCard->addWidget(new QPushButton("..."));
        inCard->addWidget(new QProgressBar);
        (new QVBoxLayout(this))->addWidget(card);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QWidget::paintEvent(event);
        QTimer::singleShot(0, qApp, &QApplication::quit);
    }
};
} // namespace

// The reference for the start of the terminal: a Qt program that shows a window with the same controls and ends.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Window window;
    window.resize(520, 400);
    window.show();
    return QApplication::exec();
}
