// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/experiment.h"
#include "thalvex2/thalvex2.h"
#include "thalvex2/thalvex2log.h"
#include "thalvex2/thalvex2results.h"

class Thalvex2Experiment : public ExperimentOf<Experiment, Thalvex2Log, Thalvex2Results>
{
    Q_OBJECT

public:
    Thalvex2Experiment() : ExperimentOf(Thalvex2::Name, {5}) {}
};
