#include "shell/frmprincipal.h"
#include "tests/sale/SaleCounter.h"
#include "tests/support/Scenes.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QDirIterator>
#include <QGroupBox>
#include <QLabel>

#include <algorithm>

namespace {
/// Two captions of old that want the same key; it takes the keyboard from one to the other.
const QStringList allowedClashes{"frmetiquetas Alt+C chkbarras cmdcancelar"};

QString focusName()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : "nothing";
}

/// What the keyboard can reach, in the order in which the controls were made.
QList<QWidget *> focusable(const Form &window, Qt::FocusPolicy policy)
{
    QList<QWidget *> found = window.findChildren<QWidget *>();
    found.removeIf([&](const QWidget *each) {
        return !each->isVisible() || each->window() != &window || each->focusProxy() || !(each->focusPolicy() & policy);
    });
    return found;
}

/// How a screen reader calls a control.
QString spokenName(QWidget &control)
{
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&control);
    for (const auto &[label, relation] : access->relations(QAccessible::Label))
        if (label->role() != QAccessible::Grouping)
            return label->text(QAccessible::Name);
    // Asked for its name a list says its entry, and what has neither label nor caption the title of its frame.
    const auto *frame = qobject_cast<QGroupBox *>(control.parentWidget());
    const auto *button = qobject_cast<QAbstractButton *>(&control);
    const bool borrows = frame && control.accessibleName().isEmpty() && (!button || button->text().isEmpty());
    const QString name = access->text(QAccessible::Name);
    return control.inherits("QComboBox") || (borrows && name == frame->title()) ? QString() : name.trimmed();
}

/// The controls that Tab visits until it comes back, or the way into a trap.
QStringList tabChain(const Form &window, Qt::KeyboardModifiers modifiers = {})
{
    QStringList visited;
    const QWidget *const start = QApplication::focusWidget();
    do {
        visited += focusName();
        pressKey(*QApplication::focusWidget(), modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
    } while (QApplication::focusWidget() != start && visited.size() <= focusable(window, Qt::TabFocus).size());
    return visited;
}

/// The keys of a window's captions and who wants each; under no key the labels that want none.
QMap<QString, QStringList> mnemonics(const Form &window)
{
    QMap<QString, QStringList> owners;
    for (const QWidget *each : window.findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(each);
        if (label ? label->buddy() && !label->text().isEmpty() : each->inherits("QAbstractButton")) {
            const QString text = each->property("text").toString();
            const QString key = QKeySequence::mnemonic(text).toString();
            if (label || !key.isEmpty())
                owners[key] += key.isEmpty() ? text : each->objectName();
        } else if (const auto *frame = qobject_cast<const QGroupBox *>(each); frame && frame->title().contains('&')) {
            owners[QKeySequence::mnemonic(frame->title()).toString()] += frame->objectName();
        }
    }
    return owners;
}

/// All that is wrong with a window as it stands, one line each.
QString faults(const Form &window)
{
    QStringList lines;
    for (QWidget *control : focusable(window, Qt::StrongFocus))
        if (spokenName(*control).isEmpty())
            lines += "no name: " + control->objectName();

    // The first walk settles which option of a group Tab stops at.
    tabChain(window);
    const QStringList forward = tabChain(window);
    QStringList backward = tabChain(window, Qt::ShiftModifier);
    std::reverse(backward.begin() + 1, backward.end());
    QStringList reachable;
    for (const QWidget *control : focusable(window, Qt::TabFocus))
        if (control->isEnabled())
            reachable += control->objectName();
    QStringList visited = forward;
    visited.sort();
    reachable.sort();
    if (visited != reachable || forward != backward)
        lines += "Tab: " + forward.join(' ') + "\nback: " + backward.join(' ') + "\nwanted: " + reachable.join(' ');

    const QMap<QString, QStringList> keys = mnemonics(window);
    for (auto each = keys.begin(); each != keys.end(); ++each) {
        const QString clash = window.Name() + ' ' + each.key() + ' ' + each.value().join(' ');
        if (!each.key().isEmpty() && each.value().size() > 1 && !allowedClashes.contains(clash))
            lines += "clash: " + clash;
    }
    return lines.join('\n');
}

/// Keys alone, which go wherever the keyboard is. "=text" types and presses Enter, ">control" presses Tab until it is
/// there, "@window" waits until it has the keyboard, "<window" until those above it have gone; all else is a key.
void work(const QStringList &steps)
{
    for (const QString &step : steps) {
        const QString name = step.mid(1);
        if (step[0] == '<') {
            QTRY_COMPARE(Forms::loaded().last()->Name(), name);
            // As a window manager does.
            Forms::loaded().last()->activateWindow();
        }
        if (step[0] == '@' || step[0] == '<') {
            QTRY_VERIFY2(QApplication::activeWindow() && QApplication::activeWindow()->objectName() == name &&
                             QApplication::focusWidget(),
                         qPrintable(name));
        } else if (step[0] == '>') {
            for (int tab = 0; focusName() != name && tab < 40; ++tab)
                work({"Tab"});
            QCOMPARE(focusName(), name);
        } else if (step[0] == '=') {
            typeText(*QApplication::focusWidget(), name);
            work({"Return"});
        } else {
            const QKeyCombination key = QKeySequence(step)[0];
            pressKey(*QApplication::focusWidget(), key.key(), key.keyboardModifiers());
        }
    }
}

} // namespace

