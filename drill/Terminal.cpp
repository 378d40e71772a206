#include "drill/Terminal.h"

#include "configuration/Idiomas.h"
#include "platform/base/Machine.h"
#include "platform/text/RegionalSettings.h"
#include "platform/window/Forms.h"
#include "shell/frmprincipal.h"
#include "tests/support/Controls.h"
#include "tests/support/Willing.h"
#include "windows/OpenForms.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>

#include <iostream>
#include <string>

#include <sys/resource.h>

namespace {
constexpr int longestStart = 30'000;

void say(const QStringList &words)
{
    std::cout << words.join('\t').toStdString() << std::endl;
}

/// What this process and the children that have ended took of the processor.
double processorSeconds()
{
    constexpr double microseconds = 1e-6;
    double seconds = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        ::getrusage(who, &usage);
        for (const timeval &time : {usage.ru_utime, usage.ru_stime})
            seconds += static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * microseconds;
    }
    return seconds;
}

class Counter : public Willing
{
public:
    Counter(frmprincipal &shell, int firstSerial) : m_shell(shell), m_serial(firstSerial) {}

    bool wasTold() const { return m_told; }

    /// Called while the café is there: the texts by which the windows tell that something was stored.
    void learnTexts()
    {
        m_doneTexts = {{"customer", textoIdioma("frmcadastro_clientes", "MsgBox21")},
                       {"sale", textoIdioma("frmvenda", "MsgBox13")},
                       {"code", textoIdioma("frmcodigo_rapido", "MsgBox14")}};
    }

    /// While the café is broken on purpose, nothing is tried twice.
    void expectBroken(bool broken) { m_broken = broken; }

    void work(const QString &kind)
    {
        ++m_serial;
        if (kind == "sale")
            sell();
        else if (kind == "customer")
            registerCustomer();
        else if (kind == "code")
            sellCode();
        else if (kind == "edit")
            edit();
        else if (kind == "held")
            workOnHeldFile();
        else if (kind == "webcam" || kind == "watch")
            useWebcam(kind == "watch");
        else
            tick();
    }

    int message(const QString &text, int style, const QString &title) override
    {
        m_told = true;
        if (!m_kind.isEmpty() && text == m_doneTexts.value(m_kind))
            done();
        else
            say({"told", text.section('\n', 0, 0)});
        const bool asks = (style & vbYesNo) != 0;
        if (asks && m_asksForSign) {
            m_asksForSign = false;
            say({"question"});
            std::string sign;
            std::getline(std::cin, sign);
            m_freeze.start();
        }
        // The question about a code comes when the customer is stored.
        const bool offersCode = text == m_doneTexts.value("customer");
        return offersCode && !m_wantsCode ? int(vbNo) : Willing::message(text, style, title);
    }

private:
    void begin(const QString &kind, int serial, const QString &value = {})
    {
        m_kind = kind;
        m_isDone = false;
        m_words = {kind, QString::number(serial), value};
        say(QStringList("try") + m_words);
    }
    void done()
    {
        m_isDone = true;
        m_kind.clear();
        say(QStringList("done") + m_words);
    }

    /// Null when the door stays shut.
    Form *window(const QString &door, const QString &name)
    {
        if (!Form_Aberto(name))
            click(m_shell, door);
        return Form_Aberto(name) ? &loadedWindow(name) : nullptr;
    }

    void sell()
    {
        Form *sale = window("cmdvendaprod", "frmvenda");
        if (!sale)
            return;
        begin("sale", m_serial);
        fillCart(*sale);
        click(*sale, "cmdfinalizar");
        // A cart that was refused would be sold with the next one.
        if (!m_isDone)
            sale->Unload();
    }

    void fillCart(Form &sale)
    {
        for (const QString &product : drilledProducts)
            putIntoCart(sale, product, QString::number(m_serial));
        replaceText(control(sale, "txtvalor_pago"), "99999999");
    }

    void workOnHeldFile()
    {
        Form *sale = window("cmdvendaprod", "frmvenda");
        if (!sale)
            return;
        begin("sale", m_serial);
        fillCart(*sale);
        m_asksForSign = true;
        press("yes to the sale", *sale, "cmdfinalizar");
        closeWindows();
        press("opening the sale", m_shell, "cmdvendaprod");
        press("opening the customers", m_shell, "cmdclientes");
        closeWindows();
    }

    static void closeWindows()
    {
        for (const char *name : {"frmvenda", "frmcadastro_clientes"})
            if (Form_Aberto(name))
                loadedWindow(name).Unload();
    }

    /// A press, until the windows can be worked again.
    void press(const QString &what, const Form &form, const QString &button)
    {
        m_freeze.start();
        click(form, button);
        QCoreApplication::processEvents();
        say({"press", what, QString::number(m_freeze.elapsed())});
    }

