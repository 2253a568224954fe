// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/setting.h"

/// The configuration of a heat-stress meter: the unit of its temperatures and the sampling interval.
class HeatStressConfig : public DeviceConfigOf<HeatStressConfig>
{
    Q_OBJECT

public:
    using DeviceConfigOf::DeviceConfigOf;

    /// "°C" or "°F"; empty until read. "Unity" is the system's own word for the unit.
    QString unity() const { return m_unity; }
    /// Sampling interval as "mm:ss"; empty until read. 6000 seconds are "100:00".
    QString sampleTime() const { return m_sampleTime; }

    static const Settings<HeatStressConfig> &settings();

private:
    QString m_unity;
    QString m_sampleTime;
};
