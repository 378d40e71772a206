#include "platform/files/RegistryStore.h"
