#include "platform/base/Err.h"
#include "platform/window/FlexGrid.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace {

int errorOf(const std::function<void()> &statement)
{
    Err::Clear();
    OnErrorResumeNext(statement);
    return Err::Number();
}

QPixmap dot()
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

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

    void formatStringMakesColumns()
    {
        QCOMPARE(m_grid->Cols(), 4);
        QCOMPARE(m_grid->TextMatrix(0, 1), "Nome               ");
        const QFontMetrics metrics(m_grid->horizontalHeader()->font());
        QVERIFY(m_grid->columnWidth(1) > metrics.horizontalAdvance("Nome               "));
        QVERIFY(m_grid->columnWidth(1) > m_grid->columnWidth(0));
        QCOMPARE(m_grid->horizontalHeader()->length(), m_grid->viewport()->width());
        const auto alignment = [this](int col) {
            return m_grid->model()->index(0, col).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
        };
        QVERIFY(alignment(0) & Qt::AlignLeft);
        QVERIFY(alignment(2) & Qt::AlignRight);
        QVERIFY(alignment(3) & Qt::AlignHCenter);

        const int width = m_grid->columnWidth(1);
        m_grid->setCols(3);
        QCOMPARE(m_grid->TextMatrix(30, 1), "N30");
        QCOMPARE(m_grid->columnWidth(1), width);
        m_grid->setFormatString("<Cod");
        QCOMPARE(m_grid->Cols(), 3);
    }

    void refusesWhatIsNotThere()
    {
        const std::function<void()> statements[] = {
            [&] { m_grid->TextMatrix(31, 0); }, [&] { m_grid->setTextMatrix(1, 4, "x"); },
            [&] { m_grid->setRow(31); },        [&] { m_grid->setRowSel(-1); },
            [&] { m_grid->setColSel(4); },      [&] { m_grid->setTopRow(0); }};
        for (const auto &statement : statements)
            QCOMPARE(errorOf(statement), ErrorNumber::SubscriptOutOfRange);
        QCOMPARE(errorOf([&] { m_grid->RemoveItem(0); }), 30015);
        m_grid->setRows(2);
        QCOMPARE(errorOf([&] { m_grid->RemoveItem(1); }), 30015);
        QCOMPARE(m_grid->TextMatrix(1, 1), "N1");
    }

    void programMovesTheSelection()
    {
        QSignalSpy changes(m_grid.get(), &FlexGrid::SelChange);
        QSignalSpy clicks(m_grid.get(), &FlexGrid::Click);
        m_grid->setRow(3);
        m_grid->setRow(3);
        m_grid->setRowSel(6);
        QCOMPARE(changes.size(), 2);
        QCOMPARE(selected(), "3-6");
        QCOMPARE(m_grid->Row(), 3);
        m_grid->setRowSel(2);
        QCOMPARE(selected(), "2-3");
        m_grid->setColSel(3);
        QCOMPARE(m_grid->RowSel(), 2);
        m_grid->setRow(2);
        QCOMPARE(m_grid->ColSel(), 0);
        m_grid->setRow(0);
        m_grid->setCol(2);
        QCOMPARE(m_grid->Row(), 0);
        QCOMPARE(selected(), "2-2");
        QCOMPARE(clicks.size(), 0);
    }

    void rowsComeAndGoSilently()
    {
        QSignalSpy changes(m_grid.get(), &FlexGrid::SelChange);
        m_grid->setRows(1);
        QCOMPARE(m_grid->Row(), 0);
        QCOMPARE(m_grid->RowSel(), 0);
        m_grid->setRows(4);
        QCOMPARE(m_grid->Row(), 1);
        QCOMPARE(m_grid->RowSel(), 1);
        QCOMPARE(m_grid->TextMatrix(1, 1), "");
        QCOMPARE(changes.size(), 0);

        m_grid->setTextMatrix(2, 0, "two");
        m_grid->setTextMatrix(3, 0, "three");
        m_grid->setRow(3);
        m_grid->setCellPicture(dot());
        m_grid->RemoveItem(1);
        QCOMPARE(m_grid->Row(), 2);
        QCOMPARE(m_grid->TextMatrix(1, 0), "two");
        QVERIFY(!m_grid->CellPicture().isNull());
        QCOMPARE(selected(), "2-2");

        m_grid->Clear();
        QCOMPARE(m_grid->Rows(), 3);
        QCOMPARE(m_grid->TextMatrix(0, 0) + m_grid->TextMatrix(2, 0), "");
        QVERIFY(m_grid->CellPicture().isNull());
    }

    void mouseSelects()
    {
        QSignalSpy clicks(m_grid.get(), &FlexGrid::Click);
        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, {}, place(4, 2));
        QCOMPARE(clicks.size(), 1);
        QCOMPARE(m_grid->Row(), 4);
        QCOMPARE(m_grid->RowSel(), 4);
        QCOMPARE(m_grid->Col(), 2);
        QCOMPARE(m_grid->MouseRow(), 4);

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

    void headingClickGivesItsColumn()
    {
        QSignalSpy clicks(m_grid.get(), &FlexGrid::Click);
        m_grid->setRow(4);
        clickHeading(2);
        QCOMPARE(clicks.size(), 1);
        QCOMPARE(m_grid->MouseRow(), 0);
        QCOMPARE(m_grid->Col(), 2);
        QCOMPARE(m_grid->Row(), 4);

        m_grid->setRow(0);
        m_grid->setCellPicture(dot());
        QCOMPARE(m_grid->horizontalHeader()->grab().toImage().pixelColor(headingEnd(2)), QColor(Qt::red));
        clickHeading(1);
        QCOMPARE(m_grid->Row(), 1);
        QCOMPARE(m_grid->Col(), 1);
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
        QCOMPARE(after(Qt::Key_N), std::pair(2, 3));
        QCOMPARE(after(Qt::Key_Up), std::pair(2, 2));
        QCOMPARE(after(Qt::Key_End, Qt::ShiftModifier), std::pair(2, 30));
        QCOMPARE(after(Qt::Key_Home), std::pair(1, 1));
        const int page = after(Qt::Key_PageDown).first - 1;
        QVERIFY(page > 2);
        QCOMPARE(after(Qt::Key_PageDown).first, 1 + 2 * page);
        QCOMPARE(after(Qt::Key_PageUp).first, 1 + page);
        QVERIFY(visible);
    }

    void leavesTabAndEnterToTheWindow()
    {
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
        QCoreApplication::sendEvent(m_grid.get(), &enter);
        QVERIFY(!enter.isAccepted());
        QVERIFY(!m_grid->tabKeyNavigation());
    }

    void holdsAsManyRowsAsTheProgramCounts()
    {
        constexpr int rows = 32768;
        m_grid->hide();
        m_grid->setRows(1);
        for (int row = 1; row < rows; ++row) {
            m_grid->setRows(row + 1);
            m_grid->setTextMatrix(row, 1, QString::number(row));
        }
        m_grid->show();
        m_grid->setRow(1);
        m_grid->setRowSel(rows - 1);
        QVERIFY(!m_grid->RowIsVisible(rows - 1));
        m_grid->setTopRow(20);
        QCOMPARE(m_grid->TopRow(), 20);
        m_grid->setTopRow(rows - 1);
        QVERIFY(m_grid->RowIsVisible(rows - 1));
        QVERIFY(!m_grid->RowIsVisible(1));
        QVERIFY(m_grid->RowIsVisible(0));
        QCOMPARE(m_grid->TextMatrix(rows - 1, 1), "32767");
        QCOMPARE(selected(), "1-32767");
    }

private:
    QString selected() const
    {
        const QItemSelection ranges = m_grid->selectionModel()->selection();
        return ranges.size() == 1 ? QString("%1-%2").arg(ranges.first().top() + 1).arg(ranges.first().bottom() + 1)
                                  : QString("%1 ranges").arg(ranges.size());
    }

    QPoint place(int row, int col) const { return m_grid->visualRect(m_grid->model()->index(row - 1, col)).center(); }

    QPoint headingEnd(int col) const
    {
        const QHeaderView *header = m_grid->horizontalHeader();
        return {header->sectionViewportPosition(col) + header->sectionSize(col) - 8, header->height() / 2};
    }

    void clickHeading(int col)
    {
        const QHeaderView *header = m_grid->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(col) + header->sectionSize(col) / 2, header->height() / 2});
    }

    std::unique_ptr<FlexGrid> m_grid;
};

QTEST_MAIN(TestFlexGrid)
#include "tst_flexgrid.moc"
