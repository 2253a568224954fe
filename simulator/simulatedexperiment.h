// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/wiredate.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QVector>

/// One measurement in a simulated memory: how long, how dense and when. The values follow from it and from the
/// instrument's seed, record by record, when they are asked for.
struct SimulatedExperiment {
    int size = 1;                                     ///< records
    int interval = 60;                                ///< seconds from one record to the next
    QByteArray start = QByteArrayLiteral("26/03/09,08:00:00-12"); ///< with its zone in quarter hours
    int pauseAfter = 0;                               ///< records before the pause; 0: without one
    int pause = 0;                                    ///< seconds of the pause
    QString name = {};                                ///< of instruments that keep names; ISO 8859-1 on the wire
    char unit = 'C';                                  ///< 'C' or 'F', as set on the instrument at that time
    QByteArray type = {};                             ///< of instruments that measure several kinds of things
    int index = 0;                                    ///< number in the memory; 0: one more than the last
    QByteArray octaves = "1/1";                       ///< of sound level meters: also "1/3"; any other is without bands
    bool manual = false;                              ///< of a sound level meter that can: each record as long as it is
    bool overloaded = false;                          ///< of a sound level meter that can tell
    QByteArray subType = {};                          ///< of a type that has them

    /// Seconds from the start to a record (counted from 1), the pause included.
    [[nodiscard]] qint64 elapsed(int record) const;
    /// Seconds since the instrument last began to measure: at the start or after the pause.
    [[nodiscard]] qint64 measuringSince(int record) const;
    [[nodiscard]] qint64 duration() const; ///< seconds of measuring, without the pause: each record fills its interval
    [[nodiscard]] int pauseTaken() const;  ///< seconds; 0 for a measurement that ended before its pause
    [[nodiscard]] WireDate startDate() const;
    [[nodiscard]] WireDate stopDate() const;
};

Q_DECLARE_METATYPE(SimulatedExperiment)

/// What an instrument has in its memory when nothing else is asked for: a single record, one of 25 (read as 10, 10
/// and 5), a working day with its pause, a night shift over midnight, and eight hours at one second.
[[nodiscard]] QVector<SimulatedExperiment> workingDays();
