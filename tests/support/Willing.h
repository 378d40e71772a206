#pragma once

#include "platform/window/Prompts.h"

/// An attendant who says yes to everything and chooses no file.
class Willing : public PromptService
{
public:
    int message(const QString &, int style, const QString &) override { return (style & vbYesNo) != 0 ? vbYes : vbOK; }
    QString openFile(const FileDialog &) override { return {}; }
    QString saveFile(const FileDialog &) override { return {}; }
};
