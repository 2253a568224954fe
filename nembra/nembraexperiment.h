// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/namedexperiment.h"
#include "nembra/nembra.h"
#include "nembra/nembralog.h"

class NembraExperiment : public ExperimentOf<NamedExperiment, NembraLog, NembraResults>
{
    Q_OBJECT

public:
    NembraExperiment() : ExperimentOf(Nembra::Name, {6, 1}) {} // lines of this meter are refused with 1
};
