// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/noiseprinter.h"

#include "model/experiment.h"
#include "model/log.h"
#include "report/barchart.h"
#include "report/dates.h"
#include "report/texts.h"
#include "report/timechart.h"

namespace {

QColor colour(OctaveBands::Weighting curve)
{
    return curve == OctaveBands::Weighting::Z ? Qt::red : curve == OctaveBands::Weighting::C ? Qt::darkGreen : Qt::blue;
}

} // namespace

NoisePrinter::NoisePrinter(const QString &title)
{
    m_reportTitle = title;
    m_footerText = QStringLiteral(" ");
    setBodyFonts();
}

ReportParameters NoisePrinter::noiseParameters(const char *preCheckKey, const char *posCheckKey)
{
    return {
        {"ckbChartLvl", &m_ckbChartLvl},       {"ckbLeqZ", &m_ckbLeqZ},
        {"ckbLeqA", &m_ckbLeqA},               {"ckbLeqC", &m_ckbLeqC},
        {preCheckKey, &m_ckbPreCheck},         {posCheckKey, &m_ckbPosCheck},
        {"ckbCalLab", &m_ckbCalLab},           {"ckbCalAudLab", &m_ckbCalAudLab},
        {"audCertified", &m_audCertified},     {"ckbCalField", &m_ckbCalField},
    };
}

QString NoisePrinter::timeWeightingText(const QString &weighting)
{
    const std::pair<const char *, QString> known[] = {
        {"Slow", tr("Slow")}, {"Fast", tr("Fast")}, {"Impulse", tr("Impulse")}};
    for (const auto &[word, text] : known) {
        if (weighting == QLatin1String(word))
            return text;
    }
    return weighting;
}

QString NoisePrinter::certificateText() const
{
    const QString &certificate = m_calibration.certification;
    return certificate.isEmpty() ? tr("invalid") : certificate + QLatin1Char(' ') + ::dateText(m_calibration.date.date());
}

QString NoisePrinter::checkText(const QString &caption, const QString &value, const QDateTime &when, bool made)
{
    if (!made)
        return caption + QLatin1String(" [dB]: --- ");
    const QDateTime local = when.toLocalTime();
    const QString moment = ::dateText(local.date()) + QLatin1Char(' ') + local.toString(QStringLiteral("hh:mm"));
    return caption + QLatin1String(" [dB]: ") + value.simplified() + QLatin1String(" (") + moment + QLatin1Char(')');
}

QVector<OctaveBands::Weighting> NoisePrinter::curvesIn(std::initializer_list<OctaveBands::Weighting> order) const
{
    QVector<OctaveBands::Weighting> asked;
    for (const OctaveBands::Weighting curve : order) {
        if (curve == OctaveBands::Weighting::Z ? m_ckbLeqZ : curve == OctaveBands::Weighting::A ? m_ckbLeqA : m_ckbLeqC)
            asked.append(curve);
    }
    return asked;
}

void NoisePrinter::drawLevelChart(const Experiment &experiment, const LevelChart &looks)
{
    TimeChart chart(m_chartFont);
    if (isRehearsing())
        return placeChart(chart, ChartHeight);
    chart.setLook({TimeChart::Curves::Lines, TimeChart::Beyond::Tenth, false});
    chart.setTitle(looks.title);
    chart.setTimeTitle(tr("Time", "X axis label"));
    chart.setValueTitle(looks.valueTitle);
    QVector<QPointF> points;
    const QList<Log *> logs = experiment.logs();
    points.reserve(logs.size());
    for (const Log *log : logs) {
        const std::optional<double> level = looks.levelOf(*log);
        if (level && log->moment().isValid())
            points.append({double(log->moment().toMSecsSinceEpoch()), *level});
    }
    chart.addCurve(QString(), points);
    placeChart(chart, ChartHeight);
}

void NoisePrinter::drawOctaveChart(const OctaveChart &looks)
{
    QStringList labels;
    for (const LeqPerOctave &band : looks.bands)
        labels.append(OctaveBands::label(band.frequency));
    BarChart chart(m_chartFont);
    chart.setTitle(looks.symbol + QLatin1String(" x ") + (looks.thirds ? tr("1/3 Octave") : tr("Octave")));
    chart.setCategoryTitle(looks.frequencyTitle);
    chart.setValueTitle(looks.symbol + QLatin1String(" [dB]"));
    chart.setBars(labels, looks.levels, colour(looks.curve));
    chart.setDense(looks.thirds);
    placeChart(chart, ChartHeight);
}
