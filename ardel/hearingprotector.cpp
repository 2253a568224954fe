// SPDX-License-Identifier: GPL-3.0-or-later
#include "ardel/hearingprotector.h"

namespace {

const Fields<HearingProtector> &fields()
{
    using P = HearingProtector;
    static const Fields<P> rows = {
        {"hearProtectMfc", NotOnWire, 0, &P::manufacturer},
        {"hearProtectModel", NotOnWire, 0, &P::model},
        {"hearProtectCANumber", NotOnWire, 0, &P::approval},
        {"hearingProtectorType", NotOnWire, 0, &P::type},
        {"stdApplied", NotOnWire, 0, &P::method},
        {"stdNumber", NotOnWire, 0, &P::methodNumber},
        {"NPS", NotOnWire, 0, &P::total},
        {"NPSp", NotOnWire, 0, &P::totalProtected},
    };
    return rows;
}

} // namespace

HearingProtector HearingProtector::fromJson(const QJsonObject &object)
{
    HearingProtector protector;
    readJson(protector, fields(), object);
    const std::pair<const char *, Levels *> bands[] = {{"nps", &protector.levels},
                                                       {"npsp", &protector.protectedLevels},
                                                       {"desv", &protector.deviations},
                                                       {"att", &protector.attenuations}};
    for (const auto &[prefix, levels] : bands) {
        for (std::size_t band = 0; band < Bands.size(); ++band)
            (*levels)[band] = object[QLatin1String(prefix) + QString::number(Bands[band])].toDouble();
    }
    return protector;
}
