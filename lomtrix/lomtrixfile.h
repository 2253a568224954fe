// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lomtrix/lomtrixexperiment.h"
#include "model/vffile.h"

/// A file of the ending ".lmt", with one experiment or several.
class LomtrixFile : public FileOf<LomtrixExperiment, VfFile::Members::All>
{
    Q_OBJECT

public:
    explicit LomtrixFile(const QString &fileName) : FileOf(fileName, Lomtrix::Name) {}
};
