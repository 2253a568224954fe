// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/virtualinstrument.h"

#include <memory>

/// The instruments that can be simulated. Each is a file of its own with a class over VirtualInstrument (or over a
/// base that sister families share), its maker here and its row in `families`.
///
/// The same seed gives the same serial number and the same values, on every computer. `memory` holds the measurements
/// to begin with, by default the five of `workingDays`; `{}` is an empty memory.

[[nodiscard]] std::unique_ptr<VirtualInstrument> simulatedThalvex2(
    quint32 seed = 1, const QVector<SimulatedExperiment> &memory = workingDays());

/// With 0 to 3 expansions. `gap` names an expansion (1 to 3) whose blocks stay empty although it is counted.
[[nodiscard]] std::unique_ptr<VirtualInstrument> simulatedThalvex4(
    quint32 seed = 1, int expansions = 3, const QVector<SimulatedExperiment> &memory = workingDays(), int gap = 0);

/// The sound level meters: of one frequency weighting, and of all three at once.
[[nodiscard]] std::unique_ptr<VirtualInstrument> simulatedNembra(
    quint32 seed = 1, const QVector<SimulatedExperiment> &memory = workingDays());
[[nodiscard]] std::unique_ptr<VirtualInstrument> simulatedNembraPlus(
    quint32 seed = 1, const QVector<SimulatedExperiment> &memory = workingDays());

/// The dosimeter, with two schedules and a USER dosimeter that was set otherwise when it measured.
[[nodiscard]] std::unique_ptr<VirtualInstrument> simulatedArdel2(
    quint32 seed = 1, const QVector<SimulatedExperiment> &memory = workingDays());

/// The vibration meter: every second of its measurements is one of the whole body, the others of hand and arm.
[[nodiscard]] std::unique_ptr<VirtualInstrument> simulatedLomtrix(
    quint32 seed = 1, const QVector<SimulatedExperiment> &memory = workingDays());

/// What the logger has in its memory: a measurement with every sensor module, and each gas.
[[nodiscard]] QVector<SimulatedExperiment> everySensor();

/// The logger. Measurements without a type are of the modules in turn.
[[nodiscard]] std::unique_ptr<VirtualInstrument> simulatedZelk(
    quint32 seed = 1, const QVector<SimulatedExperiment> &memory = everySensor());

struct SimulatedFamily {
    const char *name; ///< for a command line: "thalvex2"
    using Memory = QVector<SimulatedExperiment>;
    std::unique_ptr<VirtualInstrument> (*make)(quint32 seed, int expansions, const Memory &memory);
    Memory (*memory)() = workingDays; ///< to begin with
};

/// All families, in the order in which a demo shows them.
[[nodiscard]] const QVector<SimulatedFamily> &families();

/// "TX2-04217" from "TX2" and a seed.
[[nodiscard]] QByteArray serialNumber(const QByteArray &letters, quint32 seed);
