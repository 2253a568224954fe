// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/setting.h"

/// The one setting of the vibration meter.
class LomtrixConfig : public DeviceConfigOf<LomtrixConfig>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Product{"LOMTRIX"};

    LomtrixConfig() : DeviceConfigOf(Product) {}

    /// Time from one record to the next as "mm:ss", minutes beyond the hour too ("61:01"); empty until read.
    QString sampleTime() const { return m_sampleTime; }

    static const Settings<LomtrixConfig> &settings();

private:
    QString m_sampleTime;
};
