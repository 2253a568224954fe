// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/calibration.h"
#include "heatstress/heatstressresults.h"

/// An expansion unit: its own serial number and calibration.
struct ExpansionBoard {
    QString SN;
    Calibration calibration;

    static const Fields<ExpansionBoard> &fields();
};

/// Averages of one unit.
struct WbgtAverages {
    double WBGTiMed = 0;
    double WBGToMed = 0;

    static const Fields<WbgtAverages> &fields();
};

/// Extremes of one unit.
struct TemperatureExtremes {
    double dryTMax = 0;
    double dryTMin = 0;
    double wetTMax = 0;
    double wetTMin = 0;
    double globeTMax = 0;
    double globeTMin = 0;

    static const Fields<TemperatureExtremes> &fields();
};

/// The summary of one measurement with its expansion units, as the instrument computed it.
class Thalvex4Results : public ResultsOf<Thalvex4Results, HeatStressResults>
{
    Q_OBJECT

public:
    /// 0 to 3, whatever the instrument or a file says.
    int numberOfExpansions() const { return m_numberOfExpansions; }
    /// One for each expansion; one that the instrument did not tell of is empty.
    const QVector<ExpansionBoard> &expansionBoardList() const { return m_expansionBoardList; }
    /// One for each unit, the main unit first.
    const QVector<WbgtAverages> &wbgtList() const { return m_wbgtList; }
    /// One for each unit, the main unit first.
    const QVector<TemperatureExtremes> &maxMinTemperatures() const { return m_maxMinTemperatures; }

    /// Times, interval and unit: at least 11 fields. 0, or -1 for an answer that is refused.
    [[nodiscard]] int parseHeader1(const QByteArray &answer) { return readHeader(1, answer, 11); }
    /// Expansion boards: at least 3 fields.
    [[nodiscard]] int parseHeader2(const QByteArray &answer);
    /// WBGT averages of each unit: at least 4 fields.
    [[nodiscard]] int parseHeader3(const QByteArray &answer);
    /// Extremes of each unit: at least 8 fields.
    [[nodiscard]] int parseHeader4(const QByteArray &answer);

    void fromJson(const QJsonObject &object) override;

    static const Fields<Thalvex4Results> &fields();

private:
    void limitExpansions();

    int m_numberOfExpansions = 0;
    QVector<ExpansionBoard> m_expansionBoardList;
    QVector<WbgtAverages> m_wbgtList;
    QVector<TemperatureExtremes> m_maxMinTemperatures;
};
