// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex2/thalvex2.h"

#include "thalvex2/thalvex2results.h"

Results *Thalvex2::acquireResults(Experiment *exp)
{
    using R = Thalvex2Results;
    return acquireHeaders<R>(exp, {&R::parseHeader1, &R::parseHeader2, &R::parseHeader3}).release();
}
