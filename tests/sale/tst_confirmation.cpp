#include "platform/window/Forms.h"
#include "tests/sale/SaleCounter.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>

/// From the press of the confirm button to the stored lines and the empty window.
class tst_confirmation : public QObject
{
    Q_OBJECT

private slots:
    void refusesInOrder()
    {
        SaleCounter counter;
        counter.add("Descontos", "Codigo=2, Fixo=False, LiberarAuto=False, Motivo_Desconto=''");
        counter.cafe.execute("Delete from Clientes");
        counter.open();
        const auto refuses = [&](const QString &key, const QString &focus = {}) {
            counter.expectNotice(key);
            counter.press("cmdfinalizar");
            QVERIFY2(focus.isEmpty() || counter.at(focus).hasFocus(), qPrintable(focus));
            QCOMPARE(counter.window().cursor().shape(), Qt::ArrowCursor);
        };
        // A closed till goes before all else that is wrong here.
        counter.change("Registro_Caixa", "Caixa_Aberto=False");
        refuses("MsgBox7");
        counter.cafe.execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (8,True)");
        refuses("MsgBox8", "cmbprodutos");
        counter.put("BALA");
        counter.type("txtvalor_desconto", "10,90");
        pickEntry(counter.at<QComboBox>("txtmotivo"), "2");
        // Nothing is left to pay, so that only a text that is no number falls short of it.
        counter.paste("txtvalor_pago", "dez");
        refuses("MsgBox9", "txtvalor_pago");
        // The cents of a discount don't count where it is held against the total.
        counter.type("txtvalor_pago", "");
        refuses("MsgBox11", "txtmotivo");
        QCOMPARE(counter.shown("txtvalor_pago"), QString("0"));
        counter.type("txtvalor_desconto", "11");
        refuses("MsgBox10", "txtvalor_desconto");
        counter.type("txtvalor_desconto", "1");
        counter.type("txtvalor_pago", "8,99");
        refuses("MsgBox9", "txtvalor_pago");
        counter.type("txtvalor_pago", "9");
        pickEntry(counter.at<QComboBox>("txtmotivo"), "1");
        refuses("MsgBox12", "txtnome");
        QCOMPARE(counter.cart(), QStringList{"BALA|1|10,00"});
        QCOMPARE(counter.sold("Codigo"), QStringList());
    }

    void keepsEverythingOnNo()
    {
        SaleCounter counter;
        counter.add("Descontos", "Codigo=3, Absoluto='1', Valor='50'");
        counter.open();
        counter.put("BALA");
        counter.type("txtvalor_pago", "10");
        counter.expectQuestion("10,00, paga por\nANA LIMA", vbNo);
        counter.press("cmdfinalizar");
        // The rule is asked for after the question, whatever its answer is.
        pickEntry(counter.at<QComboBox>("txtmotivo"), "3");
        counter.press("chkdesconto");
        for (const int answer : {vbNo, vbYes}) {
            counter.expectQuestion("9,00, paga por\nANA LIMA", answer);
            counter.expectNotice("MsgBox16");
            counter.press("cmdfinalizar");
            QVERIFY(counter.at("txtmotivo").hasFocus());
        }
        QCOMPARE(counter.cart(), QStringList{"BALA|1|10,00"});
        QCOMPARE(counter.sold("Codigo").size() + counter.stock("BALA").toInt(), 10);
        counter.press("chkdesconto");
        counter.sell("10");
        QCOMPARE(counter.sold("Codigo,Descrição,Desconto,Motivo_Desconto"), QStringList{"1|BALA|0,00|-----------"});
    }

