// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/lomtrixprinter.h"

#include "lomtrix/lomtrixlog.h"
#include "lomtrix/lomtrixresults.h"
#include "model/experiment.h"
#include "report/texts.h"
#include "report/timechart.h"
#include "report/values.h"
#include "report/vfheadedtable.h"

#include <QLocale>

#include <cmath>

namespace {

constexpr int ChartHeight = 250;
constexpr int LongestNumber = 9; // characters that find room in a column
constexpr int LongestCell = 7;   // of the log table

const LomtrixResults &resultsOf(const Experiment &experiment)
{
    return static_cast<const LomtrixResults &>(*experiment.results());
}

QString numberText(const QString &value)
{
    return shortened(VfPrinter::formatNumber(numberOf(value), 2, 2), LongestNumber);
}

/// Two decimals; "---" for what is no number, as the acceleration over a day of no length.
QString computedText(double value)
{
    return std::isfinite(value) ? shortened(VfPrinter::formatNumber(value, 1, 2), 2 * LongestNumber) : absentText();
}

QString asSent(const QString &value)
{
    return dashed(value);
}

/// What follows a symbol: the unit of a dose, and \a text.
VfSubSuperScript::Line doseLine(const VfSubSuperScript::Piece &symbol, const QString &gap, const QString &text)
{
    return {symbol, {gap + QLatin1String("[m/s"), {}, QLocale().toString(1.75)}, {QLatin1Char(']') + text}};
}

} // namespace

LomtrixPrinter::LomtrixPrinter()
{
    m_reportTitle = tr("Vibration evaluation report");
    m_footerText = QStringLiteral(" ");
    setBodyFonts();
}

void LomtrixPrinter::setParameters(const QString &json)
{
    readParameters(json, {{"ckbCalibration", &m_ckbCalibration}, {"ckbChart", &m_ckbChart}});
}

// ---------------------------------------------------------------- front

void LomtrixPrinter::drawFront()
{
    const QString type = resultsOf(*m_experiment).evaluationType();
    const QString application = type == QLatin1String("0") ? tr("WBV") : type == QLatin1String("1") ? tr("HAV") : absentText();
    drawIdentification(captioned(m_collectorInfoEnable, tr("Collected by"), m_collectorName) +
                           captioned(m_cmpnyInfoEnable, tr("Company evaluated"), m_cmpnyName) +
                           captioned(m_ownCompanyInfoEnable, tr("Valuation company"), m_ownCompany) +
                           captioned(m_siteInfoEnable, tr("Site/Area"), m_siteName),
                       captioned(m_emplInfoEnable, tr("Employee"), m_emplName) +
                           QStringList{captionedText(tr("Application"), application),
                                       captionedText(tr("Working hours") + QLatin1String(" [hh:mm]"),
                                                     LomtrixResults::evaluation().workingHours)});
    drawComponents();
    drawEvaluation();
    if (m_ckbCalibration)
        wholeSection(tr("Calibration"), [this] { drawLine(calibrationText(m_calibration)); });
    keepTogether([this] { drawNotes(); });
    keepTogether([this] { drawSignature(); });
}

void LomtrixPrinter::drawComponents()
{
    QList<VfTableRow *> rows;
    for (const Experiment *member = m_experiment; member; member = member->next()) {
        const LomtrixResults &results = resultsOf(*member);
        QStringList cells{QString::number(member->ordinal())};
        for (const QString &value : {results.arep(), results.x().vdv, results.y().vdv, results.z().vdv, results.x().fc,
                                     results.y().fc, results.z().fc})
            cells.append(numberText(value));
        cells.append(shortened(results.exposureTime(), LongestNumber));
        rows.append(new VfTableRow(cells));
    }
    const VfSubSuperScript::Line heads = {
        {tr("Event")},
        {QStringLiteral("arep")},
        {QStringLiteral("VDV"), QStringLiteral("j(X)")},
        {QStringLiteral("VDV"), QStringLiteral("j(Y)")},
        {QStringLiteral("VDV"), QStringLiteral("j(Z)")},
        {QStringLiteral("CF"), QStringLiteral("(X)")},
        {QStringLiteral("CF"), QStringLiteral("(Y)")},
        {QStringLiteral("CF"), QStringLiteral("(Z)")},
        {tr("Exposure time")},
    };
    QList<VfSubSuperScript *> header;
    for (const VfSubSuperScript::Piece &head : heads)
        header.append(VfSubSuperScript::ofLine({head}));
    VfHeadedTable table(m_painter.get());
    table.setRows(rows);
    table.setHeader(header);
    tableSection(tr("Exposure components"), table);
}

