#include "platform/window/Application.h"

#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/base/Patience.h"
#include "platform/print/PrintQueue.h"
#include "platform/window/BusySign.h"
#include "platform/window/Look.h"
#include "platform/window/Prompts.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdlib>
#include <utility>

namespace {
/// What the attendant does. All other events follow from it, such as the window that a press opens becoming active.
bool isPress(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::Wheel:
    case QEvent::Drop:
    case QEvent::Close:
        // The program sends such events too, in the midst of a press.
        return event.spontaneous();
    case QEvent::Shortcut:
        return true;
    default:
        return false;
    }
}
} // namespace

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    setApplicationName("morvelane-auxiliar");
    setApplicationDisplayName("Morvelane – Módulo Auxiliar");
    // The program ends with its main window, whichever windows are open then.
    setQuitOnLastWindowClosed(false);
    applyLook(*this);
    setWindowIcon(QIcon(":/pictures/programa.svg"));
    LongWork::setSign(showBusySign);
    Patience::renew();

    auto *translator = new QTranslator(this);
    if (translator->load(QLocale::system(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(translator);

    // Asked when a window needs them: looking for printers may wait for the network.
    Machine::current().printerNames = printQueueNames;
    Machine::current().defaultPrinterName = defaultPrintQueue;
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    // Also where a routine waits and lets events run: whoever presses anew is ready to wait anew, and what the routine
    // does afterwards follows from that press.
    if (isPress(*event))
        Patience::renew();
    try {
        return QApplication::notify(receiver, event);
    } catch (const RunTimeError &error) {
        static bool ending = false;
        if (std::exchange(ending, true))
            return false;
        MsgBox(QString("Erro em tempo de execução '%1':\n\n%2").arg(error.Number()).arg(error.Description()),
               vbCritical);
    }
    // At once: routines that wait below must not run on, and what was executed stays.
    std::_Exit(EXIT_FAILURE);
}
