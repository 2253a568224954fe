// SPDX-License-Identifier: GPL-3.0-or-later
#include "ardel/ardel2printer.h"

#include "ardel/ardel2log.h"
#include "ardel/ardel2results.h"
#include "model/clocktext.h"
#include "model/experiment.h"
#include "report/barchart.h"
#include "report/texts.h"
#include "report/values.h"
#include "report/vfnormaltable.h"
#include "report/vfsubsuperscript.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

constexpr int LongestName = 200; // characters of a criterion's name
constexpr int LongestValue = 12; // of a figure
constexpr int LongestLevel = 8;  // of a level in the protector's table

QString numberText(double value)
{
    return QLocale().toString(value, 'f', 2);
}

/// The number that \a text says in the style of the locale, or the text.
QString valueText(const QString &text)
{
    const std::optional<double> value = numberIn(text);
    return shortened(value ? numberText(*value) : dashed(text), LongestValue);
}

double levelOf(const Log &log)
{
    return numberOf(static_cast<const Ardel2Log &>(log).level());
}

/// Minutes that the levels of each class of 5 dB took; class 0 is not looked at.
QVector<double> minutesByLevel(const Experiment &experiment, double sampleTime)
{
    constexpr int Classes = 30;
    QVector<double> minutes(Classes + 1, 0);
    const QList<Log *> logs = experiment.logs();
    for (const Log *log : logs) {
        const double level = std::round(levelOf(*log) / 5);
        if (level >= 0 && level <= Classes)
            minutes[int(level)] += sampleTime / 60;
    }
    return minutes;
}

} // namespace

Ardel2Printer::Ardel2Printer() : NoisePrinter(tr("Dosimeter Noise Report")) {}

void Ardel2Printer::setParameters(const QString &json)
{
    readParameters(json, noiseParameters("ckbPreCal", "ckbPosCal"), {
        {"ckbChartLeq", &m_ckbChartLeq},           {"ckbChartHisto", &m_ckbChartHisto},
        {"ckbDos2DosiCfg", &m_ckbDosimeter[1]},    {"ckbDos1DosiCfg", &m_ckbDosimeter[0]},
        {"ckbDosUSERDosiCfg", &m_ckbDosimeter[2]}, {"ckbHearingProtector", &m_ckbHearingProtector},
        {"ckbImpact", &m_ckbImpact},
    });
}

const Ardel2Results &Ardel2Printer::results() const
{
    return static_cast<const Ardel2Results &>(*m_experiment->results());
}

QVector<OctaveBands::Weighting> Ardel2Printer::curves() const
{
    using OctaveBands::Weighting;
    if (!m_ckbChartLeq || results().leqList().isEmpty())
        return {};
    return curvesIn({Weighting::Z, Weighting::A, Weighting::C});
}

void Ardel2Printer::drawFront()
{
    drawIdentification(captioned(m_cmpnyInfoEnable, tr("Company evaluated"), m_cmpnyName) +
                           captioned(m_siteInfoEnable, tr("Site/Area"), m_siteName) +
                           captioned(m_emplInfoEnable, tr("Employee"), m_emplName) +
                           captioned(true, tr("Working hours [hh:mm]"), results().workingHours()),
                       captioned(m_ownCompanyInfoEnable, tr("Valuation company"), m_ownCompany) +
                           captioned(m_collectorInfoEnable, tr("Collected by"), m_collectorName));
    if (std::find(m_ckbDosimeter.begin(), m_ckbDosimeter.end(), true) != m_ckbDosimeter.end()) {
        wholeSection(tr("Configuration"), [this] { drawConfiguration(); });
        wholeSection(tr("Evaluation results"), [this] { drawEvaluation(); });
    }
    if (m_ckbPreCheck || m_ckbPosCheck || m_ckbCalLab || m_ckbCalAudLab)
        wholeSection(tr("Calibration"), [this] { drawCalibration(); });
    if (m_ckbChartLvl || m_ckbChartHisto)
        wholeSection(tr("Charts"), [this] { drawCharts(); });
    keepTogether([this] { drawNotes(); });
    keepTogether([this] { drawSignature(); });
}

std::vector<PartedPrinter::Part> Ardel2Printer::parts()
{
    Part part;
    if (m_ckbHearingProtector || !curves().isEmpty()) {
        part.pages.push_back([this] {
            if (m_ckbHearingProtector)
                wholeSection(tr("Hearing protector evaluation"), [this] { drawProtector(); });
            if (curves().isEmpty())
                return;
            wholeSection(tr("Octave bands"), [this] {
                const auto asked = curves();
                for (const OctaveBands::Weighting curve : asked)
                    drawOctaves(curve);
            });
        });
    }
    part.logTable = [this] { return createLogTable(m_experiment); };
    return {part};
}

