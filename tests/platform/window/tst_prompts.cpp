#include "platform/window/Forms.h"
#include "platform/window/Prompts.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

class Window : public Form
{
    Q_OBJECT
};

/// Runs a step on the dialog that the next call opens.
template <typename Dialog>
void whenOpen(std::function<void(Dialog &)> step)
{
    QTimer::singleShot(0, [step] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (!dialog)
            qFatal("No such dialog is open");
        step(*dialog);
    });
}

} // namespace

/// The desktop's own dialogs; everywhere else a test's attendant answers instead.
class TestPrompts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QGuiApplication::setApplicationDisplayName("Balcão");
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void messageShowsItsStyle_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("answer");
        const int ok = vbOKOnly;
        QTest::newRow("plain") << ok << int(QMessageBox::NoIcon) << int(Qt::Key_Return) << int(vbOK);
        QTest::newRow("notice, escape") << 64 << int(QMessageBox::Information) << int(Qt::Key_Escape) << int(vbOK);
        QTest::newRow("failure") << 16 << int(QMessageBox::Critical) << int(Qt::Key_Return) << int(vbOK);
        QTest::newRow("question, enter") << 36 << int(QMessageBox::Question) << int(Qt::Key_Return) << int(vbYes);
        QTest::newRow("question, escape") << 36 << int(QMessageBox::Question) << int(Qt::Key_Escape) << int(vbNo);
        QTest::newRow("notice with a question")
            << 68 << int(QMessageBox::Information) << int(Qt::Key_Escape) << int(vbNo);
    }

    void messageShowsItsStyle()
    {
        QFETCH(int, style);
        QFETCH(int, icon);
        QFETCH(int, key);
        const QString text = "Remover <b>MARIA</b> & filhos?\nAgora";
        whenOpen<QMessageBox>([&](QMessageBox &box) {
            QCOMPARE(box.text(), text);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(int(box.icon()), icon);
            QCOMPARE(box.buttons().size(), style & vbYesNo ? 2 : 1);
            QTest::keyClick(&box, Qt::Key(key));
        });
        QTEST(MsgBox(text, style), "answer");
    }

    void messageLiesAboveTheWindowOnTop()
    {
        Window &window = Forms::use<Window>();
        Sempre_No_Topo(window, true);
        window.Show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        whenOpen<QMessageBox>([&](QMessageBox &box) {
            QCOMPARE(box.parentWidget(), &window);
            QCOMPARE(box.windowTitle(), "Balcão");
            box.accept();
        });
        MsgBox("x");
        window.Unload();
    }

    void fileDialogTakesFolderAndFilter()
    {
        QTemporaryDir folder;
        QDir(folder.path()).mkdir("fotos");
        QFile photo(folder.filePath("fotos/a.jpg"));
        QVERIFY(photo.open(QIODevice::WriteOnly));

        FileDialog dialog;
        dialog.DialogTitle = "Foto do cliente";
        dialog.InitDir = folder.path() + "\\FOTOS";
        dialog.Filter = "Todas as imagens(*.*) |*.bmp;*.jpg;*.gif| Arquivos JPG (*.jpg) |*.jpg|";
        whenOpen<QFileDialog>([&](QFileDialog &shown) {
            QCOMPARE(shown.windowTitle(), "Foto do cliente");
            QCOMPARE(shown.directory().path(), folder.filePath("fotos"));
            QCOMPARE(shown.nameFilters(),
                     QStringList({"Todas as imagens (*.bmp *.jpg *.gif)", "Arquivos JPG (*.jpg)"}));
            shown.selectFile("a.jpg");
            static_cast<QDialog &>(shown).accept();
        });
        dialog.ShowOpen();
        QCOMPARE(dialog.FileName, photo.fileName());

        whenOpen<QFileDialog>([](QFileDialog &shown) {
            QCOMPARE(shown.acceptMode(), QFileDialog::AcceptSave);
            shown.reject();
        });
        dialog.ShowSave();
        QCOMPARE(dialog.FileName, "");
    }
};

QTEST_MAIN(TestPrompts)
#include "tst_prompts.moc"
