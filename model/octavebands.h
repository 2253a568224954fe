// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/octaveband.h"

#include <QLocale>

/// What the noise instruments' spectra need beyond the bands that were sent: the A and C curves, which are the sent levels
/// (weighting Z) plus fixed corrections by third octaves from 10 Hz on, and the names of the bands.
namespace OctaveBands {

constexpr int Thirds = 36; ///< third octaves that there are
enum class Analysis { Unknown, Octave, Third };
/// Of "1/1" and "1/3"; any other text is Unknown.
Analysis analysisOf(const QString &octaveAnalysis);

enum class Weighting { Z, A, C };
/// The correction in dB of the third octave \a index (0: 10 Hz); 0 for Z and beyond the tables.
double correction(Weighting weighting, int index);

/// The levels of \a bands in dB with two decimals, low to high; NaN for one that was not measured. A and C have none
/// when the analysis is unknown or the first band is none of those that instruments begin with.
QVector<double> levels(const QVector<LeqPerOctave> &bands, Analysis analysis, Weighting weighting);

/// "1.25 k", "63 ", "31.5 ": thousands of Hz from 1,000 on, without decimals that are not needed.
QString label(const QString &frequency, const QLocale &locale = QLocale());

} // namespace OctaveBands
