#pragma once

#include <QString>
#include <QTemporaryDir>

/// A copy of a café that figures may change.
class WorkingCopy
{
public:
    explicit WorkingCopy(const QString &cafe);

    QString folder() const { return m_folder.filePath("cafe"); }

private:
    QTemporaryDir m_folder;
};
