// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// What operations that talk to an instrument return; QML reads the numbers.
enum DeviceCode {
    DeviceSuccessful = 0,
    DeviceError = -1,        ///< the instrument refused, or its answer could not be used
    DeviceBusy = -2,         ///< the instrument is busy
    DeviceDisconnected = -3, ///< the command could not be sent, or nothing recognisable came back
    DeviceOvertaken = -4,    ///< another session began during the wait, or the window closed: there is nothing to tell
};

/// The ends of an answer.
constexpr char EndOk[] = "\r\nOK\r\n";
constexpr char EndError[] = "\r\nERROR\r\n";
constexpr char EndBusy[] = "\r\nBUSY\r\n";

/// An answer, sorted: its code and, when that is DeviceSuccessful, its data without the framing.
struct Reply {
    int code;
    QByteArray data;
};

/// How much of an answer must match for its kind to be recognised.
enum class Match {
    End,            ///< the end of the answer
    RefusalIsWhole, ///< OK by the end, BUSY and ERROR as the whole answer
    Whole,          ///< each as the whole answer
};

/// Sorts \a answer, in which every \a tag has been replaced by \a mark.
Reply sortReply(QByteArray answer, const QByteArray &tag, Match match, const QByteArray &mark = {});
