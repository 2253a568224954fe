// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lomtrix/lomtrix.h"
#include "lomtrix/lomtrixlog.h"
#include "lomtrix/lomtrixresults.h"
#include "model/typedexperiment.h"

/// A measurement of type "H", hand and arm, or "B", whole body.
class LomtrixExperiment : public ExperimentOf<TypedExperiment, LomtrixLog, LomtrixResults>
{
    Q_OBJECT

public:
    LomtrixExperiment() : ExperimentOf(Lomtrix::Name, {7}) {}

    void fromJson(const QJsonObject &body) override;

protected:
    void readListLine(const Pieces &line) override;
};
