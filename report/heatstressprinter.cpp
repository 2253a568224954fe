// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/heatstressprinter.h"

#include "model/heatstressresults.h"
#include "model/log.h"
#include "report/csv.h"
#include "report/timechart.h"
#include "report/vfsubsuperscript.h"
#include "report/vftable.h"

#include <QFile>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

QString localTime(const QDateTime &moment)
{
    return moment.toLocalTime().toString(QStringLiteral("hh:mm:ss"));
}

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
    ReportParameters parameters = familyParameters();
    const ReportParameters shared = {
        {"ckbWetTempTable", &m_ckbWetTempTable},
        {"ckbDryTempTable", &m_ckbDryTempTable},
        {"ckbGlobeTempTable", &m_ckbGlobeTempTable},
        {"ckbIBUTGiTable", &m_ckbIBUTGiTable},
        {"ckbIBUTGeTable", &m_ckbIBUTGeTable},
        {"ckbChart", &m_ckbChart},
        {"ckbWetTempChart", &m_ckbWetTempChart},
        {"ckbDryTempChart", &m_ckbDryTempChart},
        {"ckbGlobeTempChart", &m_ckbGlobeTempChart},
        {"ckbIBUTGiChart", &m_ckbIBUTGiChart},
        {"ckbIBUTGeChart", &m_ckbIBUTGeChart},
        {"ckbCsv", &m_ckbCsv},
        {"ckbCalibration", &m_ckbCalibration},
    };
    parameters.insert(parameters.end(), shared.cbegin(), shared.cend());
    readParameters(json, parameters);
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
    return QLatin1String(" [") + resultsOf<HeatStressResults>(experiment).unity() + QLatin1Char(']');
}

QString HeatStressPrinter::nameWithUnit(Quantity quantity) const
{
    return name(quantity) + unitSuffix(m_experiment);
}

double HeatStressPrinter::number(const Log &log, int unit, Quantity quantity) const
{
    const double value = sample(log, unit, quantity).toDouble();
    return std::isfinite(value) ? value : 0;
}

QString HeatStressPrinter::numberText(const Log &log, int unit, Quantity quantity) const
{
    return QLocale().toString(number(log, unit, quantity), 'f', 1);
}

// ---------------------------------------------------------------- sections

void HeatStressPrinter::drawExperiment()
{
    const auto &results = resultsOf<HeatStressResults>(m_experiment);
    const auto texts = [](const QString &caption, const QString &value, const QString &caption2, const QString &value2) {
        const QLatin1String colon(": ");
        return QStringList{caption + colon + value + QLatin1String("\r\n") + caption2 + colon + value2};
    };
    section(tr("Experiment"), [&] {
        drawTwoColumns(
            texts(tr("Start time"), localTime(results.startTime()), tr("Duration"), results.duration()),
            texts(tr("Stop time"), localTime(results.stopTime()), tr("Pause time"), results.pauseTime()));
    });
}

void HeatStressPrinter::drawChartSection(int unit)
{
    if (m_ckbChart && anyOf(chartSwitches()))
        section(tr("Chart"), [&] { m_y += drawChart(m_hSpace, m_y, 1.0F, unit); });
}

int HeatStressPrinter::drawChart(int x, int y, float scale, int unit)
{
    const QString temperature = QStringLiteral("T<sub>%1</sub>");
    const QString index = QStringLiteral("WBGT<sub>%1</sub>");
    const PerQuantity<QString> names = {temperature.arg(tr("Dry")), temperature.arg(tr("Wet")),
                                        temperature.arg(tr("Globe")), index.arg(tr("i")), index.arg(tr("o"))};
    TimeChart chart(m_chartFont);
    chart.setTitle(tr("Temperature x Time"));
    chart.setTimeTitle(tr("Time", "X axis label"));
    chart.setValueTitle(tr("Temperature") + unitSuffix(m_experiment));
    const QList<Log *> logs = m_experiment->logs();
    const PerQuantity<bool> on = chartSwitches();
    for (const Quantity quantity : {Dry, Wet, Globe, Indoors, Outdoors}) {
        if (!on[quantity])
            continue;
        QVector<QPointF> points;
        points.reserve(logs.size());
        for (const Log *log : logs)
            points.append({double(log->registerDate().toMSecsSinceEpoch()), number(*log, unit, quantity)});
        chart.addCurve(names[quantity], points);
    }
    return chart.draw(m_painter.get(), x, y, QSizeF(windowWidth() + 1 - 2 * m_hSpace, 300), double(scale));
}

// ---------------------------------------------------------------- log table

QList<VfSubSuperScript *> HeatStressPrinter::logTableHeader(Experiment *experiment)
{
    auto *unit = new VfSubSuperScript(QLatin1Char('[') + resultsOf<HeatStressResults>(experiment).unity()
                                          + QLatin1Char(']'), {}, {});
    const QString symbols[] = {tr("T"), tr("T"), tr("T"), tr("WBGT"), tr("WBGT")};
    QList<VfSubSuperScript *> heads = {new VfSubSuperScript(tr("Idx"), {}, {}), new VfSubSuperScript(tr("D/T"), {}, {})};
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
    QList<VfTableRow *> rows;
    const QList<Log *> logs = experiment->logs();
    const PerQuantity<bool> on = tableSwitches();
    rows.reserve(logs.size());
    for (const Log *log : logs) {
        QStringList cells{QStringLiteral("%1").arg(rows.size() + 1, 3, 10, QLatin1Char('0')),
                          localTime(log->registerDate())};
        for (const Quantity quantity : {Dry, Wet, Globe, Indoors, Outdoors}) {
            if (on[quantity])
                cells.append(numberText(*log, unit, quantity));
        }
        rows.append(new VfTableRow(cells, log->registerDate().date()));
    }
    return rows;
}

VfTable *HeatStressPrinter::createLogTable(Experiment *experiment, int unit)
{
    return makeLogTable(logTableRowsOf(experiment, unit), logTableHeader(experiment));
}

void HeatStressPrinter::drawLogTable(int unit)
{
    drawLogTable(std::unique_ptr<VfTable>(createLogTable(m_experiment, unit)));
}

// ---------------------------------------------------------------- CSV

void HeatStressPrinter::writeCsvFile(const std::function<void(QFile &)> &lines) const
{
    if (!m_ckbCsv)
        return;
    QFile file(csvFileName());
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        lines(file);
}

void HeatStressPrinter::writeCsvSamples(QFile &file, const Experiment *experiment, int unit) const
{
    QStringList heads{tr("Time")};
    for (const Quantity quantity : {Wet, Dry, Globe, Indoors, Outdoors}) // in this order whatever that of the values
        heads.append(name(quantity) + unitSuffix(experiment));
    file.write(Csv::headLine(heads));
    const QList<Log *> logs = experiment->logs();
    for (const Log *log : logs) {
        QStringList cells{localTime(log->registerDate())};
        for (const Quantity quantity : m_words.csvValues)
            cells.append(numberText(*log, unit, quantity));
        file.write(Csv::valueLine(cells));
    }
}
