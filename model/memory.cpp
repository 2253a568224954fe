// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/memory.h"

#include <QtGlobal>

#if defined(Q_OS_LINUX) && defined(__GLIBC__)
#include <malloc.h>
#endif

void returnFreedMemory()
{
#if defined(Q_OS_LINUX) && defined(__GLIBC__)
    malloc_trim(0);
#endif
}
