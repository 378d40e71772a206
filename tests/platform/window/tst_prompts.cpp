#include "platform/window/Prompts.h"
#include "tests/support/Files.h"

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
        const QString text = "Remover <b>MARIA</b> & filhos?\nAgora";
        for (const auto &[style, icon, key, answer] : {std::tuple(36, QMessageBox::Question, Qt::Key_Return, vbYes),
                                                       {68, QMessageBox::Information, Qt::Key_Escape, vbNo}}) {
            whenOpen<QMessageBox>([&](QMessageBox &box) {
                QCOMPARE(box.text(), text);
                QCOMPARE(box.textFormat(), Qt::PlainText);
                QCOMPARE(box.icon(), icon);
                QTest::keyClick(&box, key);
            });
            QCOMPARE(MsgBox(text, style), int(answer));
        }
    }

    void fileDialogTakesFolderAndFilter()
    {
        QTemporaryDir folder;
        QDir(folder.path()).mkdir("fotos");
        const QString photo = folder.filePath("fotos/a.jpg");
        writeFile(photo);

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
        QCOMPARE(dialog.FileName, photo);
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
