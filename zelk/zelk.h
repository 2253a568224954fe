// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/deviceof.h"
#include "zelk/zelkconfig.h"

/// The logger with exchangeable sensor modules. What is calibrated is the module, not the instrument.
class Zelk : public DeviceOf<ZelkConfig>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Name = ZelkConfig::Product;

    Zelk();
    explicit Zelk(const Device &plain);

    /// Headers 1 to 7 and the closing record.
    Results *acquireResults(Experiment *exp) override;
    /// 0 without asking: this instrument has no service setting, and counts as one with the value 1.
    int acquireServiceConfig() override { return DeviceSuccessful; }
    /// Writes the certificate and date of the sensor module that is plugged in.
    int sndCalibration(const Calibration *calib) override;
    int acquireCalibration() override;

private:
    static Manners manners();
};
