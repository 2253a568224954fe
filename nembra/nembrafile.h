// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/vffile.h"
#include "nembra/nembraexperiment.h"

/// A file of the ending ".nbr", with one experiment or several.
class NembraFile : public FileOf<NembraExperiment, VfFile::Members::All>
{
    Q_OBJECT

public:
    explicit NembraFile(const QString &fileName) : FileOf(fileName, Nembra::Name) {}
};
