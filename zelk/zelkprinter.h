// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/partedprinter.h"

#include <QVector>

class ZelkResults;
struct PhysicalQuantityDescriptor;
struct ZelkExpData;

/// The report of the logger: who measured with which sensors, and for each experiment what its sensor was set to, what it
/// evaluated, limits, charts and records. Quantities are chosen by their numbers; an experiment prints those that it has.
class ZelkPrinter : public PartedPrinter
{
    Q_OBJECT

public:
    ZelkPrinter();

    void setParameters(const QString &json) override;
    QList<VfSubSuperScript *> logTableHeader(Experiment *experiment) override;
    QList<VfTableRow *> logTableRows(Experiment *experiment) override;

protected:
    void drawFront() override;
    std::vector<Part> parts() override;

private:
    static const ZelkResults &resultsOf(const Experiment &experiment);
    /// Those of \a chosen that are numbers of quantities of \a experiment.
    static QVector<int> numbersOf(const QVector<int> &chosen, const Experiment &experiment);

    void drawSensors();
    void drawConfiguration(const Experiment &experiment);
    void drawItems(const QVector<ZelkExpData> &items);
    void drawLimits(const ZelkResults &results);
    /// As many rows as fit on this page, and on the next ones the others.
    void drawCharts(const Experiment &experiment);
    void drawChart(const Experiment &experiment, int quantity, const QRect &place);
    Part partOf(Experiment *experiment);
    /// The heads of the log table, with \a gap between a name and its unit, and whether they fit on a page.
    QList<VfSubSuperScript *> logHeads(const Experiment &experiment, const QString &gap) const;
    bool fits(const QList<VfSubSuperScript *> &heads) const;
    /// A table wider than a page is not drawn: this says so.
    void drawMissingTable(Experiment *experiment);

    bool m_ckbChart = false;
    bool m_ckbMaxMin = false;
    bool m_ckbAvg = false;
    bool m_ckbCalibration = false;
    QVector<int> m_columns; ///< numbers of the quantities in log tables
    QVector<int> m_charts;  ///< and of those with a chart
};
