// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/deviceof.h"
#include "lomtrix/lomtrixconfig.h"

/// The vibration meter: accelerations of hand and arm or of the whole body on three axes.
class Lomtrix : public DeviceOf<LomtrixConfig>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Name = LomtrixConfig::Product;

    using DeviceOf::DeviceOf;

    /// Headers 1 to 5 and the closing record.
    Results *acquireResults(Experiment *exp) override;
};
