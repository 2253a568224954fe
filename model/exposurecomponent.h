// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class Experiment;

/// The view of one experiment for the exposure pages.
class ExposureComponent : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void fromExperiment(Experiment *) {}
};
