#include "platform/text/Windows1252.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace {
constexpr const char *CodePage = "windows-1252";
/// What the library's converter writes for a character that the code page lacks.
constexpr char Substitute = '\x1A';
} // namespace

QString fromWindows1252(QByteArrayView bytes)
{
    QStringDecoder decoder(CodePage);
    return decoder.decode(bytes);
}

QByteArray toWindows1252(QStringView text)
{
    QStringEncoder encoder(CodePage);
    QByteArray bytes = encoder.encode(text);
    bytes.replace(Substitute, '?');
    return bytes;
}
