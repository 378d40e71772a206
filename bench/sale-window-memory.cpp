#include "configuration/Globais.h"
#include "platform/window/Application.h"
#include "platform/window/Forms.h"
#include "sale/frmvenda.h"

#include <QFile>
#include <QTextStream>
#include <QTimer>

// Opens the sale window over the data file that is named and tells the resident memory in KiB.
int main(int argc, char **argv)
{
    const Application application(argc, argv);
    CaminhoBD = Application::arguments().value(1);
    Forms::use<frmvenda>().Show();
    QTimer::singleShot(500, &application, [] {
        QFile status("/proc/self/status");
        if (status.open(QIODevice::ReadOnly))
            for (const QByteArray &line : status.readAll().split('\n'))
                if (line.startsWith("VmRSS:"))
                    QTextStream(stdout) << line.simplified().split(' ').value(1) << Qt::endl;
        QApplication::quit();
    });
    return Application::exec();
}