// ---------------------------------------------------------------- figures

template <class LinesOf> void Ardel2Printer::drawDosimeters(LinesOf linesOf)
{
    const QVector<Dosimeter> all = results().dosimeters();
    const int width = windowWidth() / int(std::count(m_ckbDosimeter.begin(), m_ckbDosimeter.end(), true)) - 4 * m_hSpace;
    const QFontMetrics metrics(m_textFont, m_painter->device());
    QVector<QStringList> columns;
    for (int i = 0; i < all.size(); ++i) {
        if (!m_ckbDosimeter[std::size_t(i)])
            continue;
        const QString name = shortened(dashed(all[i].label.simplified()), LongestName);
        const QString head = tr("Dosimeter") + QLatin1Char(' ') + name;
        columns.append(QStringList{metrics.elidedText(head, Qt::ElideRight, width)} + linesOf(all[i]));
    }
    for (int line = 0; line < columns.first().size(); ++line) {
        QStringList texts;
        for (const QStringList &column : qAsConst(columns))
            texts.append(column[line]);
        drawColumns(texts, columns.size());
    }
}

void Ardel2Printer::drawConfiguration()
{
    drawDosimeters([](const Dosimeter &dosimeter) {
        const auto line = [](const QString &caption, const QString &value) {
            return captionedText(caption, shortened(dashed(value.simplified()), LongestValue));
        };
        return QStringList{line(tr("Freq. weighting curve"), dosimeter.freqWeighting),
                           line(tr("Time weighting"), timeWeightingText(dosimeter.timeWeighting)),
                           line(tr("Threshold level [dB]"), dosimeter.actionLevel),
                           line(tr("Criterion level [dB]"), dosimeter.criterionLevel),
                           line(tr("Exchange rate [dB]"), dosimeter.exchangeRate)};
    });
}

void Ardel2Printer::drawEvaluation()
{
    const Ardel2Results &found = results();
    drawTwoColumns({captionedText(tr("Duration"), clockText(found.duration().toInt())),
                    captionedText(tr("Start time"), dashed(localTime(found.startTime())))},
                   {captionedText(tr("Pause time"), dashed(found.pauseTime().simplified())),
                    captionedText(tr("Stop time"), dashed(localTime(found.stopTime())))});
    if (m_ckbImpact)
        drawLine(captionedText(tr("115 dB peaks occurrence"), dashed(found.nPk().simplified())));
    m_y += m_vSpace;
    drawDosimeters([](const Dosimeter &dosimeter) {
        const auto level = [&](const QString &caption, const QString &value) {
            return captionedText(caption + QLatin1String(" [dB]"), dosimeter.hasDose() ? valueText(value) : absentText());
        };
        return QStringList{captionedText(tr("Dose [%]"), valueText(dosimeter.dose)),
                           captionedText(tr("Daily dose [%]"), valueText(dosimeter.dailyDose)),
                           level(dosimeter.averagesByFive() ? tr("Lavg") : tr("Leq"), dosimeter.lavg),
                           level(tr("EL"), dosimeter.ne),
                           level(tr("NEL"), dosimeter.nen),
                           level(tr("TWA"), dosimeter.twa)};
    });
}

QStringList Ardel2Printer::fieldCheckLines() const
{
    const FieldChecks &checks = results().fieldChecks();
    QStringList lines;
    if (m_ckbPreCheck || m_ckbPosCheck)
        lines.append(tr("Field cal. @ 1kHz"));
    if (m_ckbPreCheck)
        lines.append(checkText(tr("Pre check"), checks.pre, checks.preDate, checks.preDate.isValid()));
    if (m_ckbPosCheck)
        lines.append(checkText(tr("Pos check"), checks.pos, checks.posDate, checks.posDate.isValid()));
    const std::optional<double> deviation = checks.deviation();
    if (m_ckbPosCheck && deviation)
        lines.append(captionedText(tr("Desviate [dB]"), numberText(*deviation)));
    return lines;
}

QStringList Ardel2Printer::laboratoryLines() const
{
    QStringList lines;
    if (m_ckbCalLab || m_ckbCalAudLab)
        lines.append(tr("Laboratory calibration"));
    return lines + captioned(m_ckbCalAudLab, tr("Sound calibrator"), m_audCertified) +
           captioned(m_ckbCalLab, tr("Dosimeter"), certificateText());
}

void Ardel2Printer::drawCalibration()
{
    drawTwoColumns(fieldCheckLines(), laboratoryLines());
}

// ---------------------------------------------------------------- charts

