#include "platform/window/Prompts.h"

#include "platform/files/Paths.h"
#include "platform/window/Forms.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace {

constexpr int buttonMask = 0x0F;
constexpr int iconMask = 0x70;

/// The window that a dialog has to lie above.
QWidget *owner()
{
    if (QWidget *active = QApplication::activeWindow())
        return active;
    const QList<Form *> forms = Forms::loaded();
    for (auto form = forms.crbegin(); form != forms.crend(); ++form)
        if ((*form)->isVisible())
            return *form;
    return nullptr;
}

QMessageBox::Icon iconOf(int style)
{
    switch (style & iconMask) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbQuestion:
        return QMessageBox::Question;
    case vbExclamation:
        return QMessageBox::Warning;
    case vbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

/// A dialog lies above its window in the band that the window stays in.
void joinBand(QDialog &dialog)
{
    if (dialog.parentWidget() && dialog.parentWidget()->windowFlags() & Qt::WindowStaysOnTopHint)
        dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
}

/// "Pictures |*.bmp;*.jpg|" becomes "Pictures (*.bmp *.jpg)".
QStringList nameFilters(const QString &filter)
{
    const QStringList parts = filter.split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // Patterns that the text repeats in brackets would be shown twice.
        const QString text = parts.at(i).section('(', 0, 0).trimmed();
        const QString patterns = parts.at(i + 1).trimmed();
        if (!patterns.isEmpty())
            filters.append(text + " (" + QString(patterns).replace(';', ' ') + ")");
    }
    return filters;
}

class DesktopPrompts : public PromptService
{
public:
    int message(const QString &text, int style, const QString &title) override
    {
        QMessageBox box(iconOf(style), title, text, QMessageBox::Ok, owner());
        joinBand(box);
        // A name or a path in a message is no markup.
        box.setTextFormat(Qt::PlainText);
        box.setTextInteractionFlags(Qt::TextSelectableByMouse);
        if ((style & buttonMask) == vbYesNo) {
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            box.setDefaultButton(QMessageBox::Yes);
            box.setEscapeButton(QMessageBox::No);
        }
        switch (box.exec()) {
        case QMessageBox::Yes:
            return vbYes;
        case QMessageBox::No:
            return vbNo;
        default:
            return vbOK;
        }
    }

    QString openFile(const FileDialog &dialog) override { return ask(dialog, QFileDialog::AcceptOpen); }

    QString saveFile(const FileDialog &dialog) override { return ask(dialog, QFileDialog::AcceptSave); }

private:
    static QString ask(const FileDialog &wanted, QFileDialog::AcceptMode accept)
    {
        QFileDialog dialog(owner(), wanted.DialogTitle, resolveIgnoringCase(wanted.InitDir));
        joinBand(dialog);
        dialog.setAcceptMode(accept);
        // Whether there is such a file is for the window to say. A desktop's own dialog would refuse the name by
        // itself, and lie below a window that stays on top.
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.setNameFilters(nameFilters(wanted.Filter));
        if (!wanted.FileName.isEmpty())
            dialog.selectFile(resolveIgnoringCase(wanted.FileName));
        return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
    }
};

PromptService *inForce = nullptr;

} // namespace

int MsgBox(const QString &text, int style, const QString &title)
{
    const EventPump pump;
    return PromptService::current().message(text, style,
                                            title.isEmpty() ? QGuiApplication::applicationDisplayName() : title);
}

void FileDialog::ShowOpen()
{
    const EventPump pump;
    FileName = PromptService::current().openFile(*this);
}

void FileDialog::ShowSave()
{
    const EventPump pump;
    FileName = PromptService::current().saveFile(*this);
    if (!FileName.isEmpty() && QFileInfo(FileName).suffix().isEmpty())
        FileName += DefaultExt;
}

PromptService &PromptService::current()
{
    static DesktopPrompts desktop;
    return inForce ? *inForce : desktop;
}

void PromptService::use(PromptService *service)
{
    inForce = service;
}
