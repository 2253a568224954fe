// SPDX-License-Identifier: GPL-3.0-or-later
#include "zelk/zelk.h"

#include "zelk/zelkresults.h"

Device::Manners Zelk::manners()
{
    Manners manners;
    manners.writes = Match::End;
    manners.headersTellBusy = true;
    manners.closingRecordNeeded = true;
    return manners;
}

Zelk::Zelk() : DeviceOf(manners())
{
    setServiceConfig(1);
}

Zelk::Zelk(const Device &plain) : DeviceOf(plain, manners())
{
    setServiceConfig(1);
}

Results *Zelk::acquireResults(Experiment *exp)
{
    using R = ZelkResults;
    return acquireHeaders<R>(exp, {&R::parseIdentification, &R::parseSensorData, &R::parseAverages, &R::parseLimits,
                                   &R::parseQuantities, &R::parseConfigItems, &R::parseEvaluationItems})
        .release();
}

int Zelk::sndCalibration(const Calibration *calib)
{
    return sendCalibration("VFSENCTF", {calib->certification.toUpper(), AtDateTime::toAtString(calib->date)});
}

int Zelk::acquireCalibration()
{
    return queryCalibration("VFSENCTF");
}
