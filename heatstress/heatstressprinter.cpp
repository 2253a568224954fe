// SPDX-License-Identifier: GPL-3.0-or-later
#include "heatstress/heatstressprinter.h"

#include "heatstress/heatstressresults.h"
#include "model/log.h"
#include "report/chartscene.h"
#include "report/csv.h"
#include "report/texts.h"
#include "report/timechart.h"
#include "report/values.h"
#include "report/vfsubsuperscript.h"
#include "report/vftable.h"

#include <QLocale>

#include <algorithm>

namespace {

constexpr int longestUnit = 10; ///< characters, for five columns to stand beside each other
constexpr int ChartHeight = 300;

bool anyOf(const std::array<bool, 5> &switches)
{
    return std::find(switches.cbegin(), switches.cend(), true) != switches.cend();
}

} // namespace

HeatStressPrinter::HeatStressPrinter(const Words &words) : m_words(words)
{
    m_reportTitle = words.title;
    m_footerText = QStringLiteral(" ");
    setBodyFonts();
}

void HeatStressPrinter::setParameters(const QString &json)
{
    readParameters(json, familyParameters(), {
        {"ckbWetTempTable", &m_ckbWetTempTable},     {"ckbDryTempTable", &m_ckbDryTempTable},
        {"ckbGlobeTempTable", &m_ckbGlobeTempTable}, {"ckbIBUTGiTable", &m_ckbIBUTGiTable},
        {"ckbIBUTGeTable", &m_ckbIBUTGeTable},       {"ckbChart", &m_ckbChart},
        {"ckbWetTempChart", &m_ckbWetTempChart},     {"ckbDryTempChart", &m_ckbDryTempChart},
        {"ckbGlobeTempChart", &m_ckbGlobeTempChart}, {"ckbIBUTGiChart", &m_ckbIBUTGiChart},
        {"ckbIBUTGeChart", &m_ckbIBUTGeChart},       {"ckbCsv", &m_ckbCsv},
        {"ckbCalibration", &m_ckbCalibration},
    });
}

QStringList HeatStressPrinter::outputFiles() const
{
    QStringList files = VfPrinter::outputFiles();
    if (m_ckbCsv)
        files += csvFileName();
    return files;
}

HeatStressPrinter::PerQuantity<bool> HeatStressPrinter::tableSwitches() const
{
    return {m_ckbDryTempTable, m_ckbWetTempTable, m_ckbGlobeTempTable, m_ckbIBUTGiTable, m_ckbIBUTGeTable};
}

HeatStressPrinter::PerQuantity<bool> HeatStressPrinter::chartSwitches() const
{
    return {m_ckbDryTempChart, m_ckbWetTempChart, m_ckbGlobeTempChart, m_ckbIBUTGiChart, m_ckbIBUTGeChart};
}

bool HeatStressPrinter::logTableWanted() const
{
    return m_tableEnable && anyOf(tableSwitches());
}

QString HeatStressPrinter::unitSuffix(const Experiment *experiment) const
{
    return QLatin1Char(' ') + bracketedUnit(experiment);
}

QString HeatStressPrinter::bracketedUnit(const Experiment *experiment)
{
    const QString unity = resultsOf<HeatStressResults>(experiment).unity();
    return QLatin1Char('[') + shortened(unity, longestUnit) + QLatin1Char(']');
}

QString HeatStressPrinter::nameWithUnit(Quantity quantity) const
{
    return name(quantity) + unitSuffix(m_experiment);
}

double HeatStressPrinter::number(const Log &log, int unit, Quantity quantity) const
{
    return numberOf(sample(log, unit, quantity));
}

QString HeatStressPrinter::numberText(const Log &log, int unit, Quantity quantity) const
{
    return QLocale().toString(number(log, unit, quantity), 'f', 1);
}

// ---------------------------------------------------------------- sections

void HeatStressPrinter::drawExperiment()
{
    const auto &results = resultsOf<HeatStressResults>(m_experiment);
    const auto texts = [](const QString &caption, const QString &value, const QString &caption2,
                          const QString &value2) {
        const QLatin1String colon(": ");
        return QStringList{caption + colon + dashed(value) + QLatin1String("\r\n") + caption2 + colon + dashed(value2)};
    };
    section(tr("Experiment"), [&] {
        drawTwoColumns(texts(tr("Start time"), localTime(results.startTime()), tr("Duration"), results.duration()),
                       texts(tr("Stop time"), localTime(results.stopTime()), tr("Pause time"), results.pauseTime()));
    });
}