    void registerCustomer()
    {
        constexpr int mostPresses = 50;
        Form *customers = window("cmdclientes", "frmcadastro_clientes");
        if (!customers)
            return;
        begin("customer", m_serial);
        replaceText(control(*customers, "txtnome"), drilledCustomer(m_serial));
        // Boxes left empty are filled with a placeholder, which a second press would find taken.
        replaceText(control(*customers, "txtnick"), 'T' + QString::number(m_serial));
        replaceText(control(*customers, "txtdocumento"), 'D' + QString::number(m_serial));
        click(*customers, "cmdok");
        // Another terminal may have taken the number; then nobody is told, and the form stays filled.
        for (int presses = 1; !m_isDone && !m_broken && presses < mostPresses; ++presses) {
            say({"again"});
            click(*customers, "cmdok");
        }
        m_customer = m_isDone ? m_serial : 0;
    }

    void sellCode()
    {
        m_wantsCode = true;
        registerCustomer();
        m_wantsCode = false;
        if (!Form_Aberto("frmcodigo_rapido"))
            return;
        begin("code", m_serial);
        click(loadedWindow("frmcodigo_rapido"), "cmdfinalizar");
        if (Form_Aberto("frmcodigo_rapido"))
            loadedWindow("frmcodigo_rapido").Unload();
    }

    void edit()
    {
        Form *customers = window("cmdclientes", "frmcadastro_clientes");
        if (!customers || m_customer == 0)
            return;
        replaceText(control(*customers, "txtnome_busca"), drilledCustomer(m_customer));
        pressKey(control(*customers, "txtnome_busca"), Qt::Key_Return);
        click(*customers, "cmdeditar");
        const QString value = 'K' + QString::number(m_serial);
        replaceText(control(*customers, "txtComplemento"), value);
        begin("edit", m_customer, value);
        click(*customers, "cmdeditar");
        // The box empties when the edit has ended well; a failure would have ended the program.
        if (control<QLineEdit>(*customers, "txtComplemento").text().isEmpty())
            done();
    }

    void useWebcam(bool watch)
    {
        constexpr int briefly = 150;
        constexpr int atLength = 5000;
        if (Form *customers = window("cmdclientes", "frmcadastro_clientes"))
            click(*customers, "cmdwebcam");
        if (!Form_Aberto("frmwebcam"))
            return;
        Form &webcam = loadedWindow("frmwebcam");
        const double spent = processorSeconds();
        m_freeze.start();
        if (watch)
            say({"watching"});
        QTest::qWait(watch ? atLength : m_serial % briefly);
        click(webcam, "cmdcapturar_tela");
        const qint64 watched = m_freeze.restart();
        click(webcam, "cmdcancelar");
        say({"webcam", QString::number(m_freeze.elapsed())});
        if (watch)
            say({"processor", QString::number((processorSeconds() - spent) * 100'000 / static_cast<double>(watched))});
    }

    void tick()
    {
        Form *sale = window("cmdvendaprod", "frmvenda");
        if (!sale)
            return;
        auto &box = control<QCheckBox>(*sale, "chkrecibo");
        begin("ini", 0, box.isChecked() ? "0" : "1");
        click(box);
        done();
    }

    frmprincipal &m_shell;
    int m_serial;
    int m_customer = 0;
    QHash<QString, QString> m_doneTexts;
    QString m_kind;
    QStringList m_words;
    bool m_isDone = false;
    bool m_asksForSign = false;
    QElapsedTimer m_freeze;
    bool m_wantsCode = false;
    bool m_told = false;
    bool m_broken = false;
};
} // namespace

QString drilledCustomer(int serial)
{
    return "TESTE " + QString::number(serial);
}

int runTerminal(const QString &programFolder, int firstSerial)
{
    RegionalSettings::use(QLocale(QLocale::Portuguese, QLocale::Brazil));
    Machine &machine = Machine::current();
    machine.programFolder = [=] { return programFolder; };
    machine.printoutFolder = [=] { return programFolder; };
    machine.printerNames = [] { return QStringList(); };
    machine.defaultPrinterName = [] { return QString(); };
    machine.playWave = [](const QString &) {};
    machine.openDocument = [](const QString &) {};

    auto &shell = Forms::use<frmprincipal>();
    Counter counter(shell, firstSerial);
    PromptService::use(&counter);
    shell.Show();
    const auto &door = control<QAbstractButton>(shell, "cmdvendaprod");
    const bool settled = QTest::qWaitFor([&] { return door.isEnabled() || counter.wasTold(); }, longestStart);
    if (!settled)
        return EXIT_FAILURE;
    say({door.isEnabled() ? "ready" : "closed"});
    counter.learnTexts();
    for (std::string line; std::getline(std::cin, line);) {
        const QStringList order = QString::fromStdString(line).split(' ');
        counter.expectBroken(order.value(2) == "broken");
        QElapsedTimer clock;
        clock.start();
        do {
            for (const QString &kind : order.value(0).split(','))
                counter.work(kind);
        } while (clock.elapsed() < order.value(1).toInt() * 1000);
        say({"idle"});
    }
    shell.Unload();
    return EXIT_SUCCESS;
}
