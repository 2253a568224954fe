// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/namedexperiment.h"
#include "nembraplus/nembraplus.h"
#include "nembraplus/nembrapluslog.h"

class NembraPlusExperiment : public ExperimentOf<NamedExperiment, NembraPlusLog, NembraPlusResults>
{
    Q_OBJECT

public:
    NembraPlusExperiment() : ExperimentOf(NembraPlus::Name, {6, 1}) {} // lines of this meter are refused with 1
};
