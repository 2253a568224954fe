// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex2/thalvex2printer.h"

#include "model/experiment.h"
#include "report/vftable.h"
#include "thalvex2/thalvex2log.h"
#include "thalvex2/thalvex2results.h"

#include <QLocale>

Thalvex2Printer::Thalvex2Printer()
    : HeatStressPrinter({
          tr("Thalvex 2 Report"),
          {tr("Dry temp"), tr("Wet temp"), tr("Globe temp"), tr("WBGTi"), tr("WBGTo")},
          {tr("Dry"), tr("Wet"), tr("Globe"), tr("i"), tr("o")},
          // Dry before wet, under heads that say wet before dry: readers of these files know it so.
          {Dry, Wet, Globe, Indoors, Outdoors},
      })
{
}

ReportParameters Thalvex2Printer::familyParameters()
{
    return {{"ckbMaxMin", &m_ckbMaxMin}, {"ckbAvg", &m_ckbAvg}};
}

void Thalvex2Printer::drawFront()
{
    drawIdentification();
    drawExperiment();
    drawEvaluation();
    drawCalibration();
    drawChartSection();
    drawNotes();
    drawSignature();
}

std::vector<PartedPrinter::Part> Thalvex2Printer::parts()
{
    return {{{}, logTable(0)}};
}

void Thalvex2Printer::writeFurtherFiles()
{
    if (m_ckbCsv)
        writeCsvFile(csvSamples(m_experiment, 0));
}

void Thalvex2Printer::drawEvaluation()
{
    const auto &results = resultsOf<Thalvex2Results>(m_experiment);
    const auto line = [](const QString &caption, double value) -> QString {
        return QLatin1String("\r\n") + caption + QLatin1String(": ") + QLocale().toString(value, 'f', 2);
    };
    QStringList texts;
    if (m_ckbMaxMin) {
        const auto extremes = [&](Quantity quantity, double highest, double lowest) {
            texts.append(nameWithUnit(quantity) + line(tr("Max"), highest) + line(tr("Min"), lowest));
        };
        extremes(Dry, results.dryTMax(), results.dryTMin());
        extremes(Wet, results.wetTMax(), results.wetTMin());
        extremes(Globe, results.globeTMax(), results.globeTMin());
    }
    if (m_ckbAvg) { // with solar load first
        texts.append(nameWithUnit(Outdoors) + line(tr("Avg"), results.IBUTGeMed()));
        texts.append(nameWithUnit(Indoors) + line(tr("Avg"), results.IBUTGiMed()));
    }
    if (!texts.isEmpty())
        section(tr("Evaluation results"), [&] { drawColumns(texts, texts.size()); });
}

void Thalvex2Printer::drawCalibration()
{
    if (m_ckbCalibration)
        section(tr("Calibration"), [this] { drawLine(calibrationText(m_calibration)); });
}

QList<VfTableRow *> Thalvex2Printer::logTableRows(Experiment *experiment)
{
    return logTableRowsOf(experiment, 0);
}

QString Thalvex2Printer::sample(const Log &log, int, Quantity quantity) const
{
    static constexpr PerQuantity<QString (Thalvex2Log::*)() const> values = {
        &Thalvex2Log::dryTemperature, &Thalvex2Log::wetTemperature, &Thalvex2Log::globeTemperature,
        &Thalvex2Log::IBUTGi, &Thalvex2Log::IBUTGe};
    return (static_cast<const Thalvex2Log &>(log).*values[quantity])();
}