void HeatStressPrinter::drawChartSection(int unit)
{
    if (m_ckbChart && anyOf(chartSwitches()))
        section(tr("Chart"), [&] { drawChart(unit); });
}

void HeatStressPrinter::drawChart(int unit)
{
    TimeChart chart(m_chartFont);
    if (isRehearsing())
        return placeChart(chart, ChartHeight);
    const QString temperature = QStringLiteral("T<sub>%1</sub>");
    const QString index = QStringLiteral("WBGT<sub>%1</sub>");
    const PerQuantity<QString> names = {temperature.arg(tr("Dry")), temperature.arg(tr("Wet")),
                                        temperature.arg(tr("Globe")), index.arg(tr("i")), index.arg(tr("o"))};
    chart.setTitle(tr("Temperature x Time"));
    chart.setTimeTitle(tr("Time", "X axis label"));
    chart.setValueTitle(ChartScene::plain(tr("Temperature") + unitSuffix(m_experiment)));
    const QList<Log *> logs = m_experiment->logs();
    const PerQuantity<bool> on = chartSwitches();
    PerQuantity<QVector<QPointF>> points;
    for (const Quantity quantity : {Dry, Wet, Globe, Indoors, Outdoors})
        points[quantity].reserve(on[quantity] ? logs.size() : 0);
    for (const Log *log : logs) { // log by log: a day's worth of them does not fit a processor's cache
        const double time = double(log->moment().toMSecsSinceEpoch());
        for (const Quantity quantity : {Dry, Wet, Globe, Indoors, Outdoors}) {
            if (on[quantity] && log->moment().isValid())
                points[quantity].append({time, number(*log, unit, quantity)});
        }
    }
    for (const Quantity quantity : {Dry, Wet, Globe, Indoors, Outdoors}) {
        if (on[quantity])
            chart.addCurve(names[quantity], points[quantity]);
    }
    placeChart(chart, ChartHeight);
}

// ---------------------------------------------------------------- log table

QList<VfSubSuperScript *> HeatStressPrinter::logTableHeader(Experiment *experiment)
{
    auto *unit = new VfSubSuperScript(bracketedUnit(experiment), {}, {});
    const QString symbols[] = {tr("T"), tr("T"), tr("T"), tr("WBGT"), tr("WBGT")};
    QList<VfSubSuperScript *> heads = {new VfSubSuperScript(tr("Idx"), {}, {}),
                                       new VfSubSuperScript(tr("D/T"), {}, {})};
    unit->setParent(heads.first()); // shared by the heads behind it
    const PerQuantity<bool> on = tableSwitches();
    for (const Quantity quantity : {Dry, Wet, Globe, Indoors, Outdoors}) {
        if (on[quantity])
            heads.append(new VfSubSuperScript(symbols[quantity], m_words.subscripts[quantity], {}, unit));
    }
    return heads;
}

QList<VfTableRow *> HeatStressPrinter::logTableRowsOf(const Experiment *experiment, int unit) const
{
    const PerQuantity<bool> on = tableSwitches();
    return logRows(experiment, [&](const Log &log) {
        QStringList cells;
        for (const Quantity quantity : {Dry, Wet, Globe, Indoors, Outdoors}) {
            if (on[quantity])
                cells.append(numberText(log, unit, quantity));
        }
        return cells;
    });
}

VfTable *HeatStressPrinter::createLogTable(Experiment *experiment, int unit)
{
    return makeLogTable(logTableRowsOf(experiment, unit), logTableHeader(experiment));
}

std::function<VfTable *()> HeatStressPrinter::logTable(int unit)
{
    if (!logTableWanted())
        return {};
    return [this, unit] { return createLogTable(m_experiment, unit); };
}

// ---------------------------------------------------------------- CSV

QByteArray HeatStressPrinter::csvSamples(const Experiment *experiment, int unit) const
{
    QStringList heads{tr("Time")};
    for (const Quantity quantity : {Wet, Dry, Globe, Indoors, Outdoors}) // in this order whatever that of the values
        heads.append(name(quantity) + unitSuffix(experiment));
    QByteArray lines = Csv::headLine(heads);
    const QList<Log *> logs = experiment->logs();
    for (const Log *log : logs) {
        QStringList cells{localTime(log->registerDate())};
        for (const Quantity quantity : m_words.csvValues)
            cells.append(numberText(*log, unit, quantity));
        lines += Csv::valueLine(cells);
    }
    return lines;
}
