// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/report/measurements.h"

#include "ardel/ardel2experiment.h"
#include "lomtrix/lomtrixexperiment.h"
#include "nembra/nembraexperiment.h"
#include "nembraplus/nembraplusexperiment.h"
#include "thalvex2/thalvex2experiment.h"
#include "thalvex2/thalvex2log.h"
#include "thalvex2/thalvex2results.h"
#include "thalvex4/thalvex4experiment.h"
#include "thalvex4/thalvex4log.h"
#include "thalvex4/thalvex4results.h"

#include <cmath>

namespace {

QByteArray wireText(const QDateTime &moment)
{
    return moment.toString(QStringLiteral("yy/MM/dd,hh:mm:ss")).toLatin1() + "-12";
}

/// Wet, dry, globe, indoors, outdoors at sample \a i of unit \a unit.
QByteArray values(const Measurements::Course &course, int i, int unit)
{
    QByteArray text;
    const double phase = 6.2832 * i / course.samples;
    for (const double middle : {22.0, 28.0, 34.0, 25.6, 25.0}) {
        const double value = middle + unit * 0.5 + 3 * std::sin(phase) + 0.3 * std::sin(47 * phase + middle);
        text += ',' + (course.text.isEmpty() ? QByteArray::number(value, 'f', 1) : course.text);
    }
    return text;
}

template <class E, class L, class RecordTail>
ExperimentChain measurement(const Measurements::Course &course, RecordTail tail)
{
    ExperimentChain experiment(new E);
    experiment->setDateTime(course.start);
    experiment->setIndex(1);
    experiment->setSize(course.samples);
    QList<Log *> logs;
    for (int i = 0; i < course.samples; ++i) {
        auto *log = new L;
        const QDateTime moment = course.start.addSecs(qint64(i) * course.interval);
        if (log->parse("+VFRDXP: 1," + QByteArray::number(i) + ",0," + wireText(moment) + tail(i)) != 0)
            qFatal("a record was refused");
        logs.append(log);
    }
    experiment->setLogs(logs);
    return experiment;
}

/// "start,stop" on the wire, and the seconds between them.
QByteArray span(const Measurements::Course &course)
{
    return wireText(course.start) + ',' + wireText(course.start.addSecs(qint64(course.samples) * course.interval));
}

void expectParsed(int code)
{
    if (code != 0)
        qFatal("a header was refused");
}

} // namespace

ExperimentChain Measurements::thalvex2(const Course &course)
{
    ExperimentChain experiment =
        measurement<Thalvex2Experiment, Thalvex2Log>(course, [&](int i) { return values(course, i, 0); });
    auto results = std::make_unique<Thalvex2Results>();
    const QByteArray duration = QByteArray::number(course.samples * course.interval);
    expectParsed(results->parseHeader1("+VFXPHDR: 1,1," + QByteArray::number(course.interval) + ",90," + duration +
                                       ',' + course.unit));
    expectParsed(results->parseHeader2("+VFXPHDR: 2,1,25.64,25.04," + span(course)));
    expectParsed(results->parseHeader3("+VFXPHDR: 3,1,25.31,18.72,31.33,24.74,37.35,30.76"));
    experiment->setResults(std::move(results));
    return experiment;
}

