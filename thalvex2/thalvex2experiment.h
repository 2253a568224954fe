// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/experiment.h"
#include "thalvex2/thalvex2.h"

class Thalvex2Experiment : public Experiment
{
    Q_OBJECT

public:
    Thalvex2Experiment() : Experiment(Thalvex2::Name) {}

    /// A list line: at least 5 fields.
    [[nodiscard]] int parseHeader(const QByteArray &line) override { return parseListLine(line, 5).isEmpty() ? -1 : 0; }
};
