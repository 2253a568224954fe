// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex4/thalvex4.h"

#include "thalvex4/thalvex4results.h"

Results *Thalvex4::acquireResults(Experiment *exp)
{
    using R = Thalvex4Results;
    return acquireHeaders<R>(exp, {&R::parseHeader1, &R::parseHeader2, &R::parseHeader3, &R::parseHeader4}).release();
}
