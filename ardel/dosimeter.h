// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

/// One of the three dosimeters that an instrument runs over one microphone: what it was set to and what it found.
/// All values are texts as sent, or "---", but for those that are told to be computed.
struct Dosimeter {
    QString label; ///< name of the criterion
    QString actionLevel = QStringLiteral("80");    ///< dB; quieter sound does not count
    QString criterionLevel = QStringLiteral("85"); ///< dB
    QString exchangeRate = QStringLiteral("3");    ///< dB that double the dose
    QString timeWeighting = QStringLiteral("Slow");
    QString freqWeighting = QStringLiteral("A");
    QString dose;      ///< percent
    QString ne;        ///< EL in dB, computed with two decimals
    QString nen;       ///< NEL in dB, computed
    QString dailyDose; ///< percent, computed
    QString twa;       ///< dB
    QString lavg;      ///< dB

    /// Without a dose there are no levels.
    bool hasDose() const { return dose.toFloat() > 0; }
    /// Whether its average level is an Lavg; with other exchange rates it is a Leq.
    bool averagesByFive() const { return exchangeRate.toFloat() == 5; }

    static constexpr int InSettings = -2; ///< header of the rows of what it was set to, from piece 2
    static constexpr int InFindings = -3; ///< header of the rows of what it found
    /// The dosimeter's word stands in place of the "%": "labelDos1", "dosUSERactionLevel".
    static const Fields<Dosimeter> &fields();

    /// Reads header \a number: 0, or -1 with other than 5 or 6 pieces or another number in front.
    [[nodiscard]] int parse(int number, const QByteArray &answer);
};
