// SPDX-License-Identifier: GPL-3.0-or-later
#include "nembraplus/nembraplusresults.h"
#include "tests/families/soundlevel.h"

namespace {

using R = NembraPlusResults;

/// The levels of one frequency weighting, told apart by their first figure.
QByteArray levelLine(const QByteArray &first)
{
    QByteArray line = "2,3,1,3,0";
    for (const char *level : {"5.1", "5.2", "5.3"})
        line += ',' + first + level;
    int place = 8;
    for (int time = 0; time < 3; ++time) {
        line += ',' + first + QByteArray::number(place) + ',' + first + QByteArray::number(place + 1)
                + ",\"21/03/05\",\"15:00:" + QByteArray::number(place * 2) + "-12\"";
        place += 4;
    }
    return line;
}

/// The same as it is read.
QByteArray levelKeys(const QByteArray &weighting, const QByteArray &first)
{
    QByteArray text;
    const auto add = [&](const QByteArray &key, const QByteArray &value) {
        text += (text.isEmpty() ? "'L" : ",'L") + weighting + key + "':'" + value + '\'';
    };
    add("Eq", first + "5.1");
    add("E", first + "5.2");
    add("peak", first + "5.3");
    int place = 8;
    for (const QByteArray time : {"I", "F", "S"}) {
        add(time + "Min", first + QByteArray::number(place));
        add(time + "Max", first + QByteArray::number(place + 1));
        add(time + "MaxDateTime", "21/03/05,15:00:" + QByteArray::number(place * 2) + "-12");
        place += 4;
    }
    return text;
}

/// Header `Parser` of a measurement that header 1 told to be overloaded.
template <int (R::*Parser)(const QByteArray &)> int overloaded(Results &results, const QByteArray &answer)
{
    const int code = static_cast<R &>(results).parseHeader1("+VFXPHDR: 1,3,,,,,,,,,,,,0,1");
    return code != 0 ? code : parseWith<R, Parser>(results, answer);
}

} // namespace

FamilyCase nembraPlusCase()
{
    FamilyCase family = soundLevelCase("NEMBRA+", ".nbp");
    family.make = [](const QVector<SimulatedExperiment> &memory) { return simulatedNembraPlus(1, memory); };
    family.missing = "{'SEL':'---','lPeak':'---','mode':'AUTO','lEq':''}";
    family.written.insert(2, family.read[1]);
    family.exchanges = {{"kept time weighting", family.read[1], allOrNothing, family.exchanges.last().run}};
    const QByteArray head = "{'date':'21/03/05,14:30:00-12','level':";
    family.records = {
        {"as sent", recordStart() + "85.3,60\n", head + "'85.3','interval':'60'}"},
        {"no interval", recordStart() + "85.3", head + "'85.3','interval':''}"},
        {"no level", recordStart() + ",60", head + "'---','interval':'60'}"},
        {"one too few", "+VFRDXP: 1,1,0,21/03/05,14:30:00-12", ""},
    };
    const auto one = parseWith<R, &R::parseHeader1>;
    const auto two = parseWith<R, &R::parseHeader2>;
    const auto five = parseWith<R, &R::parseHeader5>;
    const QByteArray general = "1,3,\"Prensa\",3661,21/03/05,14:30:00-12,21/03/05,15:31:01-12,90,60,\"Slow\",\"A\",\"1/3\"";
    const QByteArray z = levelLine("7");
    const QByteArray c = levelLine("8");
    const QByteArray a = levelLine("9");
    const QByteArray all =
        '{' + levelKeys("Z", "7") + ',' + levelKeys("C", "8") + ',' + levelKeys("A", "9") + ",'lEq':'','SEL':''}";
    family.headerLines += {
        {"general", one, general + ",0,0,\"MANUAL\"",
         "{'label':'Prensa','durationStr':'01:01:01','sampleTime':'---','octaveAnalysis':'1/3','mode':'MANUAL'}"},
        {"general, without a mode", one, general + ",0,1", "{'sampleTime':'60','mode':'AUTO'}"},
        {"general, 13 pieces", one, general, "{'sampleTime':'60','mode':'AUTO'}"},
        {"general, one too few", one, general.left(general.lastIndexOf(',')), ""},
        {"levels", two, z + "\n\r" + c + "\n\r" + a, all},
        {"levels, neither numbers nor a fourth line count", two, 'x' + z.mid(1) + '\r' + c + '\r' + a + '\r' + z, all},
        {"levels, overloaded", overloaded<&R::parseHeader2>, z + '\r' + c + '\r' + a,
         "{'LAEq':'OL','LCE':'OL','LZpeak':'OL','LZIMin':'OL','LCFMax':'OL','LASMin':'OL',"
         "'LAIMaxDateTime':'21/03/05,15:00:16-12','LZSMaxDateTime':'21/03/05,15:00:32-12'}"},
        {"levels, pieces missing", two, "2,3,1,3,0,75.1\r2\r",
         "{'LZEq':'75.1','LZE':'','LZIMin':'','LZIMaxDateTime':'+00','LCEq':'','LAEq':''}"},
        {"levels, two lines", two, z + '\r' + c, ""},
        {"statistics", five, "5,3,90.1,,80.0,60.5,55", "{'l05':'90.1','l10':'---','l95':'55'}"},
        {"statistics, overloaded", overloaded<&R::parseHeader5>, "5,3,90.1,,80.0,60.5,55",
         "{'l05':'OL','l10':'OL','l50':'OL','l90':'OL','l95':'OL'}"},
        {"statistics, one too few", five, "5,3,90.1,88.0,80.0,60.5", ""},
    };
    return family;
}