ExperimentChain Measurements::thalvex4(const Course &course)
{
    const int units = 1 + course.expansions;
    ExperimentChain experiment = measurement<Thalvex4Experiment, Thalvex4Log>(course, [&](int i) {
        QByteArray tail;
        for (int unit = 0; unit < 4; ++unit)
            tail += unit < units ? values(course, i, unit) + ",0.4,80,0" : QByteArray(",,,,,,,,");
        return tail;
    });
    auto results = std::make_unique<Thalvex4Results>();
    const QByteArray duration = QByteArray::number(course.samples * course.interval);
    expectParsed(results->parseHeader1("+VFXPHDR: 1,1,1," + duration + ',' + span(course) + ",90," +
                                       QByteArray::number(course.interval) + ',' + course.unit));
    QByteArray boards = "+VFXPHDR: 2,1," + QByteArray::number(course.expansions);
    QByteArray averages = "+VFXPHDR: 3,1";
    QByteArray extremes = "+VFXPHDR: 4,1";
    for (int unit = 0; unit < units; ++unit) {
        const auto number = [&](double value) -> QByteArray { return ',' + QByteArray::number(value + unit, 'f', 2); };
        if (unit > 0)
            boards += ",E40" + QByteArray::number(unit) + ",CC-9" + QByteArray::number(unit) + ",19/03/0" +
                      QByteArray::number(unit) + ",10:00:00-12";
        averages += number(5.64) + number(25.04);
        extremes += number(25.31) + number(18.72) + number(31.33) + number(24.74) + number(37.35) + number(30.76);
    }
    expectParsed(results->parseHeader2(boards));
    expectParsed(results->parseHeader3(averages));
    expectParsed(results->parseHeader4(extremes));
    experiment->setResults(std::move(results));
    return experiment;
}

namespace {

QByteArray band(const QByteArray &header, int number, int count, double frequency)
{
    return header + ",1," + QByteArray::number(count) + ',' + QByteArray::number(number) + ',' +
           QByteArray::number(frequency, 'f', 2) + ',' + QByteArray::number(60 + 20 * std::sin(number / 3.0), 'f', 2);
}

/// Octaves from \a lowest on, or thirds from 50 Hz on.
QByteArray bands(const QByteArray &header, const QByteArray &octaves, double lowest)
{
    QVector<double> frequencies;
    if (octaves == "1/1")
        frequencies = {31.5, 63, 125, 250, 500, 1000, 2000, 4000, 8000, 16000};
    else if (octaves == "1/3")
        frequencies = {50,   63,   80,   100,  125,  160,  200,  250,  315,  400,  500,   630,   800,  1000,
                       1250, 1600, 2000, 2500, 3150, 4000, 5000, 6300, 8000, 10000, 12500, 16000};
    while (!frequencies.isEmpty() && frequencies.first() < lowest)
        frequencies.removeFirst();
    QByteArrayList lines;
    for (int i = 0; i < frequencies.size(); ++i)
        lines.append(band(header, i, frequencies.size(), frequencies[i]));
    return lines.join('\r');
}

/// The level of a record; there is none in the middle.
QByteArray level(const Measurements::Course &course, int i)
{
    if (!course.text.isEmpty())
        return course.text;
    return i == course.samples / 2 ? QByteArray() : QByteArray::number(80 + 8 * std::sin(i / 7.0), 'f', 1);
}

template <class E, class L, class R> ExperimentChain sound(const Measurements::Noise &noise, const QByteArray &levels)
{
    const Measurements::Course &course = noise.course;
    ExperimentChain experiment = measurement<E, L>(course, [&](int i) -> QByteArray {
        QByteArray text = level(course, i);
        if (noise.manual)
            text += ',' + QByteArray::number(i % 9);
        return ',' + text;
    });
    auto results = std::make_unique<R>();
    const QByteArray duration = QByteArray::number(course.samples * course.interval);
    expectParsed(results->parseHeader1("1,1," + noise.name + ',' + duration + ',' + span(course) + ",90," +
                                       QByteArray::number(course.interval) + ",Slow,A," + noise.octaves + ",," +
                                       (noise.overload ? "1" : "0") + (noise.manual ? ",MANUAL" : "")));
    expectParsed(results->parseHeader2(levels));
    const QByteArray spectrum = bands("3", noise.octaves, 31.5);
    if (!spectrum.isEmpty())
        expectParsed(results->parseHeader3(spectrum));
    const QByteArray when = ',' + wireText(course.start) + ',' + wireText(course.start);
    expectParsed(results->parseHeader4("4,1," + noise.checks + when));
    expectParsed(results->parseHeader5("5,1,91.05,90.1,80.5,70.9,70.95"));
    experiment->setResults(std::move(results));
    return experiment;
}

} // namespace

ExperimentChain Measurements::nembra(const Noise &noise)
{
    return sound<NembraExperiment, NembraLog, NembraResults>(
        noise, "2,1,85.31,97.25,54.05,98.5," + wireText(noise.course.start) + ",,111.15");
}

