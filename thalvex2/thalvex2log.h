// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/log.h"

/// One sample: three temperatures and two WBGT values, as the instrument sent them, in the unit of the measurement.
class Thalvex2Log : public LogOf<Thalvex2Log, 10>
{
    Q_OBJECT
    Q_PROPERTY(QString wetTemperature MEMBER m_wetTemperature NOTIFY logItemChanged)
    Q_PROPERTY(QString dryTemperature MEMBER m_dryTemperature NOTIFY logItemChanged)
    Q_PROPERTY(QString globeTemperature MEMBER m_globeTemperature NOTIFY logItemChanged)
    Q_PROPERTY(QString IBUTGi MEMBER m_IBUTGi NOTIFY logItemChanged)
    Q_PROPERTY(QString IBUTGe MEMBER m_IBUTGe NOTIFY logItemChanged)

public:
    QString wetTemperature() const { return m_wetTemperature; }
    QString dryTemperature() const { return m_dryTemperature; }
    QString globeTemperature() const { return m_globeTemperature; }
    /// WBGT without solar load.
    QString IBUTGi() const { return m_IBUTGi; }
    /// WBGT with solar load.
    QString IBUTGe() const { return m_IBUTGe; }

    static const Fields<Thalvex2Log> &fields();

private:
    QString m_wetTemperature;
    QString m_dryTemperature;
    QString m_globeTemperature;
    QString m_IBUTGi;
    QString m_IBUTGe;
};
