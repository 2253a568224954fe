// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>

/// A moment as instruments write it: "yy/MM/dd,hh:mm:ss" on the clock of the place and the zone's offset from UTC in
/// quarter hours, "%+03d". 26/03/09,14:30:00-12 is UTC-3. Reckoned by hand: the computer's own zone plays no part.
struct WireDate {
    qint64 seconds = 0; ///< since 2000-01-01 00:00:00 on the clock of the place
    int quarters = 0;   ///< offset from UTC

    /// Nothing for a text of another form, a day or an hour that does not exist, or a zone beyond -12 h or +14 h.
    [[nodiscard]] static std::optional<WireDate> fromText(const QByteArray &text);
    [[nodiscard]] static WireDate fromUtc(qint64 secondsSince1970, int quarters);

    [[nodiscard]] WireDate later(qint64 by) const { return {seconds + by, quarters}; }
    [[nodiscard]] qint64 utc() const; ///< seconds since 1970
    [[nodiscard]] QByteArray text() const;
    /// Day and hour as the two quoted fields of a record: "26/03/09","14:30:00-12".
    [[nodiscard]] QByteArray fields() const;
};
