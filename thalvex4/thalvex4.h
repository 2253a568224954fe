// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/deviceof.h"
#include "thalvex4/thalvex4config.h"

/// The larger heat-stress meter: a main unit and up to three expansion units that measure at the same time.
class Thalvex4 : public DeviceOf<Thalvex4Config>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Name = Thalvex4Config::Product;
    static constexpr int MaxExpansions = 3;

    using DeviceOf::DeviceOf;

    /// Headers 1 to 4 and the closing record.
    Results *acquireResults(Experiment *exp) override;
};
