// SPDX-License-Identifier: GPL-3.0-or-later
#include "soundlevel/soundlevelprinter.h"

#include "model/experiment.h"
#include "report/chartscene.h"
#include "report/texts.h"
#include "report/values.h"
#include "report/vfheadedtable.h"
#include "soundlevel/soundlevellog.h"
#include "soundlevel/soundlevelresults.h"

namespace {

constexpr int LongestName = 220;  // pixels of a name in the table of measuring points
constexpr int LongestLevel = 12; // characters that find room in a column

QString letter(OctaveBands::Weighting curve)
{
    return curve == OctaveBands::Weighting::Z ? QStringLiteral("Z")
           : curve == OctaveBands::Weighting::C ? QStringLiteral("C") : QStringLiteral("A");
}

std::optional<double> levelOf(const Log &log)
{
    return numberIn(static_cast<const SoundLevelLog &>(log).level());
}

} // namespace

SoundLevelPrinter::SoundLevelPrinter() : NoisePrinter(tr("Noise Report")) {}

void SoundLevelPrinter::setParameters(const QString &json)
{
    readParameters(json, familyParameters(), noiseParameters("ckbPreChk", "ckbPosChk"));
}

const SoundLevelResults &SoundLevelPrinter::resultsOf(const Experiment &experiment)
{
    return static_cast<const SoundLevelResults &>(*experiment.results());
}

QString SoundLevelPrinter::levelText(const QString &value)
{
    return value == QLatin1String("OL") ? value : shortened(formatNumber(numberOf(value), 2, 2), LongestLevel);
}

QVector<OctaveBands::Weighting> SoundLevelPrinter::curves() const
{
    using OctaveBands::Weighting;
    return octavesWanted() ? curvesIn({Weighting::Z, Weighting::C, Weighting::A}) : QVector<Weighting>();
}

bool SoundLevelPrinter::chartsWanted(const Experiment &experiment) const
{
    return m_ckbChartLvl || (!curves().isEmpty() && !resultsOf(experiment).leqList().isEmpty());
}

// ---------------------------------------------------------------- front

void SoundLevelPrinter::drawFront()
{
    drawIdentification(captioned(m_collectorInfoEnable, tr("Collected by"), m_collectorName) +
                           captioned(m_cmpnyInfoEnable, tr("Company evaluated"), m_cmpnyName) +
                           captioned(m_ownCompanyInfoEnable, tr("Valuation company"), m_ownCompany),
                       captioned(m_siteInfoEnable, tr("Site/Area"), m_siteName) +
                           captioned(m_emplInfoEnable, tr("Employee"), m_emplName));
    drawPoints();
    drawCertificates();
    keepTogether([this] { drawNotes(); });
    keepTogether([this] { drawSignature(); });
}

void SoundLevelPrinter::drawPoints()
{
    const QFontMetrics metrics(m_textFont, m_painter->device());
    QList<VfTableRow *> rows;
    for (const Experiment *member = m_experiment; member; member = member->next()) {
        const SoundLevelResults &results = resultsOf(*member);
        QStringList cells{QString::number(member->ordinal()),
                          metrics.elidedText(results.label().simplified(), Qt::ElideRight, LongestName)};
        const Levels levels = pointLevels(results);
        for (const Level &level : levels)
            cells.append(levelText(level.value));
        rows.append(new VfTableRow(cells, {}));
    }
    QList<VfSubSuperScript *> heads{VfSubSuperScript::ofLine({{tr("Event")}}), VfSubSuperScript::ofLine({{tr("Name")}})};
    const Levels levels = pointLevels(resultsOf(*m_experiment));
    for (const Level &level : levels)
        heads.append(VfSubSuperScript::ofLine(
            {{level.symbol, level.subscript, level.superscript}, {QStringLiteral(" [dB]")}}));
    VfHeadedTable table(m_painter.get());
    table.setRows(rows);
    table.setHeader(heads);
    tableSection(tr("Measuring points"), table);
}

void SoundLevelPrinter::drawCertificates()
{
    if (!m_ckbCalLab && !m_ckbCalAudLab)
        return;
    wholeSection(tr("Laboratory calibration"), [&] {
        if (m_ckbCalLab)
            drawLine(captionedText(tr("Sonometer"), certificateText()));
        if (m_ckbCalAudLab)
            drawLine(captionedText(tr("Sound calibrator"), m_audCertified));
    });
}

// ---------------------------------------------------------------- parts

std::vector<PartedPrinter::Part> SoundLevelPrinter::parts()
{
    std::vector<Part> all;
    for (Experiment *member = m_experiment; member; member = member->next()) {
        Part part;
        part.pages.push_back([this, member] {
            drawConfiguration(*member);
            drawFieldChecks(*member);
            drawFigures(*member);
            if (!chartsApart() && chartsWanted(*member))
                keepTogether([&] { drawCharts(*member); });
        });
        if (chartsApart() && chartsWanted(*member))
            part.pages.push_back([this, member] { drawCharts(*member); });
        part.logTable = [this, member] { return createLogTable(member); };
        all.push_back(std::move(part));
    }
    return all;
}

