// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/experiment.h"

#include <memory>

/// Measurements to print, made of the records that instruments send.
namespace Measurements {

/// How a measurement went. The hour is that of an instrument in Sao Paulo.
struct Course {
    int samples = 60;
    QDateTime start{QDate(2019, 10, 9), QTime(9, 37, 1), Qt::OffsetFromUTC, -3 * 3600};
    int interval = 60; ///< seconds
    QByteArray unit = "C";
    QByteArray text = {}; ///< in place of each value, when not empty
    int expansions = 0;
};

/// A smooth day with the five values of one place.
ExperimentChain thalvex2(const Course &course);

/// The same at 1 + expansions places, each half a degree warmer than the one before.
ExperimentChain thalvex4(const Course &course);

/// What a noise instrument was set to, and what came of it.
struct Noise {
    Course course;
    QByteArray name = "Press";
    QByteArray octaves = "1/1"; ///< "1/3", or another text: no bands
    QByteArray checks = "94.0,93.8";
    bool overload = false; ///< the meter of all weightings
    bool manual = false;   ///< the same: records of lengths of their own
};

/// Levels around 80 dB, and one that is missing in the middle.
ExperimentChain nembra(const Noise &noise);
ExperimentChain nembraPlus(const Noise &noise);
ExperimentChain ardel2(const Noise &noise);

/// What a vibration meter was set to, and what came of it.
struct Vibration {
    Course course;
    QByteArray name = "Drill";
    QByteArray type = "1"; ///< "0": of the whole body
    QString exposure = QStringLiteral("02:30");
};

/// Accelerations of some m/s² on three axes, and one that is missing in the middle.
ExperimentChain lomtrix(const Vibration &vibration);

} // namespace Measurements
