// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/lomtrix.h"

#include "lomtrix/lomtrixresults.h"

Results *Lomtrix::acquireResults(Experiment *exp)
{
    using R = LomtrixResults;
    return acquireHeaders<R>(exp, {&R::parseHeader1, &R::parseHeader2, &R::parseHeader3, &R::parseHeader4, &R::parseHeader5})
        .release();
}
