// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/device.h"
#include "model/experiment.h"
#include "model/results.h"
#include "simulator/families.h"

#include <QJsonObject>

#include <array>

// What the tests that every family passes have to know of each of them. A family is a file here that gives its
// FamilyCase, and a row in familyCases().

/// JSON in short form: single quotes for double ones.
QJsonObject shortJson(QByteArray text);
/// \a object in that form, compact.
QByteArray shortText(const QJsonObject &object);

/// What an instrument can do with a command beside answering it.
enum How { Busy, Error, Nothing, ErrorAtEnd, BusyAtEnd, OkAtEnd, WrongTag, ShortRecord };

/// The code of a command by what the instrument does. "At end": behind a line of other text.
using Codes = std::array<int, 8>;

//                                       busy error none  error, busy, OK at end, wrong tag, short record
constexpr Codes byTheEnd =               {-2,  -1,   -3,   -1,    -2,   0,         0,         0};
constexpr Codes refusalIsWhole =         {-2,  -1,   -3,   -3,    -3,   0,         0,         0};
constexpr Codes answerIsWhole =          {-2,  -1,   -3,   -3,    -3,   -3,        0,         0};
constexpr Codes allOrNothing =           {-1,  -1,   -1,   -1,    -1,   -1,        -1,        -1};
constexpr Codes headerRead =             {-2,  -1,   -1,   -1,    -2,   -1,        -1,        -1};
constexpr Codes calibrationRead =        {-2,  -1,   -1,   -1,    -2,   -1,        0,         -1};
constexpr Codes calibrationWritten =     {-2,  -1,   -1,   -1,    -1,   -1,        0,         0};

/// A command of a family's own, and how it is brought about.
struct Exchange {
    const char *name;
    QByteArray bytes; ///< exactly what is sent
    Codes codes;
    int (*run)(Device &device);
    bool tellsOfBusy = false;
};

/// Lines of an instrument and what becomes of them.
struct Parsed {
    const char *name;
    QByteArray lines;    ///< several with "\r" between them
    QByteArray expected; ///< short JSON, or empty: refused
};

/// The answer to a header of a family's own and the members of the results that it fills.
struct ParsedHeader {
    const char *name;
    int (*parse)(Results &results, const QByteArray &answer);
    QByteArray answer;   ///< behind "+VFXPHDR: "
    QByteArray expected; ///< short JSON of these members, or empty: refused
};
template <class R, int (R::*Parser)(const QByteArray &)> int parseWith(Results &results, const QByteArray &answer)
{
    return (static_cast<R &>(results).*Parser)(answer);
}

struct FamilyCase {
    const char *product;
    const char *ending;
    std::unique_ptr<VirtualInstrument> (*make)(const QVector<SimulatedExperiment> &memory);
    bool headersTellOfBusy;
    bool closingRecordNeeded;
    QByteArray headers; ///< numbers that a download asks for, in order
    QVector<Exchange> exchanges;
    QVector<Parsed> listLines; ///< short JSON of "index", "size", "date" and what the family adds
    int listRefusal;
    QVector<Parsed> records; ///< short JSON of the first record
    QVector<ParsedHeader> headerLines;
    bool hasMeasuringPoints = false; ///< exposure components
    QByteArray missing = "{}"; ///< short JSON of what keys that a file does not have read as, where that is not empty
    /// Configurations as the window sends them, and what the instrument is then told, in order.
    QByteArray configuration;
    QByteArrayList written;
    QByteArrayList read; ///< what is asked when the configuration is read
};

/// How the beginning of a record reads in most families: 5 March 2021, 14:30 at UTC-3.
inline QByteArray recordStart()
{
    return "+VFRDXP: 1,1,0,\"21/03/05\",\"14:30:00-12\",";
}

/// All families.
const QVector<FamilyCase> &familyCases();

FamilyCase thalvex2Case();
FamilyCase thalvex4Case();
FamilyCase nembraCase();
FamilyCase nembraPlusCase();
FamilyCase zelkCase();
FamilyCase lomtrixCase();
FamilyCase ardel2Case();
