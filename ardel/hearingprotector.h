// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

#include <array>

/// What a hearing protector leaves of the noise, as the user had it computed on the page. It stands in no file.
struct HearingProtector {
    /// 125, 250, 500, 1000, 2000, 4000 and 8000 Hz.
    static constexpr std::array<int, 7> Bands = {125, 250, 500, 1000, 2000, 4000, 8000};
    using Levels = std::array<double, Bands.size()>; ///< dB

    QString manufacturer;
    QString model;
    QString approval; ///< number of the certificate of approval ("C.A.")
    QString type;     ///< with the second method only
    QString method;   ///< the standards of the chosen method
    int methodNumber = 0; ///< 1 or 2; 0 until it is computed
    double total = 0;          ///< dB(A) of all bands without the protector
    double totalProtected = 0; ///< the same under it
    Levels levels{};           ///< dB(A)
    Levels protectedLevels{};  ///< dB(A) under the protector
    Levels deviations{};
    Levels attenuations{};

    /// What the page sent; a key that is missing reads as empty or 0.
    static HearingProtector fromJson(const QJsonObject &object);
};