/// Every window, as somebody works in it who has no mouse or sees no screen.
class tst_accessibility : public QObject
{
    Q_OBJECT

private slots:
    void knowsEveryWindow()
    {
        QSet<QString> designs;
        for (QDirIterator it(WINDOW_DESIGNS, {"*.ui"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
            designs += QFileInfo(it.next()).baseName();
        const QStringList windows = Scenes::windows();
        QCOMPARE(designs, QSet<QString>(windows.begin(), windows.end()));
    }

    void everyWindow_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : Scenes::languages())
            QTest::addRow("%s", qPrintable(language)) << language;
    }

    void everyWindow()
    {
        QFETCH(const QString, language);
        Scenes scenes(language);
        for (const QString &scene : Scenes::windows() + Scenes::states())
            scenes.play(scene, [&](Form &window) {
                const auto check = [&] {
                    const QString found = faults(window);
                    QVERIFY2(found.isEmpty(), qPrintable(scene + ": " + found));
                };
                check();
                const QMap<QString, QStringList> keys = mnemonics(window);
                // A further state may leave a letter free.
                const QStringList without = Scenes::windows().contains(scene) ? keys[""] : QStringList();
                for (const QString &text : without)
                    for (const QChar letter : text)
                        QVERIFY2(!QChar::isLetter(letter.unicode()) || letter.unicode() > 127 ||
                                     keys.contains(QString("Alt+") + letter.toUpper()),
                                 qPrintable(text + " could have a mnemonic"));
                for (const char *turn : {"optavulsa", "chkserviço", "optexpira", "opt2via"})
                    if (auto *button = window.findChild<QAbstractButton *>(turn); button && button->isEnabled()) {
                        click(*button);
                        check();
                    }
            });
    }

    void readersGetTotalsAndCells()
    {
        SaleCounter counter;
        counter.open();
        counter.put("12", "2");
        counter.type("txtvalor_pago", "50");
        const auto spoken = [&](const char *name) {
            const QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&counter.at(name));
            // The one role that readers speak wherever the keyboard is.
            return access->role() == QAccessible::Notification ? access->text(QAccessible::Name) : "silent";
        };
        QCOMPARE(spoken("lbltotal"), QString("Total da venda R$ 20,00"));
        QCOMPARE(spoken("lbltotal_final"), QString("Total final R$ 20,00"));
        QCOMPARE(spoken("lbltroco"), QString("Troco R$ 30,00"));
        QCOMPARE(spoken("lblquant_estoque"), QString("Estoque: 10"));

        counter.put("bala");
        counter.at("tab_consumo").setFocus();
        work({"End", "Right"});
        const QAccessibleTableInterface *cart =
            QAccessible::queryAccessibleInterface(&counter.at("tab_consumo"))->tableInterface();
        QCOMPARE((QList{cart->rowCount(), cart->columnCount()}), (QList{2, 4}));
        QCOMPARE(cart->columnDescription(2).trimmed(), QString("Quantidade"));
        QCOMPARE(cart->cellAt(0, 2)->text(QAccessible::Name), QString("2"));
        QCOMPARE(cart->cellAt(1, 1)->text(QAccessible::Name), QString("BALA"));
        QVERIFY(cart->cellAt(1, 1)->state().focused && cart->cellAt(1, 3)->state().selected);
        QVERIFY(!cart->cellAt(0, 1)->state().selected);
    }

