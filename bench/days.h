// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/families.h"

#include <QTemporaryDir>

#include <memory>

/// A family to be measured, by the instrument that is simulated for it.
struct Subject {
    SimulatedFamily family;
    int expansions = 0;
    bool severalInFile = true; ///< a file of it keeps more than one measurement

    [[nodiscard]] std::unique_ptr<VirtualInstrument> instrument(const QVector<SimulatedExperiment> &memory) const
    {
        return family.make(1, expansions, memory);
    }
    [[nodiscard]] QString product() const;
    /// As the tables of the benchmarks name it: "THALVEX 4, 3 expansions".
    [[nodiscard]] QString name() const;
};

/// The families, those with expansions at their largest.
[[nodiscard]] QVector<Subject> subjects();

/// A measurement of \a records, one per second.
[[nodiscard]] SimulatedExperiment everySecond(int records);

/// The path of the file of \a measurements, downloaded from \a subject and saved in \a folder.
[[nodiscard]] QString fileOf(const Subject &subject, const QVector<SimulatedExperiment> &measurements,
                             const QTemporaryDir &folder);