void LomtrixPrinter::drawEvaluation()
{
    const VibrationEvaluation &evaluation = LomtrixResults::evaluation();
    const VibrationExposure::Day &day = evaluation.day;
    const auto line = [](const QString &caption, double value) {
        return VfSubSuperScript::Line{{captionedText(caption, computedText(value))}};
    };
    wholeSection(tr("Evaluation results"), [&] {
        drawIndexed({
            {line(QStringLiteral("are [m/s²]"), evaluation.are), line(QStringLiteral("aren [m/s²]"), evaluation.aren),
             line(tr("CF"), day.crest)},
            {doseLine({QStringLiteral("VDV"), QStringLiteral("expj")}, QStringLiteral(" "), {}),
             line(QStringLiteral("X"), day.dose[0]), line(QStringLiteral("Y"), day.dose[1]),
             line(QStringLiteral("Z"), day.dose[2])},
            {doseLine({QStringLiteral("VDV"), QStringLiteral("R")}, QStringLiteral(" "),
                      QLatin1String(": ") + computedText(day.resultantDose))},
        });
    });
}

// ---------------------------------------------------------------- parts

std::vector<PartedPrinter::Part> LomtrixPrinter::parts()
{
    std::vector<Part> all;
    for (Experiment *member = m_experiment; member; member = member->next()) {
        Part part;
        part.pages.push_back([this, member] {
            const LomtrixResults &results = resultsOf(*member);
            drawConfiguration(*member);
            drawSensor(results);
            drawResults(results);
            if (m_ckbChart)
                wholeSection(tr("Charts"), [&] { drawChart(*member); });
        });
        part.logTable = [this, member] { return createLogTable(member); };
        all.push_back(std::move(part));
    }
    return all;
}

void LomtrixPrinter::drawAxes(const QString &caption, const LomtrixResults &results, QString VibrationAxis::*member,
                              QString (*text)(const QString &value))
{
    drawLine(caption);
    drawGrid({captionedText(QStringLiteral("X"), text(results.x().*member)),
              captionedText(QStringLiteral("Y"), text(results.y().*member)),
              captionedText(QStringLiteral("Z"), text(results.z().*member))},
             3);
}

void LomtrixPrinter::drawConfiguration(const Experiment &experiment)
{
    const LomtrixResults &results = resultsOf(experiment);
    const QString weighting = results.timeWeighting();
    const QString exposure = results.exposureTime();
    wholeSection(tr("Configuration"), [&] {
        drawGrid(
            {
                captionedText(tr("Event"), QString::number(experiment.ordinal())),
                captionedText(tr("Task name"), results.label()),
                QString(),
                captionedText(tr("Time weighting"), weighting == QLatin1String("Slow")   ? tr("Slow")
                                                    : weighting == QLatin1String("Fast") ? tr("Fast") : weighting),
                captionedText(tr("Sample time [s]"), results.sampleTime()),
                captionedText(tr("Start time"), localTime(results.startTime())),
                captionedText(tr("Stop time"), localTime(results.stopTime())),
                captionedText(tr("Duration"), timeOfDay(results.duration())),
                captionedText(tr("Exposure time"), exposure.isEmpty() ? absentText() : exposure + QLatin1String(":00")),
                captionedText(tr("Pause time"), results.pauseTime()),
            },
            3);
        drawAxes(tr("Frequency weighting"), results, &VibrationAxis::freqWeighting, asSent);
        drawAxes(tr("Multiplication factor"), results, &VibrationAxis::f, numberText);
    });
}

