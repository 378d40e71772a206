#include "platform/window/Prompts.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

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
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void messageShowsItsStyle()
    {
        struct
        {
            int style;
            QMessageBox::Icon icon;
            Qt::Key key;
            int answer;
        } constexpr cases[] = {{36, QMessageBox::Question, Qt::Key_Return, vbYes},
                               {68, QMessageBox::Information, Qt::Key_Escape, vbNo}};
        const QString text = "Remover <b>MARIA</b> & filhos?\nAgora";
        for (const auto &each : cases) {
            whenOpen<QMessageBox>([&](QMessageBox &box) {
                QCOMPARE(box.text(), text);
                QCOMPARE(box.textFormat(), Qt::PlainText);
                QCOMPARE(box.icon(), each.icon);
                QTest::keyClick(&box, each.key);
            });
            QCOMPARE(MsgBox(text, each.style), each.answer);
        }
    }

    void fileDialogTakesFolderAndFilter()
    {
        QTemporaryDir folder;
        QDir(folder.path()).mkdir("fotos");
        QFile photo(folder.filePath("fotos/a.jpg"));
        QVERIFY(photo.open(QIODevice::WriteOnly));

        FileDialog dialog;
        dialog.InitDir = folder.path() + "\\FOTOS";
        dialog.Filter = "Todas as imagens(*.*) |*.bmp;*.jpg;*.gif| Arquivos JPG (*.jpg) |*.jpg|";
        whenOpen<QFileDialog>([&](QFileDialog &shown) {
            QCOMPARE(shown.directory().path(), folder.filePath("fotos"));
            QCOMPARE(shown.nameFilters(),
                     QStringList({"Todas as imagens (*.bmp *.jpg *.gif)", "Arquivos JPG (*.jpg)"}));
            shown.selectFile("a.jpg");
            static_cast<QDialog &>(shown).accept();
        });
        dialog.ShowOpen();
        QCOMPARE(dialog.FileName, photo.fileName());
        // What is typed need not be there: whoever asked says so in words of its own.
        whenOpen<QFileDialog>([](QFileDialog &shown) {
            auto *name = shown.findChild<QLineEdit *>("fileNameEdit");
            QTest::keyClicks(name, "nada.jpg");
            QTest::keyClick(name, Qt::Key_Return);
        });
        dialog.FileName.clear();
        dialog.ShowOpen();
        QCOMPARE(dialog.FileName, folder.filePath("fotos/nada.jpg"));
    }
};

QTEST_MAIN(TestPrompts)
#include "tst_prompts.moc"
