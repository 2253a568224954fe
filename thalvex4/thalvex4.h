// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "heatstress/heatstressdevice.h"

/// The larger heat-stress meter: a main unit and up to three expansion units that measure at the same time.
class Thalvex4 : public HeatStressDevice
{
    Q_OBJECT

public:
    static constexpr QLatin1String Name{"THALVEX 4"};
    static constexpr int MaxExpansions = 3;

    Thalvex4() : HeatStressDevice(Name) {}
    explicit Thalvex4(const Device &plain) : HeatStressDevice(plain) {}

    /// Headers 1 to 4 and the closing record.
    Results *acquireResults(Experiment *exp) override;
};
