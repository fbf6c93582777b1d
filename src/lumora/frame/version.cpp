#include <lumora/lumora.h>

extern "C" const char* lumora_version() { return LUMORA_VERSION; }