void LomtrixPrinter::drawSensor(const LomtrixResults &results)
{
    wholeSection(tr("Sensor"), [&] {
        drawGrid({captionedText(tr("Name"), results.sensorLabel()), captionedText(tr("SN"), results.sensorSN())}, 3);
        drawAxes(tr("Sensitivity [mV/g]"), results, &VibrationAxis::sensitivity, asSent);
    });
}

void LomtrixPrinter::drawResults(const LomtrixResults &results)
{
    wholeSection(tr("Results"), [&] {
        drawLine(tr("Acceleration"));
        drawAxes(tr("Maximum [m/s²]"), results, &VibrationAxis::aMax, numberText);
        drawAxes(tr("Minimum [m/s²]"), results, &VibrationAxis::aMin, numberText);
        drawAxes(tr("Average [m/s²]"), results, &VibrationAxis::am, numberText);
        drawAxes(tr("Peak [m/s²]"), results, &VibrationAxis::ap, numberText);
    });
}

void LomtrixPrinter::drawChart(const Experiment &experiment)
{
    TimeChart chart(m_chartFont);
    if (isRehearsing())
        return placeChart(chart, ChartHeight);
    chart.setLook({TimeChart::Curves::Markers, TimeChart::Beyond::Tenth, true});
    chart.setTitle(tr("Acceleration x Time"));
    chart.setTimeTitle(tr("Time", "X axis label"));
    chart.setValueTitle(tr("Acceleration [m/s²]"));
    chart.setColumns(windowWidth() / 2); // a marker covers several
    const struct {
        const char *index;
        QString (LomtrixLog::*value)() const;
        const char *colour;
    } curves[] = {{"mr", &LomtrixLog::amr, "red"},
                  {"wX", &LomtrixLog::awX, "blue"},
                  {"wY", &LomtrixLog::awY, "yellow"},
                  {"wZ", &LomtrixLog::awZ, "green"}};
    const QList<Log *> logs = experiment.logs();
    for (const auto &curve : curves) {
        QVector<QPointF> points;
        points.reserve(logs.size());
        for (const Log *log : logs) {
            const std::optional<double> value = numberIn((static_cast<const LomtrixLog *>(log)->*curve.value)());
            if (value && log->moment().isValid())
                points.append({double(log->moment().toMSecsSinceEpoch()), *value});
        }
        const QString colour = QString::fromLatin1(curve.colour);
        chart.addCurve(QStringLiteral("a<sub>%1</sub>").arg(QLatin1String(curve.index)), points,
                       {QStringLiteral(":/markers/%1/mrk1.png").arg(colour), QColor(colour)});
    }
    placeChart(chart, ChartHeight);
}

// ---------------------------------------------------------------- log table

QList<VfSubSuperScript *> LomtrixPrinter::logTableHeader(Experiment *)
{
    QVector<VfSubSuperScript::Line> heads{{{tr("Idx")}}, {{tr("D/T")}}};
    const auto axes = {QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")};
    for (const QString &axis : axes)
        heads.append({{QStringLiteral("a"), QLatin1Char('w') + axis}, {QStringLiteral("[m/s²]")}});
    for (const QString &axis : axes)
        heads.append(doseLine({QStringLiteral("VDV"), QStringLiteral("j(%1)").arg(axis)}, {}, {}));
    for (const QString &axis : axes)
        heads.append({{QStringLiteral("CF"), axis}});
    heads.append({{QStringLiteral("a"), QStringLiteral("mr")}, {QStringLiteral("[m/s²]")}});
    QList<VfSubSuperScript *> header;
    for (const VfSubSuperScript::Line &head : qAsConst(heads))
        header.append(VfSubSuperScript::ofLine(head));
    return header;
}

QList<VfTableRow *> LomtrixPrinter::logTableRows(Experiment *experiment)
{
    return logRows(experiment, [](const Log &record) {
        const auto &log = static_cast<const LomtrixLog &>(record);
        QStringList cells{log.awX(), log.awY(), log.awZ(), log.vdvX(), log.vdvY(),
                          log.vdvZ(), log.fcX(), log.fcY(), log.fcZ(), log.amr()};
        for (QString &cell : cells)
            cell = shortened(cell, LongestCell);
        return cells;
    });
}
