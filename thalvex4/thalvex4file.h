// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/vffile.h"
#include "thalvex4/thalvex4experiment.h"

/// A file of the ending ".tv4", with one experiment or several.
class Thalvex4File : public FileOf<Thalvex4Experiment, VfFile::Members::All>
{
    Q_OBJECT

public:
    explicit Thalvex4File(const QString &fileName) : FileOf(fileName, Thalvex4::Name) {}
};
