#include "platform/files/SafeFile.h"

#include "platform/base/Err.h"
#include "platform/files/Paths.h"

#include <unistd.h>

bool commitForGood(QSaveFile &file)
{
    return file.flush() && fsync(file.handle()) == 0 && file.commit();
}

void writeWholeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(resolveIgnoringCase(path));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !commitForGood(file))
        throw RunTimeError(ErrorNumber::PathAccess, file.errorString() + ": " + path);
}
