// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "heatstress/heatstressresults.h"

/// The summary of one measurement, as the instrument computed it: extremes of the three temperatures, averages of the
/// two WBGT values. Temperatures are in the unit of the measurement.
class Thalvex2Results : public ResultsOf<Thalvex2Results, HeatStressResults>
{
    Q_OBJECT
    Q_PROPERTY(double dry_T_Max READ dryTMax CONSTANT)
    Q_PROPERTY(double dry_T_Min READ dryTMin CONSTANT)
    Q_PROPERTY(double wet_T_Max READ wetTMax CONSTANT)
    Q_PROPERTY(double wet_T_Min READ wetTMin CONSTANT)
    Q_PROPERTY(double globe_T_Max READ globeTMax CONSTANT)
    Q_PROPERTY(double globe_T_Min READ globeTMin CONSTANT)
    Q_PROPERTY(double IBUTGi_T_Med READ IBUTGiMed CONSTANT)
    Q_PROPERTY(double IBUTGe_T_Med READ IBUTGeMed CONSTANT)

public:
    double dryTMax() const { return m_dryTMax; }
    double dryTMin() const { return m_dryTMin; }
    double wetTMax() const { return m_wetTMax; }
    double wetTMin() const { return m_wetTMin; }
    double globeTMax() const { return m_globeTMax; }
    double globeTMin() const { return m_globeTMin; }
    double IBUTGiMed() const { return m_IBUTGiMed; }
    double IBUTGeMed() const { return m_IBUTGeMed; }
    /// Interval, pause, duration and unit: at least 6 fields. 0, or -1 for an answer that is refused.
    [[nodiscard]] int parseHeader1(const QByteArray &answer) { return readHeader(1, answer, 6); }
    /// WBGT averages, start and stop: at least 8 fields.
    [[nodiscard]] int parseHeader2(const QByteArray &answer) { return readHeader(2, answer, 8); }
    /// Extremes: at least 8 fields.
    [[nodiscard]] int parseHeader3(const QByteArray &answer) { return readHeader(3, answer, 8); }

    static const Fields<Thalvex2Results> &fields();

private:
    double m_dryTMax = 0;
    double m_dryTMin = 0;
    double m_wetTMax = 0;
    double m_wetTMin = 0;
    double m_globeTMax = 0;
    double m_globeTMin = 0;
    double m_IBUTGiMed = 0;
    double m_IBUTGeMed = 0;
};
