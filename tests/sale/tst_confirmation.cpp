#include "tests/sale/SaleCounter.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMessageBox>
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
            counter.refuses("cmdfinalizar", counter.text(key), focus);
        };
        // The newest period decides.
        counter.cafe.execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (8,False)");
        refuses("MsgBox7");
        counter.cafe.execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (1000000,True)");
        refuses("MsgBox8", "cmbprodutos");
        counter.put("BALA");
        counter.type("txtvalor_desconto", "10,90");
        pickEntry(counter.at<QComboBox>("txtmotivo"), "2");
        // The cents of a discount don't count where it is held against the total.
        refuses("MsgBox11", "txtmotivo");
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
        // While she is asked, the window takes nothing else.
        counter.expectQuestion("10,00, paga por\nANA LIMA", vbNo, [&] {
            for (const char *button : {"cmdadicionar", "cmdexcluir", "cmdfinalizar", "cmdcancelar"})
                counter.press(button);
        });
        counter.press("cmdfinalizar");
        // The rule is asked for after the question.
        pickEntry(counter.at<QComboBox>("txtmotivo"), "3");
        counter.press("chkdesconto");
        counter.expectQuestion("9,00, paga por\nANA LIMA");
        counter.expectNotice("MsgBox16");
        counter.press("cmdfinalizar");
        QCOMPARE(counter.cart(), QStringList{"BALA|1|10,00"});
        QCOMPARE(counter.sold("Codigo"), QStringList());
        QCOMPARE(counter.stock("BALA"), QString("10"));
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
        // Cents in excess come off where they show, and off each later line once more.
        QCOMPARE(shares({"P11", "P12", "P13", "P14"}, "0,06", "3,94"), (QStringList{"0,02", "0,02", "0,02", "0,00"}));
        counter.cafe.execute("Delete from Venda_Produtos");
        counter.put("BALA");
        counter.type("txtvalor_desconto", "1");
        // No rule applies to the new total: the box is unticked, and the amount is left for this sale.
        counter.put("BALA");
        counter.sell("19", "19,00, paga por\nANA LIMA");
        QCOMPARE(counter.sold("Desconto,Motivo_Desconto"), QStringList{"1,00|-----------"});
    }

    void storesLines()
    {
        SaleCounter counter;
        counter.cafe.execute("Insert into Venda_Produtos (Codigo) values (41)");
        counter.change("Produtos", "Quantidade='10,5', Estoque_Min='9' Where Codigo=3");
        counter.add("Produtos", "Codigo=9, Descrição='XEROX', Valor_Unitario='0,5', Quantidade='0', Servico=True");
        counter.open();
        counter.put("XEROX", "3");
        counter.put("CAFÉ");
        counter.put("BALA");
        counter.put("12", "2");
        counter.expectQuestion("41,50, paga por\nANA LIMA");
        counter.expectNotice("MsgBox13");
        // In the order of the cart; the warning reads 9,5 as 9, and leaves services out.
        counter.attendant.expectNotice("Os produtos abaixo atingiram o estoque mínimo:\n\nCAFÉ\nBALA\nÁGUA\n",
                                       "Atenção");
        counter.enter("txtvalor_pago", "50");
        QCOMPARE(counter.sold("Codigo,Data,Hora,Descrição,Quantidade,Nome,Nick,Avulsa,Debito").last(),
                 QString("45|15/03/2024|14:30:05|ÁGUA|2|ANA LIMA|ANINHA|False|False"));
        QCOMPARE(counter.sold("Valor_Total,Desconto,Motivo_Desconto,Id_Caixa,Id_Caixa_Pago,Categoria").last(),
                 QString("20,00|0,00|-----------|7|7|DIVERSOS"));
        QCOMPARE((QStringList{counter.stock("ÁGUA"), counter.stock("BALA"), counter.stock("XEROX")}),
                 (QStringList{"8", "9,5", "0"}));
        QCOMPARE(counter.cart(), QStringList());
    }

    void writesAmountsOfTheRegion()
    {
        SaleCounter counter(QLocale(QLocale::English, QLocale::UnitedStates));
        counter.add("Produtos", "Codigo=9, Descrição='TEA', Valor_Unitario='12.5', Quantidade='10.5'");
        counter.add("Descontos", "Codigo=2, Relativo='7.5', Valor='12.5', Motivo_Desconto='TEA TIME'");
        counter.open();
        counter.put("TEA");
        // The comma separates thousands here: 1,5 is fifteen.
        counter.type("txtvalor_pago", "1,5");
        QCOMPARE(counter.shown("lbltroco"), QString("R$ 3.44"));
        counter.sell("1,5", "11.56, paga por\nANA LIMA");
        QCOMPARE(counter.sold("Data,Valor_Total,Desconto,Motivo_Desconto"),
                 QStringList{"3/15/2024|12.50|0.94|TEA TIME"});
        QCOMPARE(counter.stock("TEA"), QString("9.5"));
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

STORY_MAIN(tst_confirmation)
#include "tst_confirmation.moc"
