// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "heatstress/heatstressdevice.h"

/// The simpler heat-stress meter: three temperatures and two WBGT values at one place.
class Thalvex2 : public HeatStressDevice
{
    Q_OBJECT

public:
    static constexpr QLatin1String Name{"THALVEX 2"};

    Thalvex2() : HeatStressDevice(Name) {}
    explicit Thalvex2(const Device &plain) : HeatStressDevice(plain) {}

    /// Headers 1 to 3 and the closing record.
    Results *acquireResults(Experiment *exp) override;
};
