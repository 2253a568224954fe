// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

/// A list of texts that a Results can keep as an object.
class VfQList : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    QStringList texts;
};
