// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/namedexperiment.h"
#include "thalvex4/thalvex4.h"
#include "thalvex4/thalvex4log.h"
#include "thalvex4/thalvex4results.h"

/// A measurement with a name, of the main unit and its expansions.
class Thalvex4Experiment : public ExperimentOf<NamedExperiment, Thalvex4Log, Thalvex4Results>
{
    Q_OBJECT

public:
    Thalvex4Experiment() : ExperimentOf(Thalvex4::Name, {6}) {}
};
