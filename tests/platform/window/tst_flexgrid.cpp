#include "platform/window/FlexGrid.h"

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

    void mouseSelects()
    {
        QSignalSpy clicks(m_grid.get(), &FlexGrid::Click);
        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, {}, place(4, 2));
        QCOMPARE(clicks.size(), 1);
        QCOMPARE(m_grid->Row(), 4);
        QCOMPARE(m_grid->Col(), 2);

        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, Qt::ShiftModifier, place(2, 1));
        QCOMPARE(m_grid->Row(), 4);
        QCOMPARE(m_grid->RowSel(), 2);
        QCOMPARE(selected(), "2-4");

        QTest::mousePress(m_grid->viewport(), Qt::LeftButton, {}, place(1, 0));
        QTest::mouseMove(m_grid->viewport(), place(3, 0));
        QTest::mouseMove(m_grid->viewport(), QPoint(5, m_grid->viewport()->height() + 5));
        QVERIFY(m_grid->verticalScrollBar()->value() > 0);
        QTest::mouseRelease(m_grid->viewport(), Qt::LeftButton, {}, place(5, 0));
        QCOMPARE(m_grid->Row(), 1);
        QVERIFY(m_grid->RowSel() > 5);
        QCOMPARE(clicks.size(), 3);
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