    void sharesDiscount()
    {
        SaleCounter counter;
        counter.change("Produtos", "Estoque_Min='0'");
        for (const char *code : {"11", "12", "13", "14"})
            counter.add("Produtos", QString("Codigo=%1, Descrição='P%1', Valor_Unitario='1'").arg(code));
        counter.open();
        const auto shares = [&](const QStringList &products, const QString &discount, const QString &total) {
            counter.cafe.execute("Delete from Venda_Produtos");
            for (const QString &product : products)
                counter.put(product);
            counter.type("txtvalor_desconto", discount);
            counter.sell(total, total + ", paga por\nANA LIMA");
            return counter.sold("Desconto,Motivo_Desconto").replaceInStrings("|NEGOCIADO", "");
        };
        // Cents left over go to the last line.
        QCOMPARE(shares({"12", "BALA", "CAFÉ"}, "10", "20,00"), (QStringList{"3,33", "3,33", "3,34"}));
        QCOMPARE(shares({"BALA", "P11"}, "5,5", "5,50"), (QStringList{"5,00", "0,50"}));
        // Cents in excess come off where they show, and off each later line once more.
        QCOMPARE(shares({"P11", "P12", "P13", "P14"}, "0,06", "3,94"), (QStringList{"0,02", "0,02", "0,02", "0,00"}));
    }

    void storesLines()
    {
        SaleCounter counter;
        counter.cafe.execute("Insert into Venda_Produtos (Codigo) values (41)");
        counter.change("Produtos", "Quantidade='10,5', Estoque_Min='9' Where Codigo=3");
        counter.add("Produtos", "Codigo=9, Descrição='XEROX', Valor_Unitario='0,5', Quantidade='0', Servico=True");
        counter.open();
        counter.put("XEROX", "3");
        for (const char *product : {"CAFÉ", "BALA"})
            counter.put(product);
        counter.put("12", "2");
        counter.expectQuestion("41,50, paga por\nANA LIMA");
        counter.expectNotice("MsgBox13");
        // In the order of the cart; the warning reads 9,5 as 9, and leaves services out.
        counter.attendant.expectNotice("Os produtos abaixo atingiram o estoque mínimo:\n\nCAFÉ\nBALA\nÁGUA\n",
                                       "Atenção");
        counter.enter("txtvalor_pago", "50");
        const QStringList first = counter.sold("Codigo,Data,Hora,Descrição,Quantidade,Nome,Nick,Avulsa,Debito");
        QCOMPARE(first.value(1), QString("42|15/03/2024|14:30:05|XEROX|3|ANA LIMA|ZEBRA|False|False"));
        QCOMPARE(first.last(), QString("45|15/03/2024|14:30:05|ÁGUA|2|ANA LIMA|ZEBRA|False|False"));
        const QString rest = "Valor_Total,Desconto,Motivo_Desconto,Data_Pag,Hora_Pag,Id_Caixa,Id_Caixa_Pago,Categoria";
        QCOMPARE(counter.sold(rest).last(), QString("20,00|0,00|-----------|15/03/2024|14:30:05|7|7|DIVERSOS"));
        QCOMPARE((QStringList{counter.stock("ÁGUA"), counter.stock("BALA"), counter.stock("XEROX")}),
                 (QStringList{"8", "9,5", "0"}));

        QCOMPARE(counter.cart(), QStringList());
        for (const QStringList &row :
             table({"lbltotal|R$ 0,00", "lbltotal_final|R$ 0,00", "lbltroco|R$ 000", "txtquantidade|1",
                    "txtvalor_pago|0000000", "cmbprodutos|", "lblquant_estoque|Estoque: ", "txtnome|ANA LIMA"}))
            QCOMPARE((QStringList{row[0], counter.shown(row[0])}), row);
        QVERIFY(counter.at("cmbprodutos").hasFocus());

        // Each of the two keys silences the till. A name that breaks the insert breaks nothing else.
        counter.change("Clientes", "Nome='JOANA D''ARCO'");
        counter.open();
        for (const char *key : {"Ativo", "Caixa Reg"}) {
            counter.cafe.setIni("Som", key, "0");
            counter.put("XEROX");
            counter.sell("1", "0,50, paga por\nJOANA D'ARCO");
            counter.cafe.setIni("Som", key, "1");
        }
        QCOMPARE(counter.machine.sounds.size(), 1);
        QVERIFY(counter.machine.sounds.first().endsWith("Caixa.wav"));
        QCOMPARE(counter.sold("Codigo").size(), first.size());
    }

