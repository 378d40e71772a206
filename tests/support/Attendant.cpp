#include "tests/support/Attendant.h"

#include <QGuiApplication>

#include <utility>

namespace {
QString messageBox(const QString &text, int style, const QString &title)
{
    return QString("message \"%1\", style %2, title \"%3\"").arg(text, QString::number(style), title);
}
} // namespace

Attendant::Attendant(FailureSink sink) : m_sink(std::move(sink))
{
    PromptService::use(this);
}

Attendant::~Attendant()
{
    finish();
    PromptService::use(nullptr);
}

void Attendant::expect(const QString &text, int style, const QString &title, int answer, const Action &meanwhile,
                       const Place &where)
{
    // A box without a title of its own bears the program's.
    const QString shownTitle = title.isEmpty() ? QGuiApplication::applicationDisplayName() : title;
    const QString box = messageBox(text, style, shownTitle);
    const bool asksYesNo = (style & vbYesNo) != 0;
    if (asksYesNo != (answer == vbYes || answer == vbNo))
        m_sink("No button for this answer: " + box, where);
    m_expected.append({where, box, answer, {}, meanwhile});
}

void Attendant::finish()
{
    for (const Expected &missing : std::as_const(m_expected))
        m_sink("Never came: " + missing.box, missing.where);
    m_expected.clear();
}

int Attendant::message(const QString &text, int style, const QString &title)
{
    if (const int answer = meet(messageBox(text, style, title)).answer)
        return answer;
    // The answer that does the least harm.
    return (style & vbYesNo) != 0 ? vbNo : vbOK;
}

Attendant::Expected Attendant::meet(const QString &box)
{
    if (m_expected.isEmpty()) {
        m_sink("Unexpected: " + box, Place::current());
        return {};
    }
    const Expected expected = m_expected.takeFirst();
    if (expected.box == box) {
        if (expected.meanwhile)
            expected.meanwhile();
        return expected;
    }
    m_sink("Expected: " + expected.box + "\nbut came: " + box, expected.where);
    return {};
}

void Attendant::failTest(const QString &what, const Place &where)
{
    QTest::qFail(qPrintable(what), where.file_name(), static_cast<int>(where.line()));
}
