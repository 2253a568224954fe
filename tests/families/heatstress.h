// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/families/familycase.h"

#include "model/deviceconfig.h"

/// What the cases of the heat-stress meters share: their two settings.
inline FamilyCase heatStressCase(const char *product, const char *ending)
{
    FamilyCase family{};
    family.product = product;
    family.ending = ending;
    family.listRefusal = -1;
    family.configuration = "{'unity':'°F','sampleTime':'59:59'}";
    family.written = {"AT+VFUNIT=\"F\"\r\n", "AT+VFINTVL=3599\r\n"};
    family.read = {"AT+VFUNIT?\r\n", "AT+VFINTVL?\r\n"};
    const auto read = [](Device &device) { return device.acquireConfiguration(); };
    const auto write = [](Device &device) {
        (void)device.config()->fromJson(R"({"unity":"°F","sampleTime":"59:59"})");
        return device.sndConfiguration();
    };
    family.exchanges = {
        {"service setting", "AT+VFSVCCFG?\r\n", byTheEnd, [](Device &device) { return device.acquireServiceConfig(); }},
        {"unit", family.read[0], byTheEnd, read},
        {"interval", family.read[1], byTheEnd, read},
        {"set unit", family.written[0], refusalIsWhole, write},
        {"set interval", family.written[1], refusalIsWhole, write},
    };
    return family;
}