    void writesAmountsOfTheRegion()
    {
        SaleCounter counter(QLocale(QLocale::English, QLocale::UnitedStates));
        counter.add("Produtos", "Codigo=9, Descrição='TEA', Valor_Unitario='12.5', Quantidade='10.5'");
        counter.add("Descontos", "Codigo=2, Relativo='7.5', Valor='12.5', Motivo_Desconto='TEA TIME'");
        counter.open();
        counter.put("TEA");
        // The comma that boxes take separates thousands here: 1,5 is fifteen.
        counter.type("txtvalor_pago", "1,5");
        QCOMPARE(counter.shown("lbltroco"), QString("R$ 3.44"));
        counter.sell("1,5", "11.56, paga por\nANA LIMA");
        QCOMPARE(counter.sold("Data,Valor_Total,Desconto,Motivo_Desconto"),
                 QStringList{"3/15/2024|12.50|0.94|TEA TIME"});
        QCOMPARE(counter.stock("TEA"), QString("9.5"));
    }

    void storesDebt()
    {
        SaleCounter counter;
        counter.open();
        counter.put("BALA");
        counter.press("optnão_pago");
        counter.put("BALA");
        QCOMPARE(counter.shown("txtvalor_pago"), QString("20"));
        counter.press("chkrecibo");
        counter.attendant.expect("Confirma a venda no valor de R$ 20,00, a pagar depois, para\nANA LIMA?",
                                 vbYesNo + vbInformation, "Atenção", vbYes);
        counter.expectNotice("MsgBox13");
        counter.press("cmdfinalizar");
        QCOMPARE(counter.sold("Debito,Avulsa,Data_Pag,Id_Caixa_Pago"), QStringList{"True|False|15/03/2024|7"});
        QCOMPARE(counter.stock("BALA"), QString("8"));
        QCOMPARE(counter.machine.sounds.size() + counter.machine.printouts().size(), 0);
        counter.put("BALA");
        counter.press("optpago");
        QCOMPARE(counter.shown("txtvalor_pago"), QString("10"));
    }

    void locksDuringTheQuestion()
    {
        SaleCounter counter;
        counter.open();
        counter.put("BALA");
        counter.type("txtvalor_pago", "10");
        counter.expectQuestion("10,00, paga por\nANA LIMA", vbYes, [&] {
            counter.put("12");
            counter.enter("txtcod_barra", "7891200000074");
            pressKey(counter.at("txtvalor_pago"), Qt::Key_Return);
            for (const char *button :
                 {"cmdfinalizar", "cmdadicionar", "cmdexcluir", "optavulsa", "cmdbusca", "cmdcancelar"})
                counter.press(button);
            QCOMPARE(counter.cart(), QStringList{"BALA|1|10,00"});
        });
        counter.expectNotice("MsgBox13");
        counter.press("cmdfinalizar");
        QCOMPARE(counter.sold("Descrição,Nome,Avulsa"), QStringList{"BALA|ANA LIMA|False"});
        counter.press("cmdcancelar");
        QCOMPARE(Forms::loaded().size(), 0);
    }

    void sellsOnceWhileEnterIsHeld()
    {
        SaleCounter counter;
        for (const char *place : {"cmdfinalizar", "txtvalor_pago"}) {
            counter.open();
            counter.put("BALA");
            counter.type("txtvalor_pago", "10");
            // The desktop's own boxes, which Enter answers too.
            PromptService::use(nullptr);
            QStringList boxes;
            int repeats = 40;
            const std::function<void()> repeatEnter = [&] {
                QWidget *receiver = QApplication::activeModalWidget();
                if (const auto *box = qobject_cast<QMessageBox *>(receiver))
                    boxes += box->text();
                else if (--repeats > 0)
                    receiver = QApplication::focusWidget();
                else
                    return;
                QTimer::singleShot(2, this, repeatEnter);
                QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
                if (receiver != nullptr)
                    QApplication::sendEvent(receiver, &enter);
            };
            counter.at(place).setFocus();
            repeatEnter();
            QTRY_COMPARE(repeats, 0);
            PromptService::use(&counter.attendant);
            QCOMPARE(boxes.filter("Confirma a venda").size(), 1);
            QCOMPARE(boxes.count("Venda registrada."), 1);
        }
        QCOMPARE(counter.sold("Descrição"), (QStringList{"BALA", "BALA"}));
    }
};

QTEST_MAIN(tst_confirmation)
#include "tst_confirmation.moc"
