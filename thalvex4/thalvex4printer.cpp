// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex4/thalvex4printer.h"

#include "report/csv.h"
#include "report/vftable.h"
#include "thalvex4/thalvex4log.h"
#include "thalvex4/thalvex4results.h"

namespace {

constexpr int csvColumns = 6;

QString model(int unit)
{
    return unit == 0 ? QStringLiteral("THALVEX 4") : QStringLiteral("EXP. THALVEX 4");
}

/// A line with \a title in the first of its cells.
QByteArray csvTitle(const QString &title)
{
    QStringList cells{title};
    while (cells.size() < csvColumns)
        cells.append(QString());
    return Csv::headLine(cells);
}

} // namespace

Thalvex4Printer::Thalvex4Printer()
    : HeatStressPrinter({
          tr("Thalvex 4 Report"),
          {tr("Dry bulb"), tr("Wet bulb"), tr("Globe"), tr("WBGTi"), tr("WBGTo")},
          {tr("dry"), tr("wet"), tr("globe"), tr("i"), tr("o")},
          {Wet, Dry, Globe, Indoors, Outdoors},
      })
{
}

ReportParameters Thalvex4Printer::familyParameters()
{
    return {
        {"ckbResults", &m_ckbResults},
        {"ckbWetTempResults", &m_ckbWetTempResults},
        {"ckbDryTempResults", &m_ckbDryTempResults},
        {"ckbGlobeTempResults", &m_ckbGlobeTempResults},
        {"ckbIBUTGiResults", &m_ckbIBUTGiResults},
        {"ckbIBUTGeResults", &m_ckbIBUTGeResults},
    };
}

const Thalvex4Results &Thalvex4Printer::results() const
{
    return resultsOf<Thalvex4Results>(m_experiment);
}

int Thalvex4Printer::unitCount() const
{
    return 1 + results().numberOfExpansions();
}

void Thalvex4Printer::drawFront()
{
    drawIdentification();
    drawExperiment();
    drawEvaluation();
    drawNotes();
    drawSignature();
}

std::vector<PartedPrinter::Part> Thalvex4Printer::parts()
{
    std::vector<Part> units;
    for (int unit = 0; unit < unitCount(); ++unit) {
        const auto page = [this, unit] {
            drawDeviceInfo(unit);
            drawPartialResults(unit);
            drawChartSection(unit);
        };
        units.push_back({{page}, logTable(unit)});
    }
    return units;
}

void Thalvex4Printer::writeFurtherFiles()
{
    if (m_ckbCsv)
        writeCsvFile(csvOfChain());
}

void Thalvex4Printer::drawEvaluation()
{
    section(tr("Evaluation results"), [this] {
        drawColumns({tr("Instrument index"), tr("Instrument Model"), name(Indoors), name(Outdoors)}, 4);
        for (int unit = 0; unit < unitCount(); ++unit) {
            const WbgtAverages averages = results().wbgtList().value(unit);
            drawColumns({QString::number(unit + 1), model(unit), formatNumber(averages.WBGTiMed, 2, 2),
                         formatNumber(averages.WBGToMed, 2, 2)},
                        4);
        }
    });
}

void Thalvex4Printer::drawDeviceInfo(int unit)
{
    const ExpansionBoard board = results().expansionBoardList().value(unit - 1);
    section(tr("Device info"), [&] {
        drawLine(model(unit) + QLatin1Char('(') + (unit == 0 ? m_sn : board.SN) + QLatin1Char(')'));
        if (m_ckbCalibration)
            drawLine(calibrationText(unit == 0 ? m_calibration : board.calibration));
    });
}

void Thalvex4Printer::drawPartialResults(int unit)
{
    const TemperatureExtremes extremes = results().maxMinTemperatures().value(unit);
    const WbgtAverages averages = results().wbgtList().value(unit);
    QStringList heads;
    QStringList values;
    const auto add = [&](bool on, Quantity quantity, const QString &value) {
        if (on) {
            heads.append(nameWithUnit(quantity));
            values.append(value);
        }
    };
    const auto captioned = [](const QString &caption, double value) -> QString {
        return caption + QLatin1String(": ") + formatNumber(value, 2, 2);
    };
    const auto range = [&](double highest, double lowest) -> QString {
        return captioned(tr("Max"), highest) + QLatin1String("\r\n") + captioned(tr("Min"), lowest);
    };
    add(m_ckbDryTempResults, Dry, range(extremes.dryTMax, extremes.dryTMin));
    add(m_ckbWetTempResults, Wet, range(extremes.wetTMax, extremes.wetTMin));
    add(m_ckbGlobeTempResults, Globe, range(extremes.globeTMax, extremes.globeTMin));
    add(m_ckbIBUTGiResults, Indoors, captioned(tr("Avg"), averages.WBGTiMed));
    add(m_ckbIBUTGeResults, Outdoors, captioned(tr("Avg"), averages.WBGToMed));
    if (!m_ckbResults || heads.isEmpty())
        return;
    section(tr("Partial results"), [&] {
        drawColumns(heads, QuantityCount);
        drawColumns(values, QuantityCount);
    });
}

QString Thalvex4Printer::sample(const Log &log, int unit, Quantity quantity) const
{
    using Factors = EnvironmentalFactors;
    static constexpr PerQuantity<QString Factors::*> values = {&Factors::dryTemperature, &Factors::wetTemperature,
                                                               &Factors::globeTemperature, &Factors::WBGTi,
                                                               &Factors::WBGTo};
    const QVector<Factors> &units = static_cast<const Thalvex4Log &>(log).enviromentalFactorsList();
    return unit < units.size() ? units[unit].*values[quantity] : QString();
}

QByteArray Thalvex4Printer::csvOfChain() const
{
    QByteArray lines;
    for (const Experiment *member = m_experiment; member; member = member->next()) {
        lines += csvTitle(tr("Event") + QLatin1Char(' ') + QString::number(member->ordinal()));
        const int expansions = resultsOf<Thalvex4Results>(member).numberOfExpansions();
        for (int unit = 0; unit <= expansions; ++unit) {
            lines += csvTitle(unit == 0 ? tr("Main") : tr("Expansion") + QLatin1Char(' ') + QString::number(unit));
            lines += csvSamples(member, unit);
            lines += csvTitle(QString());
        }
    }
    return lines;
}
