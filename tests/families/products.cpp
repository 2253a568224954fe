// SPDX-License-Identifier: GPL-3.0-or-later
// The table of products for tests of what stands below the pages: those of the suite and the meters whose pages are still
// to come. A product that has its pages is in the suite's own table.

#include "link/products.h"
#include "nembra/nembraexposurecomponent.h"
#include "nembra/nembrafile.h"
#include "nembraplus/nembraplusexposurecomponent.h"
#include "nembraplus/nembraplusfile.h"
#include "thalvex2/thalvex2file.h"
#include "thalvex4/thalvex4file.h"

namespace {

const Product products[] = {
    productOf<Thalvex2, Thalvex2Config, Thalvex2Experiment, Thalvex2File, Thalvex2Log, void, Thalvex2Results>(
        "THALVEX 2", ".tvx"),
    productOf<Thalvex4, Thalvex4Config, Thalvex4Experiment, Thalvex4File, Thalvex4Log, void, Thalvex4Results>(
        "THALVEX 4", ".tv4"),
    productOf<Nembra, NembraConfig, NembraExperiment, NembraFile, NembraLog, void, NembraResults, NembraExposureComponent>(
        "NEMBRA", ".nbr"),
    productOf<NembraPlus, NembraPlusConfig, NembraPlusExperiment, NembraPlusFile, NembraPlusLog, void, NembraPlusResults,
              NembraPlusExposureComponent>("NEMBRA+", ".nbp"),
};

} // namespace

const Product *productByName(const QString &name)
{
    for (const Product &product : products) {
        if (name == QLatin1String(product.name))
            return &product;
    }
    return nullptr;
}

const Product *productByEnding(const QString &fileName)
{
    for (const Product &product : products) {
        if (fileName.endsWith(QLatin1String(product.ending)))
            return &product;
    }
    return nullptr;
}
