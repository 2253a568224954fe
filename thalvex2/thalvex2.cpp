// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex2/thalvex2.h"

#include "thalvex2/thalvex2config.h"
#include "thalvex2/thalvex2results.h"

Thalvex2::Thalvex2()
{
    setProductName(Name);
    setConfig(new Thalvex2Config);
}

Thalvex2::Thalvex2(const Device &plain) : HeatStressDevice(plain)
{
    setConfig(new Thalvex2Config);
}

Results *Thalvex2::acquireResults(Experiment *exp)
{
    using R = Thalvex2Results;
    return acquireHeaders<R>(exp, {&R::parseHeader1, &R::parseHeader2, &R::parseHeader3}).release();
}
