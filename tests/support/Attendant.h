#pragma once

#include "platform/window/Prompts.h"

#include <QList>

#include <functional>

/// The person at the counter, as a test plays her: she knows which boxes must come, with which texts, titles and
/// buttons and in which order, and answers them. A box that nobody expected fails the test, and so does one that never
/// came.
class Attendant : public PromptService
{
public:
    /// A box as it was shown. A file dialog has its filter as the text.
    struct Box
    {
        enum Kind
        {
            Message,
            OpenFile,
            SaveFile
        };
        Kind kind = Message;
        QString text;
        int style = 0;
        QString title;

        bool operator==(const Box &) const = default;
    };
    using FailureSink = std::function<void(const QString &what)>;
    using Action = std::function<void()>;

    explicit Attendant(FailureSink sink = failTest);
    ~Attendant() override;

    /// The next box. `meanwhile` runs while it is open.
    void expect(const QString &text, int style, const QString &title, int answer = vbOK, const Action &meanwhile = {});
    /// A box with one button and the information icon.
    void expectNotice(const QString &text, const QString &title = {}, const Action &meanwhile = {});
    /// The next file dialog and the file chosen; an empty one cancels it.
    void expectOpenFile(const QString &filter, const QString &answer, const Action &meanwhile = {});
    void expectSaveFile(const QString &filter, const QString &answer, const Action &meanwhile = {});

    /// States that all expected boxes came, and expects nothing more. The end of an attendant does it too.
    void finish();

    int message(const QString &text, int style, const QString &title) override;
    QString openFile(const FileDialog &dialog) override;
    QString saveFile(const FileDialog &dialog) override;

    /// Fails the running test.
    static void failTest(const QString &what);

private:
    struct Expected
    {
        Box box;
        int answer = vbOK;
        QString file;
        Action meanwhile;
    };

    /// What was planned for this box; null when it isn't the box that was expected.
    std::optional<Expected> meet(const Box &box);
    QString chooseFile(Box::Kind kind, const FileDialog &dialog);

    FailureSink m_sink;
    QList<Expected> m_expected;
};