ExperimentChain Measurements::nembraPlus(const Noise &noise)
{
    QByteArrayList lines;
    for (const int weighting : {0, 10, 20}) {
        const auto number = [&](double value) -> QByteArray { return ',' + QByteArray::number(value + weighting, 'f', 2); };
        const QByteArray when = ',' + wireText(noise.course.start);
        lines.append("2,1,,," + number(60.01) + number(61.02) + number(62.03) + number(40.04) + number(63.05) + when +
                     number(40.06) + number(63.07) + when + number(40.08) + number(63.09) + when);
    }
    return sound<NembraPlusExperiment, NembraPlusLog, NembraPlusResults>(noise, lines.join('\r'));
}

ExperimentChain Measurements::ardel2(const Noise &noise)
{
    const Course &course = noise.course;
    ExperimentChain experiment = measurement<Ardel2Experiment, Ardel2Log>(course, [&](int i) -> QByteArray {
        return ",81.1,82.2,83.3," + level(course, i) + ",0";
    });
    auto results = std::make_unique<Ardel2Results>();
    expectParsed(results->parseDosimeterConfig("1,NHO-01,80,85,3,Slow,A\r2,NR-15,80,85,5,Fast,A\r3," + noise.name +
                                               ",70,90,4,Slow,C"));
    expectParsed(results->parseIdentification("1,1," + noise.name + ',' + QByteArray::number(course.interval) +
                                              ",70,90,4,Impulse,C," + noise.octaves));
    expectParsed(results->parseDosimeter1Results("2,1,121.25,85.81,84.16"));
    expectParsed(results->parseDosimeter2Results("3,1,0.00,,"));
    expectParsed(results->parseDosimeterUserResults("4,1,43.5,82.9,"));
    expectParsed(results->parseStatistics("5,1,90.1,80.5,70.9,3," + QByteArray::number(course.samples * course.interval) +
                                          ',' + span(course) + ",90"));
    expectParsed(results->parseOctaveBands(bands("6", noise.octaves, 63)));
    const QByteArray when = ',' + wireText(course.start) + ',' + wireText(course.start);
    expectParsed(results->parseFieldChecks("7,1," + noise.checks + when));
    experiment->setResults(std::move(results));
    return experiment;
}

ExperimentChain Measurements::lomtrix(const Vibration &vibration)
{
    const Course &course = vibration.course;
    ExperimentChain experiment = measurement<LomtrixExperiment, LomtrixLog>(course, [&](int i) {
        QByteArray text = ',' + QByteArray::number(course.interval);
        const double swing = 1 + 0.5 * std::sin(i / 7.0);
        for (const double middle : {3.011, 2.022, 4.033, 5.11, 6.22, 7.33, 10.044, 8.055, 114.066, 5.077})
            text += ',' + (course.text.isEmpty() ? QByteArray::number(middle * swing, 'f', 3) : course.text);
        return i == course.samples / 2 ? text.left(text.lastIndexOf(',') + 1) : text;
    });
    auto results = std::make_unique<LomtrixResults>();
    expectParsed(results->parseHeader1("1,1," + vibration.name + ',' + span(course) + ',' + QByteArray::number(course.interval) +
                                       ',' + QByteArray::number(course.samples * course.interval) +
                                       ",90,Slow,Wh,Wd,Wk,1.4,1.3,1," + vibration.type));
    expectParsed(results->parseHeader2("2,1,5.349,50.28,38.02,---,8.85,8.98,8.99"));
    expectParsed(results->parseHeader3("3,1,4.76,3.69,6.46,0.36,0.27,0.45,31.7,23.9,41.7,57,43,75,2.66,2.004,3.482"));
    expectParsed(results->parseHeader5("5,1,ACC-3,S-00417,10.02,9.98,10.05"));
    (void)results->refreshPartialResults({{QStringLiteral("exposureTime"), vibration.exposure}}); // refused without a record
    experiment->setResults(std::move(results));
    return experiment;
}
