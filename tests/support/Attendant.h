#pragma once

#include "platform/window/Prompts.h"
#include "tests/support/Story.h"

#include <QList>

#include <functional>

/// The person at the counter, as a test plays her: she knows which boxes must come, with which texts, titles and
/// buttons and in which order, and answers them. A box that nobody expected fails the test, and so does one that never
/// came, each at the line where it was expected.
class Attendant : public PromptService
{
public:
    using FailureSink = std::function<void(const QString &what, const Place &where)>;
    using Action = std::function<void()>;

    explicit Attendant(FailureSink sink = failTest);
    ~Attendant() override;

    /// The next box. `meanwhile` runs while it is open.
    void expect(const QString &text, int style, const QString &title, int answer = vbOK, const Action &meanwhile = {},
                const Place &where = Place::current());
    /// A box with one button and the information icon.
    void expectNotice(const QString &text, const QString &title = {}, const Action &meanwhile = {},
                      const Place &where = Place::current())
    {
        expect(text, vbInformation, title, vbOK, meanwhile, where);
    }
    /// The next file dialog and the file chosen; an empty one cancels it.
    void expectOpenFile(const QString &filter, const QString &answer, const Place &where = Place::current())
    {
        m_expected += {where, "open " + filter, vbOK, answer};
    }
    void expectSaveFile(const QString &filter, const QString &answer, const Place &where = Place::current())
    {
        m_expected += {where, "save " + filter, vbOK, answer};
    }

    /// States that all expected boxes came, and expects nothing more. The end of an attendant does it too.
    void finish();

    int message(const QString &text, int style, const QString &title) override;
    QString openFile(const FileDialog &dialog) override { return meet("open " + dialog.Filter).file; }
    QString saveFile(const FileDialog &dialog) override { return meet("save " + dialog.Filter).file; }

    /// Fails the running test.
    static void failTest(const QString &what, const Place &where);

private:
    struct Expected
    {
        Place where;
        /// What kind of box it is, and all that it shows.
        QString box = {};
        /// 0 for a box that wasn't expected.
        int answer = 0;
        QString file = {};
        Action meanwhile = {};
    };

    /// What was planned for this box; nothing when it isn't the box that was expected.
    Expected meet(const QString &box);

    FailureSink m_sink;
    QList<Expected> m_expected;
};
