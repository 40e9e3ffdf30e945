// A build for a test set includes this header first in every source. With _GNU_SOURCE, which g++
// defines, the headers of glibc 2.38 and later replace strtol(), sscanf() and similar functions by
// their C23 forms, which older libraries do not have. The name of the switch depends on the
// version.
#pragma once

#include <features.h>

#undef __GLIBC_USE_C2X_STRTOL
#define __GLIBC_USE_C2X_STRTOL 0
#undef __GLIBC_USE_C23_STRTOL
#define __GLIBC_USE_C23_STRTOL 0
