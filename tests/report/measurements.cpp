// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/report/measurements.h"

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
