#include "platform/jet/engine/Engine.h"

#include "platform/jet/engine/SqlCipherEngine.h"

Engine &storageEngine()
{
    static SqlCipherEngine engine;
    return engine;
}
