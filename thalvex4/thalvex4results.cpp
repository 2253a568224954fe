// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex4/thalvex4results.h"

#include "thalvex4/thalvex4.h"

const Fields<ExpansionBoard> &ExpansionBoard::fields()
{
    static const Fields<ExpansionBoard> rows = {
        {"SN", 2, 0, &ExpansionBoard::SN}, // counted from the first field of the board
        {"calibration", 2, 1, objectOf(&ExpansionBoard::calibration)},
    };
    return rows;
}

const Fields<WbgtAverages> &WbgtAverages::fields()
{
    static const Fields<WbgtAverages> rows = {
        {"WBGTiMed", 3, 0, &WbgtAverages::WBGTiMed},
        {"WBGToMed", 3, 1, &WbgtAverages::WBGToMed},
    };
    return rows;
}

const Fields<TemperatureExtremes> &TemperatureExtremes::fields()
{
    using E = TemperatureExtremes;
    static const Fields<E> rows = {
        {"wetTMax", 4, 0, &E::wetTMax}, // on the wire wet comes before dry
        {"wetTMin", 4, 1, &E::wetTMin},
        {"dryTMax", 4, 2, &E::dryTMax},
        {"dryTMin", 4, 3, &E::dryTMin},
        {"globeTMax", 4, 4, &E::globeTMax},
        {"globeTMin", 4, 5, &E::globeTMin},
    };
    return rows;
}

const Fields<Thalvex4Results> &Thalvex4Results::fields()
{
    using R = Thalvex4Results;
    static const Fields<R> rows = {
        {"duration", 1, 3, &R::m_duration, Form::Clock},
        {"startTime", 1, 4, &R::m_startTime},
        {"stopTime", 1, 6, &R::m_stopTime},
        {"pauseTime", 1, 8, &R::m_pauseTime, Form::Clock},
        {"sampleTime", 1, 9, &R::m_sampleTime},
        {"unity", 1, 10, &R::m_unity, Form::Degree},
        {"numberOfExpansions", 2, 2, &R::m_numberOfExpansions},
        {"expansionBoardList", 2, 3, listOf(&R::m_expansionBoardList)},
        {"wbgtList", 3, 2, listOf(&R::m_wbgtList)},
        {"maxMinTemperatures", 4, 2, listOf(&R::m_maxMinTemperatures)},
    };
    return rows;
}

int Thalvex4Results::parseHeader2(const QByteArray &answer)
{
    const Pieces header = pieces(answer, HeaderTag);
    if (parseHeader(*this, fields(), 2, header, 3) != 0)
        return -1;
    limitExpansions();
    m_expansionBoardList.clear();
    for (int expansion = 0; expansion < m_numberOfExpansions; ++expansion) {
        const int at = 3 + 4 * expansion;
        ExpansionBoard board;
        readPieces(board, ExpansionBoard::fields(), 2, header, at);
        board.calibration = {wireDate(header, at + 2), wireText(header.value(at + 1), Form::Plain)};
        m_expansionBoardList.append(board);
    }
    return 0;
}

int Thalvex4Results::parseHeader3(const QByteArray &answer)
{
    const Pieces header = pieces(answer, HeaderTag);
    if (parseHeader(*this, fields(), 3, header, 4) != 0)
        return -1;
    m_wbgtList = readBlocks<WbgtAverages>(3, header, 2, 2, 1 + Thalvex4::MaxExpansions);
    return 0;
}

int Thalvex4Results::parseHeader4(const QByteArray &answer)
{
    const Pieces header = pieces(answer, HeaderTag);
    if (parseHeader(*this, fields(), 4, header, 8) != 0)
        return -1;
    m_maxMinTemperatures = readBlocks<TemperatureExtremes>(4, header, 2, 6, 1 + Thalvex4::MaxExpansions);
    return 0;
}

/// An instrument or a file that tells of more expansions than there can be is not believed: pages and reports walk them.
void Thalvex4Results::limitExpansions()
{
    m_numberOfExpansions = qBound(0, m_numberOfExpansions, Thalvex4::MaxExpansions);
}

void Thalvex4Results::fromJson(const QJsonObject &object)
{
    ResultsOf::fromJson(object);
    limitExpansions();
}
