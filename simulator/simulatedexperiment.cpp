// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/simulatedexperiment.h"

qint64 SimulatedExperiment::elapsed(int record) const
{
    return qint64(record - 1) * interval + (record > pauseAfter ? pauseTaken() : 0);
}

qint64 SimulatedExperiment::measuringSince(int record) const
{
    const bool resumed = pauseTaken() > 0 && record > pauseAfter;
    return qint64(record - 1 - (resumed ? pauseAfter : 0)) * interval;
}

qint64 SimulatedExperiment::duration() const
{
    return qint64(size) * interval;
}

int SimulatedExperiment::pauseTaken() const
{
    return pauseAfter > 0 && pauseAfter < size ? pause : 0;
}

WireDate SimulatedExperiment::startDate() const
{
    return WireDate::fromText(start).value_or(WireDate());
}

WireDate SimulatedExperiment::stopDate() const
{
    return startDate().later(duration() + pauseTaken());
}

QVector<SimulatedExperiment> workingDays()
{
    const auto named = [](const char *latin1) { return QString::fromLatin1(latin1); };
    QVector<SimulatedExperiment> days = {
        {1, 60, "26/03/09,07:45:00-12", 0, 0, named("Teste")},
        {25, 60, "26/03/09,08:00:00-12", 0, 0, named("Forno n\xBA 2")},
        {480, 60, "26/03/10,07:30:00-12", 240, 3600, named("Fundi\xE7\xE3o turno da manh\xE3")},
        {300, 90, "26/03/10,20:15:00-12", 0, 0, {}},
        {28800, 1, "26/03/11,08:00:00-12", 14400, 3600, named("Caldeira \xE0 lenha")},
    };
    days[0].octaves = "Off";
    days[0].overloaded = true;
    days[2].octaves = "1/3";
    days[3].manual = true;
    return days;
}