    void aDayWithoutMouse()
    {
        SaleCounter counter;
        counter.cafe.setIni("Imprimir Etiqueta", "Ativo", "1");
        counter.cafe.setIni("Recibo Codigo", "Imprimir", "0");
        counter.cafe.setIni("Codigo Rapido", "Tipo", "1");
        Forms::use<frmprincipal>().Show();
        work({"@frmprincipal", "Alt+V", "@frmvenda", "Ctrl+A", "=an", "Alt+B", "=7891200000074", "=1", "Alt+O", "=bala",
              "=1"});
        QCOMPARE(counter.cart(), QStringList({"ÁGUA|1|10,00", "BALA|1|10,00"}));
        work({">tab_consumo", "End", "Alt+R"});
        QTRY_COMPARE(counter.shown("lbltotal"), QString("R$ 10,00"));
        counter.attendant.expectNotice("1 - NEGOCIADO", "Motivo do desconto");
        work({">txtvalor_desconto", "5", ">imgdesconto", "Space", ">optpago", "Right"});
        QCOMPARE(focusName(), QString("optnão_pago"));
        work({"Left", ">lblconfigurar_recibo", "Return", "@frmconfig_recibo", "Down", "Alt+O", "<frmvenda"});
        QCOMPARE(counter.cafe.ini("Recibo", "Via"), QString("2"));
        counter.expectQuestion("5,00, paga por\nANA LIMA");
        counter.expectNotice("MsgBox13");
        work({"Alt+V", "=20"});
        QCOMPARE(counter.sold("Descrição,Quantidade,Nome,Desconto"), QStringList("ÁGUA|1|ANA LIMA|5,00"));

        const auto ask = [&](const QString &window, const QString &question, const QString &title) {
            counter.attendant.expect(question, vbYesNo + vbInformation, textoIdioma(window, title), vbYes);
        };
        ask("frmcadastro_clientes", textoIdioma("frmcadastro_clientes", "MsgBox21"), "MsgBox13_2");
        work({"Alt+L", "<frmprincipal", "Alt+C", "@frmcadastro_clientes", "=Davi Luz", "Alt+D", "@frmcodigo_rapido"});
        const auto text = [](const QString &key) { return textoIdioma("frmcodigo_rapido", key); };
        ask("frmcodigo_rapido", text("MsgBox13") + "R$ 3,00" + text("MsgBox13_4") + "\nDAVI LUZ ? ", "MsgBox1_2");
        counter.attendant.expectNotice(text("MsgBox14"), text("MsgBox1_2"));
        counter.machine.whileAsleep = [] {
            // The two captions of one key: it goes from one to the other.
            work({"@frmetiquetas", "Alt+C"});
            const QString first = focusName();
            work({"Alt+C"});
            QCOMPARE(QSet({first, focusName()}), QSet<QString>({"chkbarras", "cmdcancelar"}));
            work({">cmbcoluna", "Return", "Return"});
        };
        work({"=ana7", "Return", "=3"});
        QCOMPARE(counter.cafe.value("Select Nome from Links Where Codigo_Acesso='00000000ANA7'"), QString("DAVI LUZ"));
        QCOMPARE(counter.machine.openedDocuments.size(), 2);
    }
};

STORY_MAIN(tst_accessibility)
#include "tst_accessibility.moc"
