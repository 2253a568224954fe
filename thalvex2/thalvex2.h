// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/deviceof.h"
#include "thalvex2/thalvex2config.h"

/// The simpler heat-stress meter: three temperatures and two WBGT values at one place.
class Thalvex2 : public DeviceOf<Thalvex2Config>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Name = Thalvex2Config::Product;

    using DeviceOf::DeviceOf;

    /// Headers 1 to 3 and the closing record.
    Results *acquireResults(Experiment *exp) override;
};
