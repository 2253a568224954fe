// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ardel/ardel2experiment.h"
#include "model/vffile.h"

/// A file of the ending ".adl", with one experiment.
class Ardel2File : public FileOf<Ardel2Experiment, VfFile::Members::First>
{
    Q_OBJECT

public:
    explicit Ardel2File(const QString &fileName) : FileOf(fileName, Ardel2Experiment::Product) {}
};
