#pragma once

#include <QApplication>
#include <QString>
#include <QTest>

#include <source_location>

/// The line of a test that asked, so that a failure in what tests share is told there.
using Place = std::source_location;

/// Ends the running test function as failed, and no other one. Where no test runs, the program ends.
[[noreturn]] void endStory(const QString &what, const Place &where);

inline void require(bool holds, const QString &what, const Place &where)
{
    if (!holds)
        endStory(what, where);
}

/// Runs the functions of a test, as `QTest::qExec` does, and goes on behind one that was ended.
int runStories(QObject &test, int argc, char **argv);

#define STORY_MAIN(Test)                                                                                               \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        const QApplication application(argc, argv);                                                                    \
        Test test;                                                                                                     \
        return runStories(test, argc, argv);                                                                           \
    }
