#include "configuration/PointerFile.h"
#include "platform/window/Application.h"
#include "platform/window/Forms.h"
#include "shell/frmprincipal.h"

#include <QPushButton>
#include <QTimer>

namespace {
/// Ends the program once an open door has been drawn.
class Watch : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && static_cast<QWidget *>(watched)->isEnabled())
            QTimer::singleShot(0, qApp, &QApplication::quit);
        return false;
    }
};
} // namespace

// The terminal itself, which ends at the moment at which its doors are open.
int main(int argc, char **argv)
{
    const Application application(argc, argv);
    followPointerFile();
    auto &main = Forms::use<frmprincipal>();
    Watch watch;
    main.findChild<QPushButton *>("cmdvendaprod")->installEventFilter(&watch);
    main.Show();
    return Application::exec();
}
