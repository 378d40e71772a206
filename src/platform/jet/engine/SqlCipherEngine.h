#pragma once

#include "platform/jet/engine/Engine.h"

/// Data files as encrypted SQLite files.
class SqlCipherEngine final : public Engine
{
public:
    std::unique_ptr<EngineSession> open(const FileAccess &access) override;
    void create(const QString &path, const QString &password) override;
};
