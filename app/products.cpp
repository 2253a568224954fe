// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/products.h"

#include "ardel/ardel2.h"
#include "ardel/ardel2config.h"
#include "ardel/ardel2experiment.h"
#include "ardel/ardel2file.h"
#include "ardel/ardel2log.h"
#include "ardel/ardel2printer.h"
#include "ardel/ardel2results.h"
#include "lomtrix/lomtrix.h"
#include "lomtrix/lomtrixconfig.h"
#include "lomtrix/lomtrixexperiment.h"
#include "lomtrix/lomtrixexposurecomponent.h"
#include "lomtrix/lomtrixfile.h"
#include "lomtrix/lomtrixlog.h"
#include "lomtrix/lomtrixprinter.h"
#include "lomtrix/lomtrixresults.h"
#include "nembra/nembra.h"
#include "nembra/nembraconfig.h"
#include "nembra/nembraexperiment.h"
#include "nembra/nembraexposurecomponent.h"
#include "nembra/nembrafile.h"
#include "nembra/nembralog.h"
#include "nembra/nembraprinter.h"
#include "nembra/nembraresults.h"
#include "nembraplus/nembraplus.h"
#include "nembraplus/nembraplusconfig.h"
#include "nembraplus/nembraplusexperiment.h"
#include "nembraplus/nembraplusexposurecomponent.h"
#include "nembraplus/nembraplusfile.h"
#include "nembraplus/nembrapluslog.h"
#include "nembraplus/nembraplusprinter.h"
#include "nembraplus/nembraplusresults.h"
#include "thalvex2/thalvex2.h"
#include "thalvex2/thalvex2config.h"
#include "thalvex2/thalvex2experiment.h"
#include "thalvex2/thalvex2file.h"
#include "thalvex2/thalvex2log.h"
#include "thalvex2/thalvex2printer.h"
#include "thalvex2/thalvex2results.h"
#include "thalvex4/thalvex4.h"
#include "thalvex4/thalvex4config.h"
#include "thalvex4/thalvex4experiment.h"
#include "thalvex4/thalvex4file.h"
#include "thalvex4/thalvex4log.h"
#include "thalvex4/thalvex4printer.h"
#include "thalvex4/thalvex4results.h"
#include "zelk/zelk.h"
#include "zelk/zelkconfig.h"
#include "zelk/zelkexperiment.h"
#include "zelk/zelkfile.h"
#include "zelk/zelklog.h"
#include "zelk/zelkprinter.h"
#include "zelk/zelkresults.h"

#include <algorithm>

namespace {

/// All products. A new one is a row here.
const Product products[] = {
    productOf<Thalvex2, Thalvex2Config, Thalvex2Experiment, Thalvex2File, Thalvex2Log, Thalvex2Printer, Thalvex2Results>(
        "THALVEX 2", ".tvx"),
    productOf<Thalvex4, Thalvex4Config, Thalvex4Experiment, Thalvex4File, Thalvex4Log, Thalvex4Printer, Thalvex4Results>(
        "THALVEX 4", ".tv4"),
    productOf<Ardel2, Ardel2Config, Ardel2Experiment, Ardel2File, Ardel2Log, Ardel2Printer, Ardel2Results>("ARDEL 2", ".adl"),
    productOf<Nembra, NembraConfig, NembraExperiment, NembraFile, NembraLog, NembraPrinter, NembraResults,
              NembraExposureComponent>("NEMBRA", ".nbr"),
    productOf<NembraPlus, NembraPlusConfig, NembraPlusExperiment, NembraPlusFile, NembraPlusLog, NembraPlusPrinter,
              NembraPlusResults, NembraPlusExposureComponent>("NEMBRA+", ".nbp"),
    productOf<Lomtrix, LomtrixConfig, LomtrixExperiment, LomtrixFile, LomtrixLog, LomtrixPrinter, LomtrixResults,
              LomtrixExposureComponent>("LOMTRIX", ".lmt"),
    productOf<Zelk, ZelkConfig, ZelkExperiment, ZelkFile, ZelkLog, ZelkPrinter, ZelkResults>("ZELK", ".zlk"),
};

template <class Predicate> const Product *productWhere(Predicate predicate)
{
    const auto found = std::find_if(std::begin(products), std::end(products), predicate);
    return found == std::end(products) ? nullptr : found;
}

} // namespace

const Product *productByName(const QString &name)
{
    return productWhere([&](const Product &product) { return name == QLatin1String(product.name); });
}

const Product *productByEnding(const QString &fileName)
{
    return productWhere([&](const Product &product) { return fileName.endsWith(QLatin1String(product.ending)); });
}
