// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ardel/ardel2log.h"
#include "ardel/ardel2results.h"
#include "model/namedexperiment.h"

class Ardel2Experiment : public ExperimentOf<NamedExperiment, Ardel2Log, Ardel2Results>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Product{"ARDEL 2"};

    Ardel2Experiment() : ExperimentOf(Product, {6}) {}
};
