#include "tests/support/Story.h"

#include <QMetaMethod>
#include <QTest>

#include <cstdlib>

namespace {
struct StoryEnded
{
    QString function;
};

/// The test functions behind one, in their order.
QStringList functionsBehind(const QString &function, const QMetaObject &test)
{
    QStringList names;
    for (int index = test.methodOffset(); index < test.methodCount(); ++index)
        names += QString::fromLatin1(test.method(index).name());
    return names.mid(names.indexOf(function) + 1);
}
} // namespace

void endStory(const QString &what, const Place &where)
{
    if (QTest::currentTestFunction() == nullptr)
        qFatal("%s:%u: %s", where.file_name(), where.line(), qPrintable(what));
    QTest::qFail(qPrintable(what), where.file_name(), static_cast<int>(where.line()));
    throw StoryEnded{QString::fromLatin1(QTest::currentTestFunction())};
}

int runStories(QObject &test, int argc, char **argv)
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments += QString::fromLocal8Bit(argv[index]);
    bool ended = false;
    while (true) {
        try {
            const int failures = QTest::qExec(&test, arguments);
            return ended ? EXIT_FAILURE : failures;
        } catch (const StoryEnded &story) {
            ended = true;
            const QStringList rest = functionsBehind(story.function, *test.metaObject());
            // Those that were asked for by name are few enough to be run anew.
            if (rest.isEmpty() || argc > 1)
                return EXIT_FAILURE;
            arguments = arguments.mid(0, 1) + rest;
        }
    }
}
