#pragma once

#include "platform/jet/Schema.h"

/// The design of the shared data file, step by step.
QList<SchemaStep> esquemaDoBanco();
