#include "tests/support/Attendant.h"

#include <QGuiApplication>
#include <QTest>

#include <utility>

namespace {
QString describe(const Attendant::Box &box)
{
    static constexpr const char *kinds[] = {"message", "open dialog", "save dialog"};
    return QString("%1 \"%2\", style %3, title \"%4\"").arg(kinds[box.kind], box.text).arg(box.style).arg(box.title);
}

/// The title under which a box without one of its own comes.
QString shownTitle(const QString &title)
{
    return title.isEmpty() ? QGuiApplication::applicationDisplayName() : title;
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

void Attendant::expect(const QString &text, int style, const QString &title, int answer, const Action &meanwhile)
{
    const Box box{Box::Message, text, style, shownTitle(title)};
    const bool asksYesNo = (style & vbYesNo) != 0;
    if (asksYesNo != (answer == vbYes || answer == vbNo))
        m_sink("No button for this answer: " + describe(box));
    m_expected.append({box, answer, {}, meanwhile});
}

void Attendant::expectNotice(const QString &text, const QString &title, const Action &meanwhile)
{
    expect(text, vbInformation, title, vbOK, meanwhile);
}

void Attendant::expectOpenFile(const QString &filter, const QString &answer, const Action &meanwhile)
{
    m_expected.append({{Box::OpenFile, filter, 0, {}}, vbOK, answer, meanwhile});
}

void Attendant::expectSaveFile(const QString &filter, const QString &answer, const Action &meanwhile)
{
    m_expected.append({{Box::SaveFile, filter, 0, {}}, vbOK, answer, meanwhile});
}

void Attendant::finish()
{
    for (const Expected &missing : std::as_const(m_expected))
        m_sink("Never came: " + describe(missing.box));
    m_expected.clear();
}

int Attendant::message(const QString &text, int style, const QString &title)
{
    if (const auto expected = meet({Box::Message, text, style, title}))
        return expected->answer;
    // The answer that does the least harm.
    return (style & vbYesNo) != 0 ? vbNo : vbOK;
}

QString Attendant::openFile(const FileDialog &dialog)
{
    return chooseFile(Box::OpenFile, dialog);
}

QString Attendant::saveFile(const FileDialog &dialog)
{
    return chooseFile(Box::SaveFile, dialog);
}

QString Attendant::chooseFile(Box::Kind kind, const FileDialog &dialog)
{
    const auto expected = meet({kind, dialog.Filter, 0, {}});
    return expected ? expected->file : QString();
}

std::optional<Attendant::Expected> Attendant::meet(const Box &box)
{
    if (m_expected.isEmpty()) {
        m_sink("Unexpected: " + describe(box));
        return std::nullopt;
    }
    const Expected expected = m_expected.takeFirst();
    if (expected.box != box) {
        m_sink("Expected: " + describe(expected.box) + "\nbut came: " + describe(box));
        return std::nullopt;
    }
    if (expected.meanwhile)
        expected.meanwhile();
    return expected;
}

void Attendant::failTest(const QString &what)
{
    QTest::qFail(qPrintable(what), __FILE__, __LINE__);
}
