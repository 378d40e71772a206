#include "platform/window/Application.h"
#include "platform/window/Forms.h"
#include "shell/frmprincipal.h"

#include <QPushButton>
#include <QTimer>

// The terminal itself, which ends at the moment at which its doors are open.
int main(int argc, char **argv)
{
    const Application application(argc, argv);
    auto &main = Forms::use<frmprincipal>();
    main.Show();
    const auto *door = main.findChild<QPushButton *>("cmdvendaprod");
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &application, [door] {
        if (door->isEnabled())
            QApplication::quit();
    });
    watch.start(0);
    return Application::exec();
}
