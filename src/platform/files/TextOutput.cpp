#include "platform/files/TextOutput.h"

#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/Paths.h"
#include "platform/text/Windows1252.h"

#include <QRegularExpression>

namespace {
/// Number of the printer port that a name stands for; 0 for a file's name.
int portNumber(const QString &name)
{
    static const QRegularExpression port("^\\s*LPT([1-9]):?\\s*$", QRegularExpression::CaseInsensitiveOption);
    return port.match(name).captured(1).toInt();
}
} // namespace

void TextOutput::Open(const QString &name)
{
    m_file.close();
    // Nothing stays in a buffer, so that a printer that is out of paper or a full disk shows at the line it refuses.
    QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    int failure = ErrorNumber::PathAccess;
    if (const int port = portNumber(name)) {
        failure = ErrorNumber::DeviceUnavailable;
        m_file.setFileName(Machine::current().portDevice(port));
        // A device that is unplugged at this moment must not come back as a file of its name.
        mode |= QIODevice::ExistingOnly;
    } else {
        m_file.setFileName(resolveIgnoringCase(name));
    }
    if (m_file.fileName().isEmpty() || !m_file.open(mode))
        throw RunTimeError(failure, "Cannot open for output: " + name);
}

void TextOutput::Print(const QString &line)
{
    if (!m_file.isOpen())
        throw RunTimeError(ErrorNumber::BadFileName, "No file is open for output");
    const QByteArray bytes = toWindows1252(line) + "\r\n";
    if (m_file.write(bytes) != bytes.size())
        throw RunTimeError(ErrorNumber::DeviceUnavailable, m_file.errorString());
}

void TextOutput::Close()
{
    if (!m_file.isOpen())
        return;
    m_file.close();
    if (m_file.error() != QFileDevice::NoError)
        throw RunTimeError(ErrorNumber::DeviceUnavailable, m_file.errorString());
}
