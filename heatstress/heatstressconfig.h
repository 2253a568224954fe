// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/deviceconfig.h"

/// The configuration of a heat-stress meter: the unit of its temperatures and the sampling interval.
class HeatStressConfig : public DeviceConfig
{
    Q_OBJECT

public:
    explicit HeatStressConfig(const QString &productName) : m_productName(productName) {}

    /// "°C" or "°F"; empty until read. "Unity" is the system's own word for the unit.
    QString unity() const { return m_unity; }
    /// Sampling interval as "mm:ss"; empty until read.
    QString sampleTime() const { return m_sampleTime; }

    /// Takes the answer to "AT+VFUNIT?": a letter, quoted or not.
    void setUnityFromDevice(QByteArray payload);
    /// Takes the answer to "AT+VFINTVL?": seconds. 6000 gives "100:00".
    void setSampleTimeFromDevice(const QByteArray &payload);

    QJsonObject toJson() const override;
    [[nodiscard]] int fromJson(const QString &cfg) override;

private:
    QString m_productName;
    QString m_unity;
    QString m_sampleTime;
};