void SoundLevelPrinter::drawConfiguration(const Experiment &experiment)
{
    const SoundLevelResults &results = resultsOf(experiment);
    QStringList texts{
        captionedText(tr("Event"), QString::number(experiment.ordinal())),
        captionedText(tr("Task name"), results.label()),
        QString(),
        captionedText(tr("Sample time [s]"), results.sampleTime()),
        captionedText(tr("Start time"), localTime(results.startTime())),
        captionedText(tr("Stop time"), localTime(results.stopTime())),
        captionedText(tr("Duration"), timeOfDay(results.duration())),
        captionedText(tr("Pause time"), results.pauseTime()),
    };
    texts += configurationTexts(results);
    texts.append(captionedText(tr("Octave analysis"), results.octaveAnalysis()));
    wholeSection(tr("Configuration"), [&] { drawGrid(texts, 3); });
}

void SoundLevelPrinter::drawFieldChecks(const Experiment &experiment)
{
    if (!m_ckbPreCheck && !m_ckbPosCheck)
        return;
    const FieldChecks &checks = resultsOf(experiment).fieldChecks();
    const CheckWords words = checkWords();
    const auto line = [this](const QString &caption, const QString &value, const QDateTime &when) {
        drawLine(checkText(caption, value, when, dashed(value) != absentText()));
    };
    wholeSection(tr("Field ver. @ 1kHz"), [&] {
        if (m_ckbPreCheck)
            line(words.pre, checks.pre, checks.preDate);
        if (m_ckbPosCheck)
            line(words.pos, checks.pos, checks.posDate);
        const std::optional<double> deviation = checks.deviation();
        if (m_ckbPreCheck && m_ckbPosCheck && (deviation || words.unknownDeviation)) {
            drawLine(tr("Desviate") + QLatin1String(" [dB]: ") +
                     (deviation ? formatNumber(*deviation, 2, 2) : QStringLiteral("--- ")));
        }
    });
}

void SoundLevelPrinter::drawLevels(const QVector<Levels> &columns)
{
    QVector<IndexedLines> lines;
    for (const Levels &levels : columns) {
        IndexedLines column;
        for (const Level &level : levels)
            column.append({{level.symbol, level.subscript, level.superscript}, {QLatin1String(" [dB]: ") + level.value}});
        lines.append(column);
    }
    drawIndexed(lines);
}

// ---------------------------------------------------------------- charts

void SoundLevelPrinter::drawCharts(const Experiment &experiment)
{
    const SoundLevelResults &results = resultsOf(experiment);
    section(tr("Charts"), [&] {
        const QString symbol = QStringLiteral("L<sub>%1eq</sub>").arg(ChartScene::plain(results.freqWeighting().left(8)));
        if (m_ckbChartLvl)
            drawLevelChart(experiment, {symbol + QLatin1String(" x ") + tr("Time"), symbol + QLatin1String(" [dB]"), levelOf});
        if (results.leqList().isEmpty())
            return;
        const auto asked = curves();
        for (const OctaveBands::Weighting curve : asked)
            drawOctaves(results, curve);
    });
}

void SoundLevelPrinter::drawOctaves(const SoundLevelResults &results, OctaveBands::Weighting curve)
{
    const auto analysis = OctaveBands::analysisOf(results.octaveAnalysis());
    const QVector<LeqPerOctave> bands = results.leqList().mid(0, OctaveBands::Thirds); // a file may tell of more
    drawOctaveChart({bands, OctaveBands::levels(bands, analysis, curve), curve,
                     QStringLiteral("L<sub>%1eq</sub>").arg(letter(curve)), tr("Frequency [Hz]"),
                     analysis == OctaveBands::Analysis::Third});
}

// ---------------------------------------------------------------- log table

QString SoundLevelPrinter::interval(const SoundLevelResults &results) const
{
    return results.sampleTime() + QLatin1Char('s');
}

QList<VfSubSuperScript *> SoundLevelPrinter::logTableHeader(Experiment *experiment)
{
    QList<VfSubSuperScript *> heads{
        VfSubSuperScript::ofLine({{tr("Idx")}}), VfSubSuperScript::ofLine({{tr("D/T")}}),
        VfSubSuperScript::ofLine({{QStringLiteral("L"), QLatin1String("eq,") + interval(resultsOf(*experiment))},
                                  {QStringLiteral("[dB]")}})};
    for (const FurtherColumn &column : furtherColumns(*experiment))
        heads.append(VfSubSuperScript::ofLine({{column.head}, {column.unit}}));
    return heads;
}

QList<VfTableRow *> SoundLevelPrinter::logTableRows(Experiment *experiment)
{
    const QVector<FurtherColumn> further = furtherColumns(*experiment);
    return logRows(experiment, [&](const Log &log) {
        QStringList cells{static_cast<const SoundLevelLog &>(log).level()};
        for (const FurtherColumn &column : further)
            cells.append(column.cell(log));
        return cells;
    });
}
