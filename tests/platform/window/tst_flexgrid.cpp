#include "platform/window/FlexGrid.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

class TestFlexGrid : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_grid = std::make_unique<FlexGrid>();
        m_grid->resize(400, 200);
        m_grid->setFormatString("<Cod   |<Nome               |>Valor|^Obs");
        m_grid->setRows(31);
        for (int row = 1; row < 31; ++row)
            m_grid->setTextMatrix(row, 1, QString("N%1").arg(row));
        m_grid->show();
        m_grid->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_grid.get()));
        m_grid->setFocus();
    }

    void mouseDragSelectsBeyondTheView()
    {
        QSignalSpy clicks(m_grid.get(), &FlexGrid::Click);
        QTest::mousePress(m_grid->viewport(), Qt::LeftButton, {}, place(2, 0));
        QTest::mouseMove(m_grid->viewport(), place(3, 0));
        QTest::mouseMove(m_grid->viewport(), QPoint(5, m_grid->viewport()->height() + 5));
        QVERIFY(m_grid->verticalScrollBar()->value() > 0);
        QTest::mouseRelease(m_grid->viewport(), Qt::LeftButton, {}, place(5, 0));
        QCOMPARE(m_grid->Row(), 2);
        QVERIFY(m_grid->RowSel() > 5);
        QCOMPARE(clicks.size(), 1);
    }

    void keysSelectAndKeepTheRowInView()
    {
        // A window brings a row that is out of view to the top, which would make the list jump.
        bool visible = true;
        connect(m_grid.get(), &FlexGrid::SelChange, this, [&] { visible &= m_grid->RowIsVisible(m_grid->RowSel()); });
        const auto after = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(m_grid.get(), key, modifiers);
            return std::pair(m_grid->Row(), m_grid->RowSel());
        };
        QCOMPARE(after(Qt::Key_Down), std::pair(2, 2));
        QCOMPARE(after(Qt::Key_Down, Qt::ShiftModifier), std::pair(2, 3));
        QCOMPARE(after(Qt::Key_Up), std::pair(2, 2));
        QCOMPARE(after(Qt::Key_End, Qt::ShiftModifier), std::pair(2, 30));
        QCOMPARE(after(Qt::Key_Home), std::pair(1, 1));
        const int page = after(Qt::Key_PageDown).first - 1;
        QVERIFY(page > 2);
        QCOMPARE(after(Qt::Key_PageDown).first, 1 + 2 * page);
        QCOMPARE(after(Qt::Key_PageUp).first, 1 + page);
        QVERIFY(visible);
    }

    void tellsOfEachChangeOfItsRow()
    {
        QStringList told;
        connect(m_grid.get(), &FlexGrid::SelChange, this, [&] {
            told += QString::number(m_grid->Row()) + selected() + m_grid->TextMatrix(m_grid->Row(), 1).trimmed();
        });
        m_grid->setRow(30);
        m_grid->RemoveItem(30);
        m_grid->RemoveItem(3);
        m_grid->setRow(2);
        // Another row bears the number, and the rows behind it don't matter.
        m_grid->RemoveItem(2);
        m_grid->RemoveItem(5);
        m_grid->setRows(1);
        QCOMPARE(told, (QStringList{"3030-30N30", "2929-29N29", "2828-28N29", "22-2N2", "22-2N4", "00 rangesNome"}));
        told.clear();
        m_grid->inOneStep([this] {
            m_grid->setRows(3);
            m_grid->inOneStep([this] { m_grid->setTextMatrix(1, 1, "A"); });
        });
        QVERIFY(m_grid->updatesEnabled());
        QCOMPARE(told, QStringList("11-1A"));
    }

    void keysMoveOnFromThePickedRow()
    {
        connect(m_grid.get(), &FlexGrid::Click, this, [this] { m_grid->setPickedRow(m_grid->Row()); });
        m_grid->setPickedRow(0);
        QCOMPARE(selected(), QString("0 ranges"));
        QTest::keyClick(m_grid.get(), Qt::Key_Down);
        QTest::keyClick(m_grid.get(), Qt::Key_Space);
        QTest::keyClick(m_grid.get(), Qt::Key_End);
        QCOMPARE(selected(), QString("2-30"));
        QTest::keyClick(m_grid.get(), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(std::pair(m_grid->Row(), selected()), std::pair(2, QString("2-29")));
        QTest::keyClick(m_grid.get(), Qt::Key_Home);
        QTest::mousePress(m_grid->viewport(), Qt::LeftButton, {}, place(4, 0));
        QCOMPARE(selected(), QString("4-4"));
        QTest::mouseRelease(m_grid->viewport(), Qt::LeftButton, {}, place(4, 0));
        QCOMPARE(selected(), QString("4-4"));
    }

    void columnsTakeTheRoomOfTheirTextsUntilOneIsDragged()
    {
        const QString name = "MARIA APARECIDA DAS GRAÇAS";
        const auto fill = [&] {
            m_grid->inOneStep([&] {
                m_grid->Clear();
                m_grid->setFormatString("<Cod   |<Nome               |>Valor|^Obs");
                m_grid->setRows(1);
                m_grid->setRows(40);
                m_grid->setTextMatrix(33, 1, name);
            });
        };
        const auto width = [this](int col) { return m_grid->columnWidth(col); };
        const auto room = [this](const QString &text) { return m_grid->fontMetrics().horizontalAdvance(text); };
        m_grid->resize(600, 200);
        fill();
        QVERIFY(width(1) > room(name));
        QCOMPARE(m_grid->horizontalHeader()->length(), m_grid->viewport()->width());
        m_grid->setTextMatrix(2, 2, "1.000.000,00 E MAIS");
        QVERIFY(width(2) > room("1.000.000,00 E MAIS"));
        QWidget *headings = m_grid->horizontalHeader()->viewport();
        const QPoint edge(width(0) + width(1) - 1, 5);
        QTest::mousePress(headings, Qt::LeftButton, {}, edge);
        QTest::mouseMove(headings, edge - QPoint(90, 0));
        QTest::mouseRelease(headings, Qt::LeftButton, {}, edge - QPoint(90, 0));
        const int dragged = width(1);
        QVERIFY(dragged < room(name));
        fill();
        m_grid->setCols(5);
        QCOMPARE(width(1), dragged);
        QCOMPARE(m_grid->horizontalHeader()->length(), m_grid->viewport()->width());
    }

private:
    QString selected() const
    {
        const QItemSelection ranges = m_grid->selectionModel()->selection();
        return ranges.size() == 1 ? QString("%1-%2").arg(ranges.first().top() + 1).arg(ranges.first().bottom() + 1)
                                  : QString("%1 ranges").arg(ranges.size());
    }

    QPoint place(int row, int col) const { return m_grid->visualRect(m_grid->model()->index(row - 1, col)).center(); }

    std::unique_ptr<FlexGrid> m_grid;
};

QTEST_MAIN(TestFlexGrid)
#include "tst_flexgrid.moc"
