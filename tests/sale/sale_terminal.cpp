// A terminal of its own: sale_terminal PROGRAM_FOLDER CARTS QUANTITY. It waits for a line on its input, sells that many
// carts of BALA, CAFÉ and CHÁ, and writes the text of every box that it was shown.

#include "platform/base/Machine.h"
#include "platform/text/RegionalSettings.h"
#include "platform/window/Application.h"
#include "platform/window/Forms.h"
#include "platform/window/Prompts.h"
#include "shell/frmprincipal.h"
#include "tests/support/Controls.h"

#include <QLocale>
#include <QTest>

#include <iostream>
#include <string>

namespace {
/// An attendant who says yes to everything.
class Willing : public PromptService
{
public:
    int message(const QString &text, int style, const QString &) override
    {
        std::cout << QString(text).replace('\n', ' ').toStdString() << std::endl;
        return (style & vbYesNo) != 0 ? vbYes : vbOK;
    }
    QString openFile(const FileDialog &) override { return {}; }
    QString saveFile(const FileDialog &) override { return {}; }
};

void sellCart(const Form &window, const QString &quantity)
{
    for (const char *product : {"BALA", "CAFÉ", "CHÁ"}) {
        replaceText(control(window, "cmbprodutos"), product);
        pressKey(control(window, "cmbprodutos"), Qt::Key_Return);
        replaceText(control(window, "txtquantidade"), quantity);
        pressKey(control(window, "txtquantidade"), Qt::Key_Return);
    }
    replaceText(control(window, "txtvalor_pago"), "1000");
    click(window, "cmdfinalizar");
}
} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv);
    const QStringList arguments = Application::arguments();
    RegionalSettings::use(QLocale(QLocale::Portuguese, QLocale::Brazil));
    Machine::current().programFolder = [&] { return arguments.value(1); };
    Machine::current().playWave = [](const QString &) {};
    Willing willing;
    PromptService::use(&willing);

    auto &shell = Forms::use<frmprincipal>();
    shell.Show();
    if (!QTest::qWaitForWindowActive(&shell))
        return 2;
    click(shell, "cmdvendaprod");
    if (Forms::loaded().size() != 2)
        return 3;
    std::cout << "ready" << std::endl;
    std::string go;
    std::getline(std::cin, go);
    for (int cart = 0; cart < arguments.value(2).toInt(); ++cart)
        sellCart(loadedWindow("frmvenda"), arguments.value(3));
    shell.Unload();
    return 0;
}
