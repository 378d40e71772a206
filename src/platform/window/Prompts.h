#pragma once

#include <QString>

/// Styles of a message box, to be added up.
enum MsgBoxStyle
{
    vbOKOnly = 0,
    vbYesNo = 4,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
};

/// Answers of a message box.
enum MsgBoxAnswer
{
    vbOK = 1,
    vbYes = 6,
    vbNo = 7,
};

/// Shows a message and waits for its answer. Without a title it bears the program's name.
int MsgBox(const QString &text, int style = vbOKOnly, const QString &title = {});

/// The common file dialog.
struct FileDialog
{
    QString InitDir;
    /// Pairs of text and patterns, separated by "|", patterns by ";".
    QString Filter;
    QString FileName;
    QString DialogTitle;
    /// Such as ".txt": what a file to be saved gets when its name has no extension.
    QString DefaultExt;

    /// Sets FileName to the chosen file, or to the empty text when there is none. A name that was typed may be no
    /// file's.
    void ShowOpen();
    /// The same. Whether a file may be overwritten is for the caller to ask.
    void ShowSave();
};

/// Whoever answers for the person at the counter: the desktop's dialogs, or a test's attendant.
class PromptService
{
public:
    virtual ~PromptService() = default;
    virtual int message(const QString &text, int style, const QString &title) = 0;
    virtual QString openFile(const FileDialog &dialog) = 0;
    virtual QString saveFile(const FileDialog &dialog) = 0;

    static PromptService &current();
    /// Null goes back to the desktop's dialogs.
    static void use(PromptService *service);
};
