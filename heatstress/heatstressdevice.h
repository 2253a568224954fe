// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/device.h"

class HeatStressConfig;

/// What the heat-stress meters have in common as instruments: their unit and sampling interval can be read and set.
class HeatStressDevice : public Device
{
    Q_OBJECT

public:
    int acquireUnit(HeatStressConfig *config);
    int acquireSampleTime(HeatStressConfig *config);
    /// \a letter without the degree sign.
    int sndUnit(const QString &letter);
    /// \a mmss as "mm:ss".
    int sndSampleTime(const QString &mmss);

    int acquireConfiguration() override;
    /// The interval is left as it was on the instrument when the unit is refused.
    int sndConfiguration() override;
    int acquireServiceConfig() override;
    int serviceConfig() const { return m_serviceConfig; }

protected:
    explicit HeatStressDevice(const QString &product);
    explicit HeatStressDevice(const Device &plain);

private:
    int m_serviceConfig = 0;
};
