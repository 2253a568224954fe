// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/octaveband.h"

#include <QLocale>

#include <optional>

/// What the noise instruments' spectra need beyond the bands that were sent: the A and C curves, which are the sent levels
/// (weighting Z) plus fixed corrections by third octaves from 10 Hz on, and the names of the bands.
namespace OctaveBands {

constexpr int Thirds = 36; ///< third octaves that there are
enum class Analysis { Unknown, Octave, Third };
/// Of "1/1" and "1/3"; any other text is \a otherwise.
Analysis analysisOf(const QString &octaveAnalysis, Analysis otherwise = Analysis::Unknown);

enum class Weighting { Z, A, C };
/// The correction in dB of the third octave \a index (0: 10 Hz); 0 for Z and beyond the tables.
double correction(Weighting weighting, int index);

/// The levels of \a bands in dB with two decimals, low to high; NaN for one that was not measured. A and C have none
/// when the analysis is unknown; nor when the first band is none of those that instruments begin with, unless a family
/// takes it for the third octave \a otherStart.
QVector<double> levels(const QVector<LeqPerOctave> &bands, Analysis analysis, Weighting weighting,
                       std::optional<int> otherStart = {});

/// "1.25 k", "63 ", "31.5 ": thousands of Hz from 1,000 on, without decimals that are not needed.
QString label(const QString &frequency, const QLocale &locale = QLocale());

} // namespace OctaveBands
