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

    void messageShowsItsStyle()
    {
        struct
        {
            int style;
            QMessageBox::Icon icon;
            int buttons;
            Qt::Key key;
            int answer;
        } constexpr cases[] = {{vbOKOnly, QMessageBox::NoIcon, 1, Qt::Key_Return, vbOK},
                               {vbInformation, QMessageBox::Information, 1, Qt::Key_Escape, vbOK},
                               {vbCritical, QMessageBox::Critical, 1, Qt::Key_Return, vbOK},
                               {36, QMessageBox::Question, 2, Qt::Key_Return, vbYes},
                               {68, QMessageBox::Information, 2, Qt::Key_Escape, vbNo}};
        const QString text = "Remover <b>MARIA</b> & filhos?\nAgora";
        for (const auto &each : cases) {
            whenOpen<QMessageBox>([&](QMessageBox &box) {
                QCOMPARE(box.text(), text);
                QCOMPARE(box.textFormat(), Qt::PlainText);
                QCOMPARE(box.icon(), each.icon);
                QCOMPARE(box.buttons().size(), each.buttons);
                QTest::keyClick(&box, each.key);
            });
            QCOMPARE(MsgBox(text, each.style), each.answer);
        }
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