void Ardel2Printer::drawCharts()
{
    if (m_ckbChartLvl) {
        drawLevelChart(*m_experiment, {tr("Noise level x Time"), tr("Noise") + QLatin1String("  [dB]"),
                                       [](const Log &log) { return std::optional<double>(levelOf(log)); }});
    }
    if (m_ckbChartHisto)
        drawHistogram();
}

void Ardel2Printer::drawHistogram()
{
    const QVector<double> minutes = minutesByLevel(*m_experiment, numberOf(results().sampleTime()));
    QStringList classes;
    QVector<double> bars;
    for (int i = 1; i < minutes.size(); ++i) {
        if (!(minutes[i] > 0))
            continue;
        classes.append(QString::number(5 * i));
        bars.append(QString::asprintf("%.2f", minutes[i]).toDouble());
    }
    BarChart chart(m_chartFont);
    chart.setTitle(tr("Histogram"));
    chart.setCategoryTitle(tr("Noise") + QLatin1String("  [dB]"));
    chart.setValueTitle(tr("Time", "X axis label") + QLatin1String("  [min]"));
    chart.setBars(classes, bars, QColor(0x20, 0x9f, 0xdf));
    placeChart(chart, ChartHeight);
}

void Ardel2Printer::drawOctaves(OctaveBands::Weighting curve)
{
    using OctaveBands::Analysis;
    constexpr int OctaveCount = 9;
    constexpr int OtherStart = 11; // 125 Hz
    const QVector<LeqPerOctave> bands = results().leqList().mid(0, OctaveBands::Thirds); // a file may tell of more
    const Analysis analysis = OctaveBands::analysisOf(results().octaveAnalysis(),
                                                      bands.size() > OctaveCount ? Analysis::Third : Analysis::Octave);
    const QString name = curve == OctaveBands::Weighting::Z ? tr("Z Curve")
                         : curve == OctaveBands::Weighting::A ? tr("A Curve") : tr("C Curve");
    drawOctaveChart({bands, OctaveBands::levels(bands, analysis, curve, OtherStart), curve,
                     QStringLiteral("L<sub>eq</sub>"), tr("Frequency [Hz]") + QLatin1String(" - ") + name,
                     bands.size() != OctaveCount});
}

// ---------------------------------------------------------------- hearing protector

void Ardel2Printer::drawProtector()
{
    const HearingProtector &protector = results().hearingProtector();
    drawLine(captionedText(tr("Manufacturer"), protector.manufacturer.simplified()));
    drawLine(captionedText(tr("Model"), protector.model.simplified()));
    drawLine(captionedText(tr("C.A."), protector.approval.simplified()));
    drawLine(captionedText(tr("Std. applied"), protector.method));
    if (protector.methodNumber == 2)
        drawLine(captionedText(tr("Type"), protector.type));
    m_y += m_vSpace;
    drawProtectorTable();
    m_y += m_vSpace;
    drawLine(captionedText(tr("Total SPL [dB(A)]"), numberText(protector.total)));
    drawLine(captionedText(tr("Total SPLp [dB(A)]"), numberText(protector.totalProtected)));
}

void Ardel2Printer::drawProtectorTable()
{
    const HearingProtector &protector = results().hearingProtector();
    const auto row = [](const QString &caption, const HearingProtector::Levels &levels) {
        QStringList cells{caption};
        for (const double level : levels)
            cells.append(shortened(numberText(level), LongestLevel));
        return new VfTableRow(cells, {});
    };
    VfNormalTable table(m_painter.get());
    table.setRows({row(tr("SPL [dB(A)]"), protector.levels), row(tr("Attenuation [dB]"), protector.attenuations),
                   row(tr("Standard deviation [dB]"), protector.deviations),
                   row(tr("SPLp [dB(A)]"), protector.protectedLevels)});
    table.setHeader({tr("Frequency [Hz]"), QStringLiteral("125"), QStringLiteral("250"), QStringLiteral("500"),
                     QStringLiteral("1k"), QStringLiteral("2k"), QStringLiteral("4k"), QStringLiteral("8k")});
    m_y = qMax(m_y, table.draw(0, m_y)); // one that is too wide is not drawn
    m_painter->setFont(m_textFont);
}

// ---------------------------------------------------------------- log table

QList<VfSubSuperScript *> Ardel2Printer::logTableHeader(Experiment *)
{
    QList<VfSubSuperScript *> heads;
    for (const QString &text : {tr("Idx"), tr("D/T"), tr("L [dB]")})
        heads.append(new VfSubSuperScript(text, {}, {}));
    return heads;
}

QList<VfTableRow *> Ardel2Printer::logTableRows(Experiment *experiment)
{
    return logRows(experiment, [](const Log &log) { return QStringList{valueText(static_cast<const Ardel2Log &>(log).level())}; });
}
