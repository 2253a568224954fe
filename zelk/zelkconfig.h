// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/setting.h"

/// The configuration of the logger: its sampling interval.
class ZelkConfig : public DeviceConfigOf<ZelkConfig>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Product{"ZELK"};

    ZelkConfig() : DeviceConfigOf(Product) {}

    /// "mm:ss"; empty until read.
    QString sampleTime() const { return m_sampleTime; }

    static const Settings<ZelkConfig> &settings();

private:
    QString m_sampleTime;
};
