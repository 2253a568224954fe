// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/experiment.h"
#include "report/partedprinter.h"

#include <array>

class HeatStressResults;
class Log;

/// What the reports of the heat-stress meters share: the data of a measurement, the chart and the log table of a unit's
/// five values, and the lines of the CSV file. A family says how its values are named and where they are.
class HeatStressPrinter : public PartedPrinter
{
    Q_OBJECT

public:
    void setParameters(const QString &json) override;
    QStringList outputFiles() const override;
    QList<VfSubSuperScript *> logTableHeader(Experiment *experiment) override;

protected:
    /// The values of a unit, in the order of tables and charts.
    enum Quantity { Dry, Wet, Globe, Indoors, Outdoors, QuantityCount };
    template <class T> using PerQuantity = std::array<T, QuantityCount>;

    /// How a family calls its report and its values.
    struct Words {
        QString title;
        PerQuantity<QString> names;
        PerQuantity<QString> subscripts; ///< in the heads of the log table
        PerQuantity<Quantity> csvValues; ///< order of the values in a line of the CSV file
    };
    explicit HeatStressPrinter(const Words &words);

    /// Switches that only this family has.
    virtual ReportParameters familyParameters() = 0;
    /// A value of unit \a unit (0: the main unit) in \a log, as the instrument sent it.
    virtual QString sample(const Log &log, int unit, Quantity quantity) const = 0;

    /// Whether the log table is asked for, with one of its columns.
    bool logTableWanted() const;
    /// " [°C]"
    QString unitSuffix(const Experiment *experiment) const;
    /// \a quantity's name with its unit.
    QString nameWithUnit(Quantity quantity) const;
    const QString &name(Quantity quantity) const { return m_words.names[quantity]; }
    /// The results of \a experiment; empty ones when there are none.
    template <class R> static const R &resultsOf(const Experiment *experiment);

    void drawExperiment();
    /// Only with its switch and a curve.
    void drawChartSection(int unit = 0);
    void drawChart(int unit);
    /// What makes the log table of \a unit; nothing when it is not wanted.
    std::function<VfTable *()> logTable(int unit);
    using VfPrinter::createLogTable;
    VfTable *createLogTable(Experiment *experiment, int unit);
    QList<VfTableRow *> logTableRowsOf(const Experiment *experiment, int unit) const;

    /// Lines of the CSV file: the head and one for each sample of \a unit.
    QByteArray csvSamples(const Experiment *experiment, int unit) const;

    bool m_ckbWetTempTable = false;
    bool m_ckbDryTempTable = false;
    bool m_ckbGlobeTempTable = false;
    bool m_ckbIBUTGiTable = false;
    bool m_ckbIBUTGeTable = false;
    bool m_ckbChart = false;
    bool m_ckbWetTempChart = false;
    bool m_ckbDryTempChart = false;
    bool m_ckbGlobeTempChart = false;
    bool m_ckbIBUTGiChart = false;
    bool m_ckbIBUTGeChart = false;
    bool m_ckbCsv = false;
    bool m_ckbCalibration = false;

private:
    /// "[°C]", cut when it is absurdly long.
    static QString bracketedUnit(const Experiment *experiment);
    PerQuantity<bool> tableSwitches() const;
    PerQuantity<bool> chartSwitches() const;
    double number(const Log &log, int unit, Quantity quantity) const;
    QString numberText(const Log &log, int unit, Quantity quantity) const;

    Words m_words;
};

template <class R> const R &HeatStressPrinter::resultsOf(const Experiment *experiment)
{
    static const R none;
    const R *results = qobject_cast<const R *>(experiment->results());
    return results ? *results : none;
}
