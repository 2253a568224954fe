// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/families/familycase.h"

#include "model/deviceconfig.h"
#include "soundlevel/soundlevelresults.h"

/// What the cases of the sound level meters share.
inline FamilyCase soundLevelCase(const char *product, const char *ending)
{
    FamilyCase family{};
    family.product = product;
    family.ending = ending;
    family.listRefusal = 1;
    family.headersTellOfBusy = true;
    family.headers = "123458";
    family.configuration = "{'frequencyWeighting':'C','timeWeighting':'Impulse','octaveAnalysis':'1/3'}";
    family.written = {"AT+VFFQWGHT=\"C\"\r\n", "AT+VFTMWGHT=\"Impulse\"\r\n", "AT+VFOCTAVE=\"1/3\"\r\n"};
    family.read = {"AT+VFFQWGHT?\r\n", "AT+VFTMWGHT?\r\n", "AT+VFOCTAVE?\r\n"};
    const auto read = [](Device &device) { return device.acquireConfiguration(); };
    const auto write = [](Device &device) {
        (void)device.config()->fromJson(R"({"frequencyWeighting":"C","timeWeighting":"Impulse","octaveAnalysis":"1/3"})");
        return device.sndConfiguration();
    };
    family.exchanges = {
        {"octaves", family.read[2], byTheEnd, read, true},
        {"set time weighting", family.written[1], answerIsWhole, write, true},
    };

    family.hasMeasuringPoints = true;
    family.missing = "{'SEL':'---','lPeak':'---','preChkDate':''}";

    const QByteArray listed = "{'index':'3','size':'25','date':'21/03/05,14:30:00-12','expName':";
    family.listLines = {
        {"with a name", "0,3,25,\"21/03/05\",\"14:30:00-12\",\"Fundi\xE7\xE3o, 2\"", listed + "'Fundição, 2'}"},
        {"empty name", "0,3,25,21/03/05,14:30:00-12,", listed + "''}"},
        {"one too few", "0,3,25,21/03/05,14:30:00-12", ""},
    };

    using R = SoundLevelResults;
    const auto three = parseWith<R, &R::parseHeader3>;
    const auto four = parseWith<R, &R::parseHeader4>;
    family.headerLines = {
        {"bands", three, "3,3,2,8,\"63.00\",70.12\n\r3,3,2,11,125.00,",
         "{'numFreq':'2','leqList':[{'freqIdx':'8','frequency':'63.00','leq':'70.12'},"
         "{'freqIdx':'11','frequency':'125.00','leq':''}]}"},
        {"no bands", three, "3,3,0", "{'numFreq':'','leqList':[]}"},
        {"one band too few", three, "3,3,3,8,63.00,70\r3,3,3,11,125.00,71", ""},
        {"one band too many", three, "3,3,1,8,63.00,70\r3,3,1,11,125.00,71", ""},
        {"a short line ends the bands", three, "3,3,2,8,63.00,70\r3,3,2,11\r3,3,2,11,125.00,71", ""},
        {"a foreign line ends the bands", three, "3,3,1,8,63.00,70\r4,3,1,11,125.00,71\r3,3,1,11,125.00,71",
         "{'numFreq':'1','leqList':[{'freqIdx':'8','frequency':'63.00','leq':'70'}]}"},
        {"checks", four, "4,3,94.0,93.8,\"21/03/05\",\"14:25:00-12\",\"21/03/05\",\"15:36:01-12\"",
         "{'preChk':'94.0','posChk':'93.8','preChkDate':'21/03/05,14:25:00-12','posChkDate':'21/03/05,15:36:01-12'}"},
        {"check with a date but no level", four, "4,3,,93.8,21/03/05,14:25:00-12,21/03/05,15:36:01-12",
         "{'preChk':'---','posChk':'93.8','preChkDate':'','posChkDate':'21/03/05,15:36:01-12'}"},
        {"no checks", four, "4,3,,,,,,", "{'preChk':'---','posChk':'---','preChkDate':'','posChkDate':''}"},
        {"checks, one too few", four, "4,3,94.0,93.8,21/03/05,14:25:00-12,21/03/05", ""},
        {"checks, foreign number", four, "3,3,94.0,93.8,21/03/05,14:25:00-12,21/03/05,15:36:01-12", ""},
    };
    return family;
}
